#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/textlist.h"

#include <QtTest>

class TestCodecs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKnownCodecNamesItsEncoders();
    void anUnknownCodecHasNoLimits();
    void encodersStandBelowTheRuleOfTheListing();
    void aListingWithoutARuleHasNoEncoders();
    void aContainerIsFoundByItsExtension_data();
    void aContainerIsFoundByItsExtension();
    void anUnknownExtensionHasNoContainer();
    void aVideoContainerHasAUsualCodec();
};

void TestCodecs::aKnownCodecNamesItsEncoders()
{
    const VideoCodec &av1 = videoCodec(QStringLiteral("av1"));
    QCOMPARE(av1.encoders.size(), 2);
    QCOMPARE(av1.encoders.at(0).name, "libsvtav1");
    QCOMPARE(av1.encoders.at(1).name, "libaom-av1");
    QCOMPARE(audioCodec(QStringLiteral("mp3")).encoders.constFirst(), "libmp3lame");
    QCOMPARE(audioCodec(QStringLiteral("mp3")).maxChannels, 2);
}

void TestCodecs::anUnknownCodecHasNoLimits()
{
    const AudioCodec &codec = audioCodec(QStringLiteral("pcm_s24be"));
    QVERIFY(codec.encoders.isEmpty());
    QVERIFY(words(codec.sampleRates).isEmpty());
    QVERIFY(!codec.takesBitrate);
    QVERIFY(videoCodec(QString()).encoders.isEmpty());
}

void TestCodecs::encodersStandBelowTheRuleOfTheListing()
{
    const QByteArray listing = "Encoders:\n V..... = Video\n A..... = Audio\n ------\n"
                               " V....D libx264              H.264 (codec h264)\n"
                               " A....D aac                  AAC\n\n";
    QCOMPARE(encodersInListing(listing),
             (QSet<QString>{QStringLiteral("libx264"), QStringLiteral("aac")}));
}

void TestCodecs::aListingWithoutARuleHasNoEncoders()
{
    QVERIFY(encodersInListing(" V....D libx264  H.264\n").isEmpty());
    QVERIFY(encodersInListing({}).isEmpty());
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
    QCOMPARE(QString::fromLatin1(container->muxer), muxer);
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
    QCOMPARE(words(mkv->videoCodecs).constFirst(), QStringLiteral("h264"));
    QVERIFY(mkv->has(Container::SeveralAudioTracks));
    QVERIFY(!mkv->has(Container::TakesCover));
    QVERIFY(words(Container::find(QStringLiteral("mp3"))->videoCodecs).isEmpty());
    QVERIFY(words(Container::find(QStringLiteral("gif"))->audioCodecs).isEmpty());
}

QTEST_GUILESS_MAIN(TestCodecs)
#include "tst_codecs.moc"
