#include "host/convert/fieldplan.h"

FieldPlan FieldPlan::make(const VideoTrack &track, const VideoCodec &codec,
                          const Container &container)
{
    FieldPlan plan;
    if (!track.isInterlaced()) {
        return plan;
    }
    if (!track.framesTellFields) {
        const bool topFirst = track.fieldOrder == VideoTrack::TopFieldFirst;
        plan.filters << QStringLiteral("setfield=%1")
                            .arg(topFirst ? QStringLiteral("tff") : QStringLiteral("bff"));
    }
    plan.isKept = container.isForBroadcast && !codec.fieldOptions.isEmpty();
    if (plan.isKept) {
        plan.options = codec.fieldOptions;
    } else {
        plan.filters << QStringLiteral("bwdif=mode=send_frame:deint=interlaced");
    }
    return plan;
}

QString FieldPlan::scaleTo(const QSize &size, const QString &further) const
{
    QStringList all = {QStringLiteral("scale=%1:%2").arg(size.width()).arg(size.height())};
    if (isKept) {
        all << QStringLiteral("interl=1");
    }
    if (!further.isEmpty()) {
        all << further;
    }
    return all.join(QLatin1Char(':'));
}
