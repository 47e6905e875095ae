#include "formats/proxy/formatsproxy.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <optional>

namespace {

/*! The preset's name for a user, such as "MP4: HD 720P"; "nothing" if there is none. */
QString called(const QVariantMap &preset)
{
    if (preset.isEmpty()) {
        return QStringLiteral("nothing");
    }
    const QString id = preset.value(QStringLiteral("id")).toString();
    const QVariantMap place = FormatsProxy::getInstance()->getTagAndClassById(id);
    return place.value(QStringLiteral("class")).toString() + QStringLiteral(": ") +
           preset.value(QStringLiteral("title")).toString();
}

QString audioBitrateOf(const QVariantMap &preset)
{
    return preset.value(QStringLiteral("audio"))
        .toMap()
        .value(QStringLiteral("bitrate"))
        .toString();
}

/*! The bitrate that the converter uses. */
QString audioBitrateToConvertOf(const QVariantMap &preset)
{
    const QVariantMap node = preset.value(QStringLiteral("outPutNode")).toMap();
    return node.value(QStringLiteral("audioParam"))
        .toMap()
        .value(QStringLiteral("bitrateKbps"))
        .toString();
}

} // namespace

/*! Everyday targets, and the presets of the built-in catalogue that a user would expect for them.
 */
class TestCatalogueFitting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_log.emplace(); }
    void cleanup()
    {
        QCOMPARE(m_log->takeAll(), QStringList());
        m_log.reset();
    }

    void videoOfASize_data();
    void videoOfASize();
    void audioOfABitrate_data();
    void audioOfABitrate();
    void otherTypesHaveNoPreset();
    void audioPresetsOfAFormat_data();
    void audioPresetsOfAFormat();
    void namedPresetsWithCappedAudio_data();
    void namedPresetsWithCappedAudio();
    void bitratesOfferedForAFormat_data();
    void bitratesOfferedForAFormat();

private:
    FormatsProxy &m_formats = *FormatsProxy::getInstance();
    std::optional<MessageLog> m_log;
};

void TestCatalogueFitting::initTestCase()
{
    const MessageLog ofFilesThatAreMissing;
    const QTemporaryDir folder;
    m_formats.init(folder.path());
}

void TestCatalogueFitting::videoOfASize_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("size");
    QTest::addColumn<bool>("preferSource");
    QTest::addColumn<QString>("preset");

    const auto row = [](const char *name, const char *format, const char *size,
                        const char *preset) {
        QTest::newRow(name) << QString::fromLatin1(format) << QString::fromLatin1(size) << false
                            << QString::fromLatin1(preset);
    };
    row("an HD clip for anyone", "mp4", "1280x720", "MP4: HD 720P");
    row("the format in capitals", "MP4", "1920x1080", "MP4: HD 1080P");
    row("a film for the archive", "mkv", "3840x2160", "MKV: 4K");
    row("4K for the web", "webm", "3840x2160", "WEBM: 4K");
    row("cinema 4K", "mov", "4096x2160", "MOV: 4K");
    row("more than there is", "mp4", "7680x4320", "MP4: 4K");
    row("a portrait clip from a phone", "mp4", "720x1280", "MP4: HD 720P");
    row("a portrait clip in full HD", "mp4", "1080x1920", "MP4: HD 1080P");
    row("4:3 in HD", "mp4", "1440x1080", "MP4: HD 1080P");
    row("a monitor's size", "mp4", "2560x1600", "MP4: 2K");
    row("PAL television", "avi", "720x576", "AVI: SD 480P");
    row("a small clip", "flv", "480x270", "FLV: SD 240P");
    row("a format of two words", "hevc mp4", "1920x1080", "HEVC MP4: HD 1080P");
    row("full HD for an old phone", "3gp", "1920x1080", "3GP: HD 720P");
    row("a message on an old phone", "3gp", "176x144", "3GP: QCIF 144P");
    row("an animation for a chat", "gif", "500x280", "GIF: SD 240P");
    row("a tape in Europe", "dv", "720x576", "DV: PAL 576P");
    row("a tape in America", "dv", "720x480", "DV: NTSC 480P");
    row("a disc in America", "vob", "720x480", "VOB: NTSC 480P");
    row("full HD for a disc", "vob", "1920x1080", "VOB: PAL 576P");
    row("full HD for editing", "prores mov", "1920x1080", "PRORES MOV: HD 1080P");
    row("an unknown size", "mp4", "", "MP4: Same as source");
    row("a height alone", "mp4", "1080", "MP4: Same as source");
    row("a stamp, smaller than all presets", "mp4", "64x64", "MP4: Same as source");
    row("an unknown format", "xyz", "1920x1080", "MP4: Same as source");
    row("no format", "", "1920x1080", "MP4: Same as source");
    row("a device maker is not a format", "Apple", "1920x1080", "MP4: Same as source");

    QTest::newRow("as it is, in another container")
        << QStringLiteral("mkv") << QStringLiteral("1920x1080") << true
        << QStringLiteral("MKV: Same as source");
    QTest::newRow("as it is, as small as possible")
        << QStringLiteral("av1 mkv") << QStringLiteral("1920x1080") << true
        << QStringLiteral("AV1 MKV: Same as source");
}

void TestCatalogueFitting::videoOfASize()
{
    QFETCH(QString, format);
    QFETCH(QString, size);
    QFETCH(bool, preferSource);
    QFETCH(QString, preset);
    QCOMPARE(called(m_formats.getConverterParameters(QStringLiteral("video"), format, size,
                                                     preferSource)),
             preset);
}

void TestCatalogueFitting::audioOfABitrate_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QVariant>("kbps");
    QTest::addColumn<bool>("preferSource");
    QTest::addColumn<QString>("preset");

    const auto row = [](const char *name, const char *format, const QVariant &kbps,
                        const char *preset, bool preferSource = false) {
        QTest::newRow(name) << QString::fromLatin1(format) << kbps << preferSource
                            << QString::fromLatin1(preset);
    };
    row("music for the road", "mp3", 128, "MP3: Low Quality");
    row("the bitrate as a string", "mp3", QStringLiteral("192"), "MP3: Middle Quality");
    row("the best there is", "MP3", 320, "MP3: High Quality");
    row("more than there is", "mp3", 1000, "MP3: High Quality");
    row("between two", "mp3", 150, "MP3: Low Quality");
    row("a lecture", "mp3", 48, "MP3: Voice");
    row("a call", "opus", 24, "OPUS: Voice");
    row("an audio book", "m4b", 64, "M4B: Low Quality");
    row("audio for a film", "ac3", 448, "AC3: Surround 5.1");
    row("a voice message", "amr", 12, "AMR: High Quality");
    row("a CD's bitrate", "wav", 1411, "WAV: CD Quality");
    row("as it is", "m4a", 192, "M4A: Same as source", true);
    row("as it is, lossless", "flac", 320, "FLAC: Same as source", true);
    row("an unknown format", "xyz", 128, "MP3: Same as source");
}

void TestCatalogueFitting::audioOfABitrate()
{
    QFETCH(QString, format);
    QFETCH(QVariant, kbps);
    QFETCH(bool, preferSource);
    QFETCH(QString, preset);
    QCOMPARE(called(m_formats.getConverterParameters(QStringLiteral("audio"), format, kbps,
                                                     preferSource)),
             preset);
}

void TestCatalogueFitting::otherTypesHaveNoPreset()
{
    QCOMPARE(called(m_formats.getConverterParameters(QStringLiteral("image"), QStringLiteral("gif"),
                                                     QStringLiteral("1280x720"), true)),
             QStringLiteral("nothing"));
}

void TestCatalogueFitting::audioPresetsOfAFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("kbps");
    QTest::addColumn<QString>("preset");

    const auto row = [](const char *name, const char *format, const char *kbps,
                        const char *preset) {
        QTest::newRow(name) << QString::fromLatin1(format) << QString::fromLatin1(kbps)
                            << QString::fromLatin1(preset);
    };
    row("an exact match", "AAC", "256", "AAC: High Quality");
    row("the closest", "OGG", "100", "OGG: Low Quality");
    row("as close to two", "MP3", "256", "MP3: Middle Quality");
    row("no number", "MP3", "best", "MP3: Same as source");
    row("lossless", "WAV", "320", "WAV: CD Quality");
    row("a ringtone", "M4R", "128", "M4R: Low Quality");
    row("a title must be the format's own", "mp3", "128", "nothing");
    row("an unknown format", "MP5", "128", "nothing");
}

void TestCatalogueFitting::audioPresetsOfAFormat()
{
    QFETCH(QString, format);
    QFETCH(QString, kbps);
    QFETCH(QString, preset);
    QCOMPARE(called(m_formats.getFitAudioFormatByBitrate(format, kbps)), preset);
}

void TestCatalogueFitting::namedPresetsWithCappedAudio_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("cap");
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("audioKbps");

    const auto row = [](const char *name, const char *format, const char *title, const char *cap,
                        const char *preset, const char *audioKbps) {
        QTest::newRow(name) << QString::fromLatin1(format) << QString::fromLatin1(title)
                            << QString::fromLatin1(cap) << QString::fromLatin1(preset)
                            << QString::fromLatin1(audioKbps);
    };
    row("without a cap", "MP4", "HD 1080P", "0", "MP4: HD 1080P", "192");
    row("an offered cap", "MP4", "HD 720P", "128", "MP4: HD 720P", "128");
    row("a title in small letters", "MP4", "hd 720p", "128", "MP4: HD 720P", "128");
    row("a cap between two", "MP4", "HD 720P", "200", "MP4: HD 720P", "192");
    row("a cap above all", "WEBM", "4K", "320", "WEBM: 4K", "160");
    row("a cap below all", "MP4", "HD 720P", "32", "MP4: HD 720P", "0");
    row("a preset for a device", "Apple", "iPhone 4K", "96", "Apple: iPhone 4K", "96");
    row("a portrait preset for a site", "YouTube", "Shorts HD 1080P", "128",
        "YouTube: Shorts HD 1080P", "128");
    row("audio without a bitrate", "PRORES MOV", "4K", "320", "PRORES MOV: 4K", "0");
    row("a title that doesn't exist", "MP4", "8K", "128", "nothing", "");
    row("a format that doesn't exist", "MP5", "4K", "128", "nothing", "");
}

void TestCatalogueFitting::namedPresetsWithCappedAudio()
{
    QFETCH(QString, format);
    QFETCH(QString, title);
    QFETCH(QString, cap);
    QFETCH(QString, preset);
    QFETCH(QString, audioKbps);
    const QVariantMap fitting = m_formats.getFitVideoFormatByName(format, title, cap);
    QCOMPARE(called(fitting), preset);
    QCOMPARE(audioBitrateOf(fitting), audioKbps);
    QCOMPARE(audioBitrateToConvertOf(fitting), audioKbps);
}

void TestCatalogueFitting::bitratesOfferedForAFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("kbps");

    const auto row = [](const char *format, const char *kbps) {
        QTest::newRow(format) << QString::fromLatin1(format) << QString::fromLatin1(kbps);
    };
    row("mp3", "320 256 224 192 160 128 112 96 80 64 48 32");
    row("OGG", "192 160 128 112 96 80 64");
    row("mp4", "320 256 224 192 160 128 96 64");
    row("amr", "12 10 8 7 6 5");
    const char defaults[] = "320 256 128";
    row("flac", defaults);
    row("gif", defaults);
    row("xyz", defaults);
}

void TestCatalogueFitting::bitratesOfferedForAFormat()
{
    QFETCH(QString, format);
    QFETCH(QString, kbps);
    QStringList offered;
    for (const QVariant &bitrate : m_formats.getSupportAudioLisrfromType(format)) {
        offered.append(bitrate.toString());
    }
    QCOMPARE(offered.join(QLatin1Char(' ')), kbps);

    const QStringList logged{QStringLiteral("info: getSupportAudioLisrfromType reverse tempList")};
    const bool isKnown = m_formats.getSupportFormat(format);
    QCOMPARE(m_log->takeAll(), isKnown ? logged : QStringList());
}

int main(int argc, char *argv[])
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
    QCoreApplication application(argc, argv);
    TestCatalogueFitting test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_catalogue_fitting.moc"
