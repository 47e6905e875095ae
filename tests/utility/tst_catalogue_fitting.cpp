#include "formats/proxy/formatsproxy.h"
#include "tests/support/messagelog.h"

#include <QtTest>

#include <optional>

namespace {

/*! What a user would call the preset: "MP4: HD 720P"; "nothing" when there is none. */
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

/*! The one that the converter goes by. */
QString audioBitrateToConvertOf(const QVariantMap &preset)
{
    const QVariantMap node = preset.value(QStringLiteral("outPutNode")).toMap();
    return node.value(QStringLiteral("audioParam"))
        .toMap()
        .value(QStringLiteral("bitrateKbps"))
        .toString();
}

} // namespace

/*! Everyday wishes, and the presets of the built-in catalogue that a user would expect for them. */
class tst_Catalogue_Fitting : public QObject
{
    Q_OBJECT

private slots:
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
    void namedPresetsWithCappedSound_data();
    void namedPresetsWithCappedSound();
    void bitratesOfferedForAFormat_data();
    void bitratesOfferedForAFormat();

private:
    FormatsProxy &m_formats = *FormatsProxy::getInstance();
    std::optional<MessageLog> m_log;
};

void tst_Catalogue_Fitting::initTestCase()
{
    const MessageLog ofFilesThatAreMissing;
    const QTemporaryDir folder;
    m_formats.init(folder.path());
}

void tst_Catalogue_Fitting::videoOfASize_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("size");
    QTest::addColumn<bool>("preferSource");
    QTest::addColumn<QString>("preset");

    const auto wish = [](const char *name, const char *format, const char *size,
                         const char *preset) {
        QTest::newRow(name) << QString::fromLatin1(format) << QString::fromLatin1(size) << false
                            << QString::fromLatin1(preset);
    };
    wish("an HD clip for anyone", "mp4", "1280x720", "MP4: HD 720P");
    wish("the format in capitals", "MP4", "1920x1080", "MP4: HD 1080P");
    wish("a film for the archive", "mkv", "3840x2160", "MKV: 4K");
    wish("4K for the web", "webm", "3840x2160", "WEBM: 4K");
    wish("cinema 4K", "mov", "4096x2160", "MOV: 4K");
    wish("more than there is", "mp4", "7680x4320", "MP4: 4K");
    wish("an upright clip of a phone", "mp4", "720x1280", "MP4: HD 720P");
    wish("an upright clip in full HD", "mp4", "1080x1920", "MP4: HD 1080P");
    wish("4:3 in HD", "mp4", "1440x1080", "MP4: HD 1080P");
    wish("a monitor's size", "mp4", "2560x1600", "MP4: 2K");
    wish("PAL television", "avi", "720x576", "AVI: SD 480P");
    wish("a small clip", "flv", "480x270", "FLV: SD 240P");
    wish("a format of two words", "hevc mp4", "1920x1080", "HEVC MP4: HD 1080P");
    wish("full HD for an old phone", "3gp", "1920x1080", "3GP: HD 720P");
    wish("a message on an old phone", "3gp", "176x144", "3GP: QCIF 144P");
    wish("a moving picture for a chat", "gif", "500x280", "GIF: SD 240P");
    wish("a tape in Europe", "dv", "720x576", "DV: PAL 576P");
    wish("a tape in America", "dv", "720x480", "DV: NTSC 480P");
    wish("a disc in America", "vob", "720x480", "VOB: NTSC 480P");
    wish("full HD as a disc holds it", "vob", "1920x1080", "VOB: PAL 576P");
    wish("full HD for the cut", "prores mov", "1920x1080", "PRORES MOV: HD 1080P");
    wish("an unknown size", "mp4", "", "MP4: Same as source");
    wish("a height alone", "mp4", "1080", "MP4: Same as source");
    wish("a stamp, smaller than all presets", "mp4", "64x64", "MP4: Same as source");
    wish("an unknown format", "xyz", "1920x1080", "MP4: Same as source");
    wish("no format", "", "1920x1080", "MP4: Same as source");
    wish("a maker is no format", "Apple", "1920x1080", "MP4: Same as source");

    QTest::newRow("as it is, in another container")
        << QStringLiteral("mkv") << QStringLiteral("1920x1080") << true
        << QStringLiteral("MKV: Same as source");
    QTest::newRow("as it is, as small as possible")
        << QStringLiteral("av1 mkv") << QStringLiteral("1920x1080") << true
        << QStringLiteral("AV1 MKV: Same as source");
}

void tst_Catalogue_Fitting::videoOfASize()
{
    QFETCH(QString, format);
    QFETCH(QString, size);
    QFETCH(bool, preferSource);
    QFETCH(QString, preset);
    QCOMPARE(called(m_formats.getConverterParameters(QStringLiteral("video"), format, size,
                                                     preferSource)),
             preset);
}

void tst_Catalogue_Fitting::audioOfABitrate_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QVariant>("kbps");
    QTest::addColumn<bool>("preferSource");
    QTest::addColumn<QString>("preset");

    const auto wish = [](const char *name, const char *format, const QVariant &kbps,
                         const char *preset, bool preferSource = false) {
        QTest::newRow(name) << QString::fromLatin1(format) << kbps << preferSource
                            << QString::fromLatin1(preset);
    };
    wish("music for the road", "mp3", 128, "MP3: Low Quality");
    wish("the bitrate as a text", "mp3", QStringLiteral("192"), "MP3: Middle Quality");
    wish("the best there is", "MP3", 320, "MP3: High Quality");
    wish("more than there is", "mp3", 1000, "MP3: High Quality");
    wish("between two", "mp3", 150, "MP3: Low Quality");
    wish("a lecture", "mp3", 48, "MP3: Voice");
    wish("a call", "opus", 24, "OPUS: Voice");
    wish("an audio book", "m4b", 64, "M4B: Low Quality");
    wish("sound for a film", "ac3", 448, "AC3: Surround 5.1");
    wish("a voice message", "amr", 12, "AMR: High Quality");
    wish("a CD's bitrate", "wav", 1411, "WAV: CD Quality");
    wish("as it is", "m4a", 192, "M4A: Same as source", true);
    wish("as it is, lossless", "flac", 320, "FLAC: Same as source", true);
    wish("an unknown format", "xyz", 128, "MP3: Same as source");
}

void tst_Catalogue_Fitting::audioOfABitrate()
{
    QFETCH(QString, format);
    QFETCH(QVariant, kbps);
    QFETCH(bool, preferSource);
    QFETCH(QString, preset);
    QCOMPARE(called(m_formats.getConverterParameters(QStringLiteral("audio"), format, kbps,
                                                     preferSource)),
             preset);
}

void tst_Catalogue_Fitting::otherTypesHaveNoPreset()
{
    QCOMPARE(called(m_formats.getConverterParameters(QStringLiteral("image"), QStringLiteral("gif"),
                                                     QStringLiteral("1280x720"), true)),
             QStringLiteral("nothing"));
}

void tst_Catalogue_Fitting::audioPresetsOfAFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("kbps");
    QTest::addColumn<QString>("preset");

    const auto wish = [](const char *name, const char *format, const char *kbps,
                         const char *preset) {
        QTest::newRow(name) << QString::fromLatin1(format) << QString::fromLatin1(kbps)
                            << QString::fromLatin1(preset);
    };
    wish("one that there is", "AAC", "256", "AAC: High Quality");
    wish("the closest", "OGG", "100", "OGG: Low Quality");
    wish("as close to two", "MP3", "256", "MP3: Middle Quality");
    wish("no number", "MP3", "best", "MP3: Same as source");
    wish("lossless", "WAV", "320", "WAV: CD Quality");
    wish("sound for a phone", "M4R", "128", "M4R: Low Quality");
    wish("a title must be the format's own", "mp3", "128", "nothing");
    wish("an unknown format", "MP5", "128", "nothing");
}

void tst_Catalogue_Fitting::audioPresetsOfAFormat()
{
    QFETCH(QString, format);
    QFETCH(QString, kbps);
    QFETCH(QString, preset);
    QCOMPARE(called(m_formats.getFitAudioFormatByBitrate(format, kbps)), preset);
}

void tst_Catalogue_Fitting::namedPresetsWithCappedSound_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("cap");
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("audioKbps");

    const auto wish = [](const char *name, const char *format, const char *title, const char *cap,
                         const char *preset, const char *audioKbps) {
        QTest::newRow(name) << QString::fromLatin1(format) << QString::fromLatin1(title)
                            << QString::fromLatin1(cap) << QString::fromLatin1(preset)
                            << QString::fromLatin1(audioKbps);
    };
    wish("without a cap", "MP4", "HD 1080P", "0", "MP4: HD 1080P", "192");
    wish("an offered cap", "MP4", "HD 720P", "128", "MP4: HD 720P", "128");
    wish("a title in small letters", "MP4", "hd 720p", "128", "MP4: HD 720P", "128");
    wish("a cap between two", "MP4", "HD 720P", "200", "MP4: HD 720P", "192");
    wish("a cap above all", "WEBM", "4K", "320", "WEBM: 4K", "160");
    wish("a cap below all", "MP4", "HD 720P", "32", "MP4: HD 720P", "0");
    wish("a preset for a device", "Apple", "iPhone 4K", "96", "Apple: iPhone 4K", "96");
    wish("an upright preset for a site", "YouTube", "Shorts HD 1080P", "128",
         "YouTube: Shorts HD 1080P", "128");
    wish("sound that has no bitrate", "PRORES MOV", "4K", "320", "PRORES MOV: 4K", "0");
    wish("a title that there is not", "MP4", "8K", "128", "nothing", "");
    wish("a format that there is not", "MP5", "4K", "128", "nothing", "");
}

void tst_Catalogue_Fitting::namedPresetsWithCappedSound()
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

void tst_Catalogue_Fitting::bitratesOfferedForAFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("kbps");

    const auto wish = [](const char *format, const char *kbps) {
        QTest::newRow(format) << QString::fromLatin1(format) << QString::fromLatin1(kbps);
    };
    wish("mp3", "320 256 224 192 160 128 112 96 80 64 48 32");
    wish("OGG", "192 160 128 112 96 80 64");
    wish("mp4", "320 256 224 192 160 128 96 64");
    wish("amr", "12 10 8 7 6 5");
    const char usual[] = "320 256 128";
    wish("flac", usual);
    wish("gif", usual);
    wish("xyz", usual);
}

void tst_Catalogue_Fitting::bitratesOfferedForAFormat()
{
    QFETCH(QString, format);
    QFETCH(QString, kbps);
    QStringList offered;
    for (const QVariant &bitrate : m_formats.getSupportAudioLisrfromType(format)) {
        offered.append(bitrate.toString());
    }
    QCOMPARE(offered.join(QLatin1Char(' ')), kbps);

    const QStringList told{QStringLiteral("info: getSupportAudioLisrfromType reverse tempList")};
    const bool isKnown = m_formats.getSupportFormat(format);
    QCOMPARE(m_log->takeAll(), isKnown ? told : QStringList());
}

int main(int argc, char *argv[])
{
    qunsetenv("VEX_EXPORT_CATALOGUE");
    QCoreApplication application(argc, argv);
    tst_Catalogue_Fitting test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_catalogue_fitting.moc"
