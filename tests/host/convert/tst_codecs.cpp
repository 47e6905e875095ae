#include "host/convert/codecs.h"
#include "host/convert/containers.h"

#include <QtTest>

class TestCodecs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKnownCodecNamesItsEncoders();
    void anUnknownCodecHasNoLimits();
    void aCodecThatIsOnlyCopiedHasNoEncoder();
    void aContainerIsFoundByItsExtension_data();
    void aContainerIsFoundByItsExtension();
    void anUnknownExtensionHasNoContainer();
    void aVideoContainerHasAUsualCodec();
};

void TestCodecs::aKnownCodecNamesItsEncoders()
{
    const VideoCodec av1 = videoCodec(QStringLiteral("av1"));
    QCOMPARE(av1.encoders.size(), 2);
    QCOMPARE(av1.encoderNames(),
             (QStringList{QStringLiteral("libsvtav1"), QStringLiteral("libaom-av1")}));
    QCOMPARE(audioCodec(QStringLiteral("mp3")).encoderNames(),
             QStringList{QStringLiteral("libmp3lame")});
    QCOMPARE(audioCodec(QStringLiteral("mp3")).maxChannels, 2);
}

void TestCodecs::anUnknownCodecHasNoLimits()
{
    const AudioCodec codec = audioCodec(QStringLiteral("pcm_s24be"));
    QVERIFY(codec.encoders.isEmpty());
    QVERIFY(codec.sampleRates.isEmpty());
    QVERIFY(!codec.takesBitrate);
    QVERIFY(videoCodec(QString()).encoders.isEmpty());
    // ffmpeg's encoder has the codec's name then.
    QCOMPARE(codec.encoderNames(), QStringList{QStringLiteral("pcm_s24be")});
    QCOMPARE(videoCodec(QStringLiteral("ffv1")).encoderNames(),
             QStringList{QStringLiteral("ffv1")});
}

void TestCodecs::aCodecThatIsOnlyCopiedHasNoEncoder()
{
    QVERIFY(audioCodec(QStringLiteral("truehd")).isOnlyCopied);
    QCOMPARE(audioCodec(QStringLiteral("truehd")).encoderNames(), QStringList());
}

void TestCodecs::aContainerIsFoundByItsExtension_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("muxer");
    QTest::newRow("mp4") << QStringLiteral("mp4") << QStringLiteral("mp4");
    QTest::newRow("upper case") << QStringLiteral("MKV") << QStringLiteral("matroska");
    QTest::newRow("second of a row") << QStringLiteral("asf") << QStringLiteral("asf");
    QTest::newRow("raw aac") << QStringLiteral("aac") << QStringLiteral("adts");
    QTest::newRow("audio book") << QStringLiteral("m4b") << QStringLiteral("ipod");
}

void TestCodecs::aContainerIsFoundByItsExtension()
{
    QFETCH(QString, extension);
    QFETCH(QString, muxer);
    const Container *container = Container::find(extension);
    QVERIFY(container != nullptr);
    QCOMPARE(container->muxer, muxer);
}

void TestCodecs::anUnknownExtensionHasNoContainer()
{
    QVERIFY(Container::find(QStringLiteral("xyz")) == nullptr);
    QVERIFY(Container::find(QString()) == nullptr);
    QVERIFY(Container::find(QStringLiteral("wmv asf")) == nullptr);
}

void TestCodecs::aVideoContainerHasAUsualCodec()
{
    const Container *mkv = Container::find(QStringLiteral("mkv"));
    QCOMPARE(mkv->videoCodecs.constFirst(), QStringLiteral("h264"));
    QVERIFY(mkv->holdsSeveralAudioTracks);
    QVERIFY(!mkv->takesCover);
    QVERIFY(Container::find(QStringLiteral("mp3"))->videoCodecs.isEmpty());
    QVERIFY(Container::find(QStringLiteral("gif"))->audioCodecs.isEmpty());
}

QTEST_GUILESS_MAIN(TestCodecs)
#include "tst_codecs.moc"
