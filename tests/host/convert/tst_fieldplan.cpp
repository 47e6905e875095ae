#include "host/convert/fieldplan.h"

#include <QtTest>

Q_DECLARE_METATYPE(VideoTrack::FieldOrder)

class TestFieldPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreJoinedUnlessForBroadcast_data();
    void fieldsAreJoinedUnlessForBroadcast();
    void keptFieldsAreScaledEachByItself();
};

static FieldPlan planFor(VideoTrack::FieldOrder order, bool framesTellFields, const char *codec,
                         const char *extension)
{
    VideoTrack track;
    track.fieldOrder = order;
    track.framesTellFields = framesTellFields;
    return FieldPlan::make(track, videoCodec(QLatin1String(codec)),
                           *Container::find(QLatin1String(extension)));
}

void TestFieldPlan::fieldsAreJoinedUnlessForBroadcast_data()
{
    QTest::addColumn<VideoTrack::FieldOrder>("order");
    QTest::addColumn<bool>("framesTellFields");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("filters");
    QTest::addColumn<bool>("isKept");
    const auto row = [](const char *name, VideoTrack::FieldOrder order, bool framesTellFields,
                        const char *codec, const char *extension, const char *filters,
                        bool isKept) {
        QTest::newRow(name) << order << framesTellFields << QString::fromLatin1(codec)
                            << QString::fromLatin1(extension) << QString::fromLatin1(filters)
                            << isKept;
    };
    const char join[] = "bwdif=mode=send_frame:deint=interlaced";
    row("progressive", VideoTrack::Progressive, false, "h264", "mp4", "", false);
    row("unknown", VideoTrack::UnknownOrder, false, "mpeg2video", "vob", "", false);
    row("frames that tell", VideoTrack::TopFieldFirst, true, "h264", "mp4", join, false);
    row("frames that are told: top", VideoTrack::TopFieldFirst, false, "h264", "mp4",
        "setfield=tff,bwdif=mode=send_frame:deint=interlaced", false);
    row("frames that are told: bottom", VideoTrack::BottomFieldFirst, false, "h264", "mp4",
        "setfield=bff,bwdif=mode=send_frame:deint=interlaced", false);
    row("for broadcast", VideoTrack::TopFieldFirst, true, "mpeg2video", "vob", "", true);
    row("for broadcast, told", VideoTrack::BottomFieldFirst, false, "mpeg2video", "vob",
        "setfield=bff", true);
    row("for broadcast, in a codec without fields", VideoTrack::TopFieldFirst, true, "mpeg1video",
        "vob", join, false);
    row("a codec with fields, not for broadcast", VideoTrack::TopFieldFirst, true, "mpeg2video",
        "mkv", join, false);
}

void TestFieldPlan::fieldsAreJoinedUnlessForBroadcast()
{
    QFETCH(VideoTrack::FieldOrder, order);
    QFETCH(bool, framesTellFields);
    QFETCH(QString, codec);
    QFETCH(QString, extension);
    QFETCH(QString, filters);
    QFETCH(bool, isKept);
    const FieldPlan plan =
        planFor(order, framesTellFields, qPrintable(codec), qPrintable(extension));
    QCOMPARE(plan.filters.join(QLatin1Char(',')), filters);
    QCOMPARE(plan.isKept, isKept);
    QCOMPARE(plan.options.isEmpty(), !isKept);
}

void TestFieldPlan::keptFieldsAreScaledEachByItself()
{
    const QSize size(720, 576);
    const FieldPlan kept = planFor(VideoTrack::TopFieldFirst, true, "mpeg2video", "vob");
    QCOMPARE(kept.scaleTo(size, QString()), QStringLiteral("scale=720:576:interl=1"));
    QCOMPARE(kept.scaleTo(size, QStringLiteral("flags=area")),
             QStringLiteral("scale=720:576:interl=1:flags=area"));
    const FieldPlan joined = planFor(VideoTrack::TopFieldFirst, true, "h264", "mp4");
    QCOMPARE(joined.scaleTo(size, QString()), QStringLiteral("scale=720:576"));
}

QTEST_GUILESS_MAIN(TestFieldPlan)
#include "tst_fieldplan.moc"
