#include "host/convert/containers.h"
#include "host/convert/conversion.h"
#include "host/convert/ffmpegarguments.h"
#include "host/convert/textlist.h"
#include "tests/host/mediaclips.h"
#include "tests/support/messagelog.h"
#include "tests/support/patience.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <optional>

namespace {

ConversionOutcome outcomeOf(Conversion &conversion)
{
    ConversionOutcome result;
    result.error = QStringLiteral("(did not end)");
    QEventLoop loop;
    QObject::connect(&conversion, &Conversion::finished, &loop,
                     [&result, &loop](const ConversionOutcome &outcome) {
                         result = outcome;
                         loop.quit();
                     });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    conversion.start();
    loop.exec();
    return result;
}

ConversionOutcome convert(const ConversionJob &job)
{
    Conversion conversion(job);
    return outcomeOf(conversion);
}

OutputSettings video(const QString &extension)
{
    OutputSettings settings;
    settings.extension = extension;
    settings.hasPicture = true;
    return settings;
}

OutputSettings audio(const QString &extension)
{
    OutputSettings settings;
    settings.extension = extension;
    return settings;
}

} // namespace

Q_DECLARE_METATYPE(OutputSettings)

class TestConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aFilmIsConverted();
    void aSilentFilmStaysSilent();
    void dvHoldsTheWholeFilmWhateverItsSound_data();
    void dvHoldsTheWholeFilmWhateverItsSound();
    void theSoundOfAFilmIsTaken();
    void aCoverComesAlong();
    void aPortraitPictureFitsTheTurnedBox();
    void anUprightCopyOfATurnedPictureIsNotTurnedTwice();
    void widePixelsBecomeSquare();
    void allAudioTracksAreKept();
    void onlyTheDefaultTrackIsKept();
    void whatMayStayIsCopied();
    void everyContainerIsWrittenWithItsUsualCodecs_data();
    void everyContainerIsWrittenWithItsUsualCodecs();
    void bitratesBesideTheLimitsAreWritten_data();
    void bitratesBesideTheLimitsAreWritten();
    void metadataAndChaptersComeAlong();

    void aNameInUseIsNumbered();
    void overwritingReplacesTheResult();
    void aSourceIsNeverOverwritten();
    void filesToKeepAreNotOverwritten();
    void theResultMayGoElsewhere();
    void anyNameIsJustAName_data();
    void anyNameIsJustAName();
    void theResultHasTheUsualPermissions();
    void progressGoesForwardToTheEnd();
    void aPlanWritesNothing();

    void cancellingHalfWayLeavesNothing();
    void cancellingTheProbeLeavesNothing();
    void destroyingARunningConversionLeavesNothing();
    void aSourceThatIsNoMediaIsRefused_data();
    void aSourceThatIsNoMediaIsRefused();
    void aPlaylistIsNotFollowed();
    void settingsThatNoFileCanHaveAreRefused_data();
    void settingsThatNoFileCanHaveAreRefused();
    void aFolderThatCannotBeWrittenIsRefused_data();
    void aFolderThatCannotBeWrittenIsRefused();
    void aFullDiskLeavesNothing_data();
    void aFullDiskLeavesNothing();
    void aFailingFfmpegLeavesNothing_data();
    void aFailingFfmpegLeavesNothing();
    void aMissingEncoderIsNamed();
    void withoutTheToolsItSaysWhatToInstall_data();
    void withoutTheToolsItSaysWhatToInstall();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /*! The names of all files in the test's folder, and of what is hidden there. */
    QStringList everything() const
    {
        const QDir folder(m_folder->path());
        return folder.entryList({QStringLiteral(".*")},
                                QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot) +
               folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    QString copyOf(const QString &clip, const QString &name) const
    {
        const QString copy = path(name);
        return QFile::copy(m_clips->filePath(clip), copy) ? copy : QString();
    }
    QByteArray contentOf(const QString &file) const
    {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("unreadable");
    }
    ConversionJob job(const QString &source, const OutputSettings &settings) const
    {
        ConversionJob made;
        made.source = source;
        made.settings = settings;
        return made;
    }
    /*! Puts a script in ffmpeg's place until the test ends. */
    void standIn(const QString &script)
    {
        QVERIFY(MediaClips::makeStandIn(m_tools->path(), script));
        qputenv("PATH", MediaClips::pathWith(m_tools->path()));
    }
    QStringList names(const char *list) const
    {
        return QString::fromLatin1(list).split(QLatin1Char('|'));
    }

    QByteArray m_path;
    std::unique_ptr<QTemporaryDir> m_clips;
    std::optional<QTemporaryDir> m_folder;
    std::optional<QTemporaryDir> m_tools;
    std::optional<MessageLog> m_log;
};

void TestConversion::initTestCase()
{
    m_path = qgetenv("PATH");
    m_clips = std::make_unique<QTemporaryDir>();
    const auto clip = [this](const char *name) { return m_clips->filePath(QLatin1String(name)); };
    const QString twoTracks =
        QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                       "-f lavfi -i sine=duration=1 -f lavfi -i sine=duration=1:frequency=880 "
                       "-map 0 -map 1 -map 2 -c:v libx264 -preset ultrafast -pix_fmt yuv420p "
                       "-c:a aac -ac:a:1 2 -disposition:a:0 0 -disposition:a:1 default");
    QVERIFY(MediaClips::makeFilm(clip("film.mp4")));
    QVERIFY(MediaClips::makeFilm(clip("long.mp4"), 20));
    QVERIFY(MediaClips::make(clip("silent.mp4"),
                             QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                                            "-c:v libx264 -preset ultrafast -pix_fmt yuv420p")));
    QVERIFY(MediaClips::make(clip("turned.mp4"), QStringLiteral("-i %1 -c copy -metadata:s:v "
                                                                "rotate=90")
                                                     .arg(clip("film.mp4"))));
    QVERIFY(MediaClips::make(clip("wide.mkv"),
                             QStringLiteral("-f lavfi -i testsrc2=size=720x576:rate=25:duration=1 "
                                            "-vf setsar=64/45 -c:v mpeg2video -q:v 4")));
    QVERIFY(MediaClips::make(clip("dubbed.mkv"), twoTracks));
    QVERIFY(MediaClips::make(clip("raw.mkv"),
                             QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                                            "-f lavfi -i sine=duration=1:sample_rate=22050 "
                                            "-c:v ffv1 -c:a tta")));
    QVERIFY(MediaClips::makeSong(clip("song.flac")));
    QVERIFY(MediaClips::make(clip("cover.png"),
                             QStringLiteral("-f lavfi -i testsrc2=size=64x64 -frames:v 1")));
    QVERIFY(
        MediaClips::make(clip("covered.flac"), QStringLiteral("-i %1 -i %2 -map 0 -map 1 -c copy "
                                                              "-disposition:v attached_pic")
                                                   .arg(clip("song.flac"), clip("cover.png"))));
}

void TestConversion::init()
{
    m_folder.emplace();
    m_tools.emplace();
    QVERIFY(m_folder->isValid());
    QVERIFY(m_tools->isValid());
    m_log.emplace();
}

void TestConversion::cleanup()
{
    qputenv("PATH", m_path);
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
    m_folder.reset();
    m_tools.reset();
}

void TestConversion::aFilmIsConverted()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    const QByteArray before = contentOf(source);
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("mpeg4");
    settings.frameRate = {15, 1};
    settings.box = QSize(160, 160);
    settings.videoKbps = 300;
    settings.audioCodec = QStringLiteral("mp3");
    settings.sampleRate = 48000;
    settings.channels = 2;
    settings.audioKbps = 128;

    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.result, ConversionOutcome::Converted);
    QCOMPARE(outcome.target, path(QStringLiteral("film.mkv")));
    QCOMPARE(everything(), names("film.mkv|film.mp4"));
    QCOMPARE(contentOf(source), before);

    const MediaFacts facts = MediaClips::factsOf(outcome.target);
    QCOMPARE(facts.picture()->codec, QStringLiteral("mpeg4"));
    QCOMPARE(facts.picture()->displaySize(), QSize(160, 120));
    QCOMPARE(facts.picture()->frameRate.toText(), QStringLiteral("15"));
    QCOMPARE(facts.sound()->codec, QStringLiteral("mp3"));
    QCOMPARE(facts.sound()->sampleRate, 48000);
    QCOMPARE(facts.sound()->channels, 2);
    QVERIFY(qAbs(facts.duration - 1.0) < 0.2);
    QCOMPARE(outcome.facts.summary(), facts.summary());
}

void TestConversion::aSilentFilmStaysSilent()
{
    const QString source = copyOf(QStringLiteral("silent.mp4"), QStringLiteral("silent.mp4"));
    OutputSettings settings = video(QStringLiteral("webm"));
    settings.audioCodec = QStringLiteral("opus");
    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.facts.picture()->codec, QStringLiteral("vp9"));
    QVERIFY(outcome.facts.audioTracks.isEmpty());
}

void TestConversion::dvHoldsTheWholeFilmWhateverItsSound_data()
{
    QTest::addColumn<QString>("sound");
    QTest::newRow("another sample rate") << QStringLiteral("sine=duration=2:sample_rate=44100");
    QTest::newRow("ends early") << QStringLiteral("sine=duration=0.5:sample_rate=48000");
    QTest::newRow("goes on") << QStringLiteral("sine=duration=3:sample_rate=48000");
    QTest::newRow("as the file holds it")
        << QStringLiteral("sine=duration=0.5:sample_rate=48000,aformat=channel_layouts=stereo");
}

void TestConversion::dvHoldsTheWholeFilmWhateverItsSound()
{
    QFETCH(QString, sound);
    const QString source = path(QStringLiteral("film.mkv"));
    QVERIFY(MediaClips::make(
        source, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=30000/1001:duration=2 "
                               "-f lavfi -i %1 -c:v mpeg4 -c:a pcm_s16le")
                    .arg(sound)));
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("dv"))));
    QCOMPARE(outcome.error, QString());
    QVERIFY(qAbs(outcome.facts.duration - 2.0) < 0.05);
    QCOMPARE(outcome.facts.sound()->channels, 2);
}

void TestConversion::theSoundOfAFilmIsTaken()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    OutputSettings settings = audio(QStringLiteral("mp3"));
    settings.audioCodec = QStringLiteral("mp3");
    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.target, path(QStringLiteral("film.mp3")));
    QVERIFY(outcome.facts.videoTracks.isEmpty());
    QCOMPARE(outcome.facts.sound()->codec, QStringLiteral("mp3"));
    QCOMPARE(outcome.facts.sound()->sampleRate, 44100);
    QCOMPARE(outcome.facts.sound()->channels, 1);
}

void TestConversion::aCoverComesAlong()
{
    const QString source = copyOf(QStringLiteral("covered.flac"), QStringLiteral("covered.flac"));
    for (const char *extension : {"mp3", "m4a"}) {
        const ConversionOutcome outcome = convert(job(source, audio(QLatin1String(extension))));
        QCOMPARE(outcome.error, QString());
        QVERIFY2(outcome.facts.cover() != nullptr, extension);
        QVERIFY(outcome.facts.picture() == nullptr);
    }
    QVERIFY(convert(job(source, audio(QStringLiteral("ogg")))).facts.videoTracks.isEmpty());
}

void TestConversion::aPortraitPictureFitsTheTurnedBox()
{
    const QString source = copyOf(QStringLiteral("turned.mp4"), QStringLiteral("turned.mp4"));
    QCOMPARE(MediaClips::factsOf(source).picture()->displaySize(), QSize(240, 320));
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("h264");
    settings.box = QSize(160, 90);
    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.facts.picture()->storedSize, QSize(90, 120));
    QCOMPARE(outcome.facts.picture()->rotation, 0);
}

void TestConversion::anUprightCopyOfATurnedPictureIsNotTurnedTwice()
{
    const QString source = copyOf(QStringLiteral("turned.mp4"), QStringLiteral("turned.mp4"));
    const ConversionOutcome kept = convert(job(source, video(QStringLiteral("mov"))));
    QCOMPARE(kept.facts.picture()->storedSize, QSize(320, 240));
    QCOMPARE(kept.facts.picture()->displaySize(), QSize(240, 320));
    const ConversionOutcome turned = convert(job(source, video(QStringLiteral("avi"))));
    QCOMPARE(turned.facts.picture()->storedSize, QSize(240, 320));
    QCOMPARE(turned.facts.picture()->displaySize(), QSize(240, 320));
}

void TestConversion::widePixelsBecomeSquare()
{
    const QString source = copyOf(QStringLiteral("wide.mkv"), QStringLiteral("wide.mkv"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.videoCodec = QStringLiteral("h264");
    settings.box = QSize(640, 640);
    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.facts.picture()->storedSize, QSize(640, 360));
    QCOMPARE(outcome.facts.picture()->displaySize(), QSize(640, 360));
}

void TestConversion::allAudioTracksAreKept()
{
    const QString source = copyOf(QStringLiteral("dubbed.mkv"), QStringLiteral("dubbed.mkv"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.audioCodec = QStringLiteral("ac3");
    settings.allAudioTracks = true;
    const MediaFacts facts = convert(job(source, settings)).facts;
    QCOMPARE(facts.audioTracks.size(), 2);
    QCOMPARE(facts.audioTracks.at(0).codec, QStringLiteral("ac3"));
    QCOMPARE(facts.audioTracks.at(0).channels, 1);
    QCOMPARE(facts.audioTracks.at(1).codec, QStringLiteral("ac3"));
    QCOMPARE(facts.audioTracks.at(1).channels, 2);
}

void TestConversion::onlyTheDefaultTrackIsKept()
{
    const QString source = copyOf(QStringLiteral("dubbed.mkv"), QStringLiteral("dubbed.mkv"));
    const MediaFacts facts = convert(job(source, video(QStringLiteral("mp4")))).facts;
    QCOMPARE(facts.audioTracks.size(), 1);
    QCOMPARE(facts.sound()->channels, 2);
}

void TestConversion::whatMayStayIsCopied()
{
    // A copy has the very pictures of its source, whatever encoder ffmpeg has.
    const QString source = copyOf(QStringLiteral("raw.mkv"), QStringLiteral("raw.mkv"));
    const MediaFacts facts = convert(job(source, video(QStringLiteral("mkv")))).facts;
    QCOMPARE(facts.picture()->codec, QStringLiteral("ffv1"));
    QCOMPARE(facts.sound()->codec, QStringLiteral("tta"));
}

void TestConversion::everyContainerIsWrittenWithItsUsualCodecs_data()
{
    QTest::addColumn<QString>("extension");
    const QStringList extensions =
        QStringLiteral("mp4 m4v mov mkv avi webm wmv asf mpg mpeg vob ts m2ts mts flv f4v 3gp 3g2 "
                       "ogv mxf dv gif mp3 aac m4a m4b m4r flac wav aiff aif au caf ogg oga opus "
                       "spx ac3 eac3 mp2 wma mka amr tta wv")
            .split(QLatin1Char(' '));
    for (const QString &extension : extensions) {
        QTest::newRow(qPrintable(extension)) << extension;
    }
}

void TestConversion::everyContainerIsWrittenWithItsUsualCodecs()
{
    QFETCH(QString, extension);
    const Container *container = Container::find(extension);
    QVERIFY(container != nullptr);
    const QString videoCodec = words(container->videoCodecs).value(0);
    const QString audioCodec = words(container->audioCodecs).value(0);
    if (audioCodec == QLatin1String("amr_nb") &&
        !MediaClips::hasEncoder(QStringLiteral("libopencore_amrnb"))) {
        QSKIP("this ffmpeg writes no AMR");
    }
    OutputSettings settings;
    settings.extension = extension;
    settings.hasPicture = !videoCodec.isEmpty();
    settings.videoCodec = videoCodec;
    settings.audioCodec = audioCodec;
    const QString source = copyOf(QStringLiteral("raw.mkv"), QStringLiteral("raw.mkv"));

    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.facts.picture() != nullptr, !videoCodec.isEmpty());
    QCOMPARE(outcome.facts.sound() != nullptr, !audioCodec.isEmpty());
    if (!videoCodec.isEmpty()) {
        QCOMPARE(outcome.facts.picture()->codec, videoCodec);
    }
    if (!audioCodec.isEmpty()) {
        QCOMPARE(outcome.facts.sound()->codec, audioCodec);
    }
    // Raw streams tell no exact duration.
    QVERIFY(outcome.facts.duration > 0.5 && outcome.facts.duration < 2);
}

void TestConversion::bitratesBesideTheLimitsAreWritten_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<int>("sampleRate");
    QTest::addColumn<int>("channels");
    QTest::addColumn<double>("kbps");

    const auto rows = [](const char *extension, const char *codec, int sampleRate) {
        for (const int channels : {1, 2, 6}) {
            for (const double kbps : {8.0, 1000.0}) {
                QTest::addRow("%s %d Hz %d channels %g kbps", codec, sampleRate, channels, kbps)
                    << QString::fromLatin1(extension) << QString::fromLatin1(codec) << sampleRate
                    << channels << kbps;
            }
        }
    };
    for (const int sampleRate : {8000, 16000, 32000, 96000}) {
        rows("ogg", "vorbis", sampleRate);
    }
    rows("opus", "opus", 8000);
    rows("mp2", "mp2", 44100);
    rows("wma", "wmav2", 44100);
    rows("ac3", "ac3", 44100);
    rows("eac3", "eac3", 44100);
}

void TestConversion::bitratesBesideTheLimitsAreWritten()
{
    QFETCH(QString, extension);
    QFETCH(QString, codec);
    QFETCH(int, sampleRate);
    QFETCH(int, channels);
    QFETCH(double, kbps);
    OutputSettings settings = audio(extension);
    settings.audioCodec = codec;
    settings.sampleRate = sampleRate;
    settings.channels = channels;
    settings.audioKbps = kbps;
    const QString source = copyOf(QStringLiteral("song.flac"), QStringLiteral("song.flac"));
    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.facts.sound()->codec, codec);
}

void TestConversion::metadataAndChaptersComeAlong()
{
    QFile notes(path(QStringLiteral("notes.txt")));
    QVERIFY(notes.open(QIODevice::WriteOnly));
    notes.write(";FFMETADATA1\ntitle=Evening\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=500\n"
                "title=First\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=500\nEND=1000\ntitle=Second\n");
    notes.close();
    const QString source = path(QStringLiteral("book.mka"));
    QVERIFY(MediaClips::make(
        source, QStringLiteral("-i %1 -i %2 -map_metadata 1 -map_chapters 1 "
                               "-c copy")
                    .arg(m_clips->filePath(QStringLiteral("song.flac")), notes.fileName())));
    const ConversionOutcome outcome = convert(job(source, audio(QStringLiteral("m4b"))));
    QCOMPARE(outcome.error, QString());
    QProcess probe;
    probe.start(QStringLiteral("ffprobe"),
                {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_chapters"),
                 QStringLiteral("-show_entries"), QStringLiteral("format_tags=title"),
                 outcome.target});
    QVERIFY(probe.waitForFinished());
    const QByteArray shown = probe.readAllStandardOutput();
    QVERIFY2(shown.contains("TAG:title=Evening"), shown.constData());
    QVERIFY2(shown.contains("TAG:title=First"), shown.constData());
    QVERIFY2(shown.contains("TAG:title=Second"), shown.constData());
}

void TestConversion::aNameInUseIsNumbered()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    const QByteArray before = contentOf(source);
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("mp4"))));
    QCOMPARE(outcome.target, path(QStringLiteral("clip (2).mp4")));
    QCOMPARE(convert(job(source, video(QStringLiteral("mp4")))).target,
             path(QStringLiteral("clip (3).mp4")));
    QCOMPARE(everything(), names("clip (2).mp4|clip (3).mp4|clip.mp4"));
    QCOMPARE(contentOf(source), before);
}

void TestConversion::overwritingReplacesTheResult()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QVERIFY(!copyOf(QStringLiteral("cover.png"), QStringLiteral("clip.mkv")).isEmpty());
    ConversionJob overwriting = job(source, video(QStringLiteral("mkv")));
    overwriting.overwrite = true;
    const ConversionOutcome outcome = convert(overwriting);
    QCOMPARE(outcome.target, path(QStringLiteral("clip.mkv")));
    QCOMPARE(everything(), names("clip.mkv|clip.mp4"));
    QCOMPARE(MediaClips::factsOf(outcome.target).picture()->codec, QStringLiteral("h264"));
}

void TestConversion::aSourceIsNeverOverwritten()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    const QByteArray before = contentOf(source);
    ConversionJob overwriting = job(source, video(QStringLiteral("mp4")));
    overwriting.overwrite = true;
    QCOMPARE(convert(overwriting).target, path(QStringLiteral("clip (2).mp4")));
    QCOMPARE(contentOf(source), before);

    // The source under another name is the source all the same.
    QVERIFY(QFile::link(source, path(QStringLiteral("link.avi"))));
    QVERIFY(QFile::link(source, path(QStringLiteral("link.mp4"))));
    overwriting.source = path(QStringLiteral("link.avi"));
    QCOMPARE(convert(overwriting).target, path(QStringLiteral("link (2).mp4")));
    QCOMPARE(contentOf(source), before);
}

void TestConversion::filesToKeepAreNotOverwritten()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    const QString kept = copyOf(QStringLiteral("silent.mp4"), QStringLiteral("clip.mkv"));
    const QByteArray before = contentOf(kept);
    ConversionJob overwriting = job(source, video(QStringLiteral("mkv")));
    overwriting.overwrite = true;
    overwriting.keep = QStringList{path(QStringLiteral("elsewhere")), kept};
    QCOMPARE(convert(overwriting).target, path(QStringLiteral("clip (2).mkv")));
    QCOMPARE(contentOf(kept), before);
}

void TestConversion::theResultMayGoElsewhere()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("out")));
    ConversionJob elsewhere = job(source, video(QStringLiteral("mp4")));
    elsewhere.folder = path(QStringLiteral("out"));
    QCOMPARE(convert(elsewhere).target, path(QStringLiteral("out/clip.mp4")));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::anyNameIsJustAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::newRow("dash") << QStringLiteral("-y.mp4") << QStringLiteral("-y.mkv");
    QTest::newRow("pattern") << QStringLiteral("clip %03d.mp4") << QStringLiteral("clip %03d.mkv");
    QTest::newRow("protocol") << QStringLiteral("concat:a|b.mp4")
                              << QStringLiteral("concat:a|b.mkv");
    QTest::newRow("quotes") << QStringLiteral("it's \"x\" \\ $HOME.mp4")
                            << QStringLiteral("it's \"x\" \\ $HOME.mkv");
    QTest::newRow("other scripts")
        << QStringLiteral("видео 日本.mp4") << QStringLiteral("видео 日本.mkv");
    QTest::newRow("several dots") << QStringLiteral("my.holiday.mp4")
                                  << QStringLiteral("my.holiday.mkv");
    QTest::newRow("no extension") << QStringLiteral("clip") << QStringLiteral("clip.mkv");
    QTest::newRow("only an extension") << QStringLiteral(".mp4") << QStringLiteral(".mp4.mkv");
}

void TestConversion::anyNameIsJustAName()
{
    QFETCH(QString, name);
    QFETCH(QString, target);
    const QString source = copyOf(QStringLiteral("film.mp4"), name);
    QVERIFY(!source.isEmpty());
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.target, path(target));
    QVERIFY(QFile::exists(path(target)));
}

void TestConversion::theResultHasTheUsualPermissions()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QFile usual(path(QStringLiteral("usual")));
    QVERIFY(usual.open(QIODevice::WriteOnly));
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(QFile::permissions(outcome.target), usual.permissions());
}

void TestConversion::progressGoesForwardToTheEnd()
{
    const QString source = copyOf(QStringLiteral("long.mp4"), QStringLiteral("long.mp4"));
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.videoCodec = QStringLiteral("h264");
    Conversion conversion(job(source, settings));
    QVector<Progress> told;
    connect(&conversion, &Conversion::progressed,
            [&told](const Progress &progress) { told.append(progress); });
    QCOMPARE(outcomeOf(conversion).error, QString());
    QVERIFY(!told.isEmpty());
    for (int i = 1; i < told.size(); ++i) {
        QVERIFY(told.at(i).done >= told.at(i - 1).done);
    }
    QVERIFY(told.constLast().percent() >= 95);
}

void TestConversion::aPlanWritesNothing()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    ConversionJob planned = job(source, video(QStringLiteral("mkv")));
    planned.planOnly = true;
    const ConversionOutcome outcome = convert(planned);
    QCOMPARE(outcome.result, ConversionOutcome::Planned);
    QCOMPARE(outcome.target, path(QStringLiteral("clip.mkv")));
    QCOMPARE(outcome.arguments.constLast(), QStringLiteral("file:") + outcome.target);
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::cancellingHalfWayLeavesNothing()
{
    const QString source = copyOf(QStringLiteral("long.mp4"), QStringLiteral("long.mp4"));
    const QByteArray before = contentOf(source);
    standIn(QStringLiteral("exec $REAL -re \"$@\"")); // at the clip's own pace
    Conversion conversion(job(source, video(QStringLiteral("mkv"))));
    QStringList whileRunning;
    connect(&conversion, &Conversion::progressed, &conversion,
            [this, &conversion, &whileRunning](const Progress &progress) {
                if (progress.done > 0) {
                    whileRunning = everything();
                    conversion.cancel();
                }
            });
    QSignalSpy finished(&conversion, &Conversion::finished);
    const ConversionOutcome outcome = outcomeOf(conversion);
    QCOMPARE(outcome.result, ConversionOutcome::Cancelled);
    QCOMPARE(outcome.error, QString());
    QCOMPARE(whileRunning.size(), 2);
    QCOMPARE(everything(), names("long.mp4"));
    QCOMPARE(contentOf(source), before);
    QCOMPARE(finished.count(), 1);
}

void TestConversion::cancellingTheProbeLeavesNothing()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    Conversion conversion(job(source, video(QStringLiteral("mkv"))));
    QTimer::singleShot(0, &conversion, &Conversion::cancel);
    QCOMPARE(outcomeOf(conversion).result, ConversionOutcome::Cancelled);
    QCOMPARE(everything(), names("film.mp4"));
}

void TestConversion::destroyingARunningConversionLeavesNothing()
{
    const QString source = copyOf(QStringLiteral("long.mp4"), QStringLiteral("long.mp4"));
    standIn(QStringLiteral("exec $REAL -re \"$@\""));
    auto conversion = std::make_unique<Conversion>(job(source, video(QStringLiteral("mkv"))));
    QSignalSpy progressed(conversion.get(), &Conversion::progressed);
    conversion->start();
    QVERIFY(progressed.wait(patience));
    QCOMPARE(everything().size(), 2);
    conversion.reset();
    QCOMPARE(everything(), names("long.mp4"));
}

void TestConversion::aSourceThatIsNoMediaIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");

    QByteArray noise;
    for (int i = 0; i < 5000; ++i) {
        noise.append(char(i * i * 31 + i / 7));
    }
    const QString unreadable = QStringLiteral("cannot be read as media (");
    QTest::newRow("empty") << QByteArray() << unreadable;
    QTest::newRow("noise") << noise << unreadable;
    QTest::newRow("cut off before its index")
        << contentOf(m_clips->filePath(QStringLiteral("long.mp4")))
               .left(9000)
               .replace("moov", "xxxx")
        << unreadable;
}

void TestConversion::aSourceThatIsNoMediaIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    QFile file(path(QStringLiteral("clip.mp4")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();
    const ConversionOutcome outcome = convert(job(file.fileName(), video(QStringLiteral("mkv"))));
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QVERIFY2(outcome.error.startsWith(error), qPrintable(outcome.error));
    QVERIFY2(!outcome.error.contains(m_folder->path()), qPrintable(outcome.error));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::aPlaylistIsNotFollowed()
{
    QVERIFY(!copyOf(QStringLiteral("film.mp4"), QStringLiteral("other.mp4")).isEmpty());
    QFile list(path(QStringLiteral("holiday.mp4")));
    QVERIFY(list.open(QIODevice::WriteOnly));
    QVERIFY(list.write("ffconcat version 1.0\nfile other.mp4\n") > 0);
    list.close();
    const ConversionOutcome outcome = convert(job(list.fileName(), video(QStringLiteral("mkv"))));
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QCOMPARE(outcome.error, QStringLiteral("is a playlist; choose the files that it lists"));

    // Nor is one that takes the film's place after the look into it.
    const FfmpegArguments formed = FfmpegArguments::form(
        video(QStringLiteral("mkv")), MediaClips::factsOf(path(QStringLiteral("other.mp4"))),
        {QStringLiteral("libx264"), QStringLiteral("aac")}, list.fileName(),
        path(QStringLiteral("out.mkv")));
    QCOMPARE(formed.error, QString());
    QVERIFY(QProcess::execute(QStringLiteral("ffmpeg"), formed.arguments) != 0);
    QCOMPARE(everything(), names("holiday.mp4|other.mp4"));
}

void TestConversion::settingsThatNoFileCanHaveAreRefused_data()
{
    QTest::addColumn<OutputSettings>("settings");
    QTest::addColumn<QString>("error");
    const QString unknown =
        QStringLiteral("files of the kind \".%1\" can't be written; choose another preset");
    const QString longText(300, QLatin1Char('x'));
    QTest::newRow("long extension")
        << video(longText) << unknown.arg(longText.left(40) + QStringLiteral("..."));
    QTest::newRow("an extension that leaves the folder")
        << video(QStringLiteral("/../../mkv")) << unknown.arg(QStringLiteral("/../../mkv"));
    QTest::newRow("no extension") << video(QString()) << unknown.arg(QString());
    OutputSettings fast = video(QStringLiteral("mkv"));
    fast.frameRate = {1000000, 1};
    QTest::newRow("frame rate") << fast
                                << QStringLiteral("the preset's video.frameRate is 1000000; it "
                                                  "must be 0 or 1-300 fps; choose another preset");
}

void TestConversion::settingsThatNoFileCanHaveAreRefused()
{
    QFETCH(OutputSettings, settings);
    QFETCH(QString, error);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    Conversion conversion(job(source, settings));
    QSignalSpy finished(&conversion, &Conversion::finished);
    const ConversionOutcome outcome = outcomeOf(conversion);
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QCOMPARE(outcome.error, error);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::aFolderThatCannotBeWrittenIsRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("a file") << QStringLiteral("clip.mp4");
    QTest::newRow("inside a file") << QStringLiteral("clip.mp4/inside");
}

void TestConversion::aFolderThatCannotBeWrittenIsRefused()
{
    QFETCH(QString, folder);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    ConversionJob elsewhere = job(source, video(QStringLiteral("mkv")));
    elsewhere.folder = path(folder);
    const ConversionOutcome outcome = convert(elsewhere);
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QCOMPARE(outcome.error, QStringLiteral("the folder %1 doesn't exist; make it or choose another "
                                           "one")
                                .arg(path(folder)));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::aFullDiskLeavesNothing_data()
{
    QTest::addColumn<QString>("script");
    // As ffmpeg ends when the disk is full, in the middle and at the end.
    QTest::newRow("in the middle") << QStringLiteral(
        "for last; do :; done; echo half > \"${last#file:}\"\n"
        "echo 'av_interleaved_write_frame(): No space left on device' >&2; exit 1");
    QTest::newRow("at the end, with exit code 0") << QStringLiteral(
        "for last; do :; done; echo half > \"${last#file:}\"\n"
        "echo \"Error writing trailer of $last: No space left on device\" >&2; exit 0");
}

void TestConversion::aFullDiskLeavesNothing()
{
    QFETCH(QString, script);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    standIn(script);
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QCOMPARE(outcome.error, QStringLiteral("the disk with %1 is full; free some space or choose "
                                           "another folder")
                                .arg(m_folder->path()));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::aFailingFfmpegLeavesNothing_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("reason");
    QTest::newRow("file too large, from ffmpeg itself")
        << QStringLiteral("trap '' XFSZ; ulimit -f 8; exec $REAL \"$@\"")
        << QStringLiteral("File too large");
    QTest::newRow("exit code") << QStringLiteral("echo '[libx264 @ 0x55d] bad option' >&2; exit 1")
                               << QStringLiteral("(bad option)");
    QTest::newRow("killed") << QStringLiteral("kill -9 $$")
                            << QStringLiteral("(ffmpeg stopped without saying why)");
    QTest::newRow("trailer lost, with exit code 0")
        << QStringLiteral("echo 'Error writing trailer of x: Input/output error' >&2; exit 0")
        << QStringLiteral("Input/output error");
    QTest::newRow("wrote nothing, with exit code 0")
        << QStringLiteral("exit 0") << QStringLiteral("can't be played");
    QTest::newRow("wrote only sound")
        << QStringLiteral("for last; do :; done; exec $REAL -v error -y -f lavfi -i "
                          "sine=duration=1 -f matroska "
                          "\"$last\"")
        << QStringLiteral("can't be played");
}

void TestConversion::aFailingFfmpegLeavesNothing()
{
    QFETCH(QString, script);
    QFETCH(QString, reason);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    standIn(script);
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QVERIFY2(outcome.error.contains(reason), qPrintable(outcome.error));
    QVERIFY2(!outcome.error.contains(QLatin1Char('\n')), qPrintable(outcome.error));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::aMissingEncoderIsNamed()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QFile tool(m_tools->filePath(QStringLiteral("ffmpeg")));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    tool.write("#!/bin/sh\necho ' ------'\necho ' A....D aac  AAC'\n");
    tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    tool.close();
    qputenv("PATH", MediaClips::pathWith(m_tools->path()));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.videoCodec = QStringLiteral("hevc");
    const ConversionOutcome outcome = convert(job(source, settings));
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QVERIFY2(outcome.error.startsWith(QStringLiteral("needs the encoder libx265 for hevc")),
             qPrintable(outcome.error));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversion::withoutTheToolsItSaysWhatToInstall_data()
{
    QTest::addColumn<bool>("hasProbe");
    QTest::addColumn<QString>("missing");
    QTest::newRow("neither") << false << QStringLiteral("ffprobe");
    QTest::newRow("only ffprobe") << true << QStringLiteral("ffmpeg");
}

void TestConversion::withoutTheToolsItSaysWhatToInstall()
{
    QFETCH(bool, hasProbe);
    QFETCH(QString, missing);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    if (hasProbe) {
        QVERIFY(QFile::link(QStandardPaths::findExecutable(QStringLiteral("ffprobe")),
                            m_tools->filePath(QStringLiteral("ffprobe"))));
    }
    qputenv("PATH", m_tools->path().toLocal8Bit());
    const ConversionOutcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QCOMPARE(outcome.result, ConversionOutcome::Failed);
    QCOMPARE(outcome.error, QStringLiteral("%1 is not on the PATH; install ffmpeg (Debian: apt-get "
                                           "install ffmpeg) and try again")
                                .arg(missing));
    QCOMPARE(everything(), names("clip.mp4"));
}

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
