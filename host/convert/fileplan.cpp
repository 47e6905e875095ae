#include "host/convert/fileplan.h"

#include "host/convert/ffmpegarguments.h"
#include "host/convert/losses.h"
#include "host/convert/sizefit.h"

StreamTarget FilePlan::target() const
{
    return {settings, *Container::find(settings.extension), encoders, copies};
}

double FilePlan::duration() const
{
    return source.isStill() ? settings.stillSeconds : settings.cutDuration(source.duration);
}

std::optional<VideoPlan> FilePlan::picture() const
{
    const VideoTrack *track = settings.hasVideo ? source.video() : nullptr;
    if (track == nullptr) {
        return {};
    }
    const Result<VideoPlan> plan = VideoPlan::make(*track, target());
    return plan ? std::make_optional(*plan) : std::nullopt;
}

bool FilePlan::takesPasses() const
{
    const std::optional<VideoPlan> plan = picture();
    return plan && plan->takesPasses;
}

Result<QStringList> FilePlan::arguments(const QString &file, const EncodingPass &pass) const
{
    return ffmpegArguments(settings, source, encoders, path, file, copies, pass);
}

Result<QVector<ToolCall>> FilePlan::calls(const QString &file) const
{
    QVector<ToolCall> calls;
    const QString passFile = file + QStringLiteral(".pass");
    for (const int number : takesPasses() ? QVector<int>{1, 2} : QVector<int>{0}) {
        const Result<QStringList> pass = arguments(file, {number, passFile});
        if (!pass) {
            return failed(pass);
        }
        calls.append(ffmpegCall(*pass));
    }
    return calls;
}

QString FilePlan::losses() const
{
    return lossesIn(source, target());
}

QString FilePlan::advice() const
{
    const std::optional<VideoPlan> plan = picture();
    if (settings.targetBytes <= 0 || !plan) {
        return {};
    }
    const VideoTrack &track = *source.video();
    const QString codec = settings.videoCodec.isEmpty() ? track.codec : settings.videoCodec;
    return poorPicture(videoCodec(codec), {plan->size, resultRate(track.frameRate, settings)},
                       settings.videoKbps);
}
