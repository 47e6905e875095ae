#include "host/convert/likeness.h"

#include <QtTest>

class TestLikeness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMeasureIsTheMeanOfItsFrames_data();
    void theMeasureIsTheMeanOfItsFrames();
    void theSourceIsSeenAsItsResult();
};

void TestLikeness::theMeasureIsTheMeanOfItsFrames_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<double>("measure");
    QTest::newRow("SSIM") << QByteArray("n:1 Y:0.9 U:0.9 V:0.9 All:0.900000 (10.0)\n"
                                        "n:2 Y:0.8 U:0.8 V:0.8 All:0.800000 (7.0)\n")
                          << 0.85;
    QTest::newRow("VMAF") << QByteArray("Frame,integer_adm2,vmaf,\n0,0.9,91.5,\n1,0.9,94.5,\n")
                          << 93.0;
    QTest::newRow("nothing") << QByteArray("No such filter: 'libvmaf'\n") << -1.0;
}

void TestLikeness::theMeasureIsTheMeanOfItsFrames()
{
    QFETCH(QByteArray, log);
    QTEST(likenessIn(log).value_or(-1), "measure");
}

void TestLikeness::theSourceIsSeenAsItsResult()
{
    VideoTrack track;
    track.index = 2;
    track.storedSize = QSize(720, 576);
    track.pixelAspect = {64, 45};
    track.fieldOrder = VideoTrack::TopFieldFirst;
    ViewedFile source{QStringLiteral("/in"), {}, 12.5};
    source.facts.videoTracks = {track};
    track.index = 0;
    track.storedSize = QSize(640, 360);
    track.pixelAspect = {1, 1};
    track.fieldOrder = VideoTrack::Progressive;
    ViewedFile result{QStringLiteral("/out"), {}};
    result.facts.videoTracks = {track};
    const QStringList arguments = likenessArguments(result, source, 10, LikenessMeasure::Ssim);
    const QString graph = arguments.value(arguments.indexOf(QStringLiteral("-filter_complex")) + 1);
    QVERIFY2(graph.contains(QStringLiteral("[1:2]bwdif=mode=send_frame:deint=interlaced,"
                                           "setpts=PTS-STARTPTS,scale=640:360")),
             qPrintable(graph));
    QVERIFY2(graph.contains(QStringLiteral("[0:0]setpts=PTS-STARTPTS,scale=640:360")),
             qPrintable(graph));
    QCOMPARE(arguments.count(QStringLiteral("-ss")), 1);
    QCOMPARE(arguments.value(arguments.indexOf(QStringLiteral("-ss")) + 1),
             QStringLiteral("12.500"));
    QCOMPARE(arguments.count(QStringLiteral("-t")), 2);
}

QTEST_GUILESS_MAIN(TestLikeness)
#include "tst_likeness.moc"
