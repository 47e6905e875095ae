#include "tests/host/convert/conversiontest.h"
#include "tests/support/mediaclips.h"
#include "tests/support/testfiles.h"

#include <algorithm>

/*! What of a film with three audio tracks and two subtitle tracks arrives, if only some are
 *  chosen. */
class TestConversionTracks : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void exactlyTheChosenTracksArrive_data();
    void exactlyTheChosenTracksArrive();
    void theBurntInSubtitlesAreInThePicture();
    void aTrackThatIsNotThereIsRefused();

private:
    /*! Their languages, "?" where it isn't told, the default ones with a star. */
    template <typename AnyTrack>
    static QString textOf(const QVector<AnyTrack> &tracks)
    {
        QStringList names;
        for (const AnyTrack &track : tracks) {
            const QString language =
                track.language.isEmpty() ? QStringLiteral("?") : track.language;
            names << language + (track.isDefault ? QStringLiteral("*") : QString());
        }
        return names.join(QLatin1Char(' '));
    }
    static TrackChoice choice(const char *text)
    {
        return *TrackChoice::fromText(QString::fromLatin1(text));
    }

    /*! Makes the film and returns its path. */
    QString film() const;
};

QString TestConversionTracks::film() const
{
    const QString made = path(QStringLiteral("rich.mkv"));
    const QString words = path(QStringLiteral("words.srt"));
    const bool isMade =
        writeFile(words, "1\n00:00:00,000 --> 00:00:01,000\nHELLO WORLD\n") &&
        MediaClips::make(
            made,
            QStringLiteral("-f lavfi -i color=black:size=320x240:rate=25:duration=1 "
                           "-f lavfi -i sine=duration=1 -i %1 -map 0 -map 1 -map 1 -map 1 -map 2 "
                           "-map 2 -c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac "
                           "-c:s srt -metadata:s:a:0 language=eng -metadata:s:a:1 language=ger "
                           "-metadata:s:a:2 language=fre -metadata:s:s:0 language=eng "
                           "-metadata:s:s:1 language=ger -disposition:a:0 default+original "
                           "-disposition:a:1 0 -disposition:a:2 0 -disposition:s:0 default "
                           "-disposition:s:1 0")
                .arg(words));
    return isMade ? made : QString();
}

void TestConversionTracks::exactlyTheChosenTracksArrive_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("audio");
    QTest::addColumn<QString>("subtitles");
    QTest::addColumn<QString>("audioThere");
    QTest::addColumn<QString>("subtitlesThere");
    const auto row = [](const char *name, const char *extension, const char *audio,
                        const char *subtitles, const char *audioThere, const char *subtitlesThere) {
        QTest::newRow(name) << QString::fromLatin1(extension) << QString::fromLatin1(audio)
                            << QString::fromLatin1(subtitles) << QString::fromLatin1(audioThere)
                            << QString::fromLatin1(subtitlesThere);
    };
    row("as in the source", "mkv", "all", "all", "eng* ger fre", "eng* ger");
    row("some in mkv", "mkv", "1,3/3", "2/2", "eng fre*", "ger*");
    row("some in mp4", "mp4", "1,3/3", "2/2", "eng fre*", "ger*");
    row("no default subtitles", "mkv", "2,3/2", "1,2/0", "ger* fre", "eng ger");
    row("one where one is held", "flv", "1,3/3", "none", "?", "");
    row("none", "mkv", "none", "none", "", "");
}

void TestConversionTracks::exactlyTheChosenTracksArrive()
{
    QFETCH(QString, extension);
    QFETCH(QString, audio);
    QFETCH(QString, subtitles);
    OutputSettings settings = video(extension);
    settings.audioTracks = choice(qPrintable(audio));
    settings.subtitles = choice(qPrintable(subtitles));
    const Outcome outcome = convert(job(film(), settings));
    QCOMPARE(errorOf(outcome), QString());
    QTEST(textOf(outcome->facts.audioTracks), "audioThere");
    QTEST(textOf(outcome->facts.subtitleTracks), "subtitlesThere");
}

void TestConversionTracks::theBurntInSubtitlesAreInThePicture()
{
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.subtitles = choice("1");
    settings.burnedSubtitles = 2;
    const auto brightest = [this](const QString &film) {
        const QString picture = path(QStringLiteral("frame.gray"));
        const bool isMade = MediaClips::make(
            picture,
            QStringLiteral("-y -ss 0.5 -i %1 -frames:v 1 -pix_fmt gray -f rawvideo").arg(film));
        const QByteArray pixels = isMade ? contentOf(picture) : QByteArray();
        const auto isDarker = [](char one, char other) { return uchar(one) < uchar(other); };
        const auto found = std::max_element(pixels.begin(), pixels.end(), isDarker);
        return found == pixels.end() ? -1 : int(uchar(*found));
    };
    const Outcome outcome = convert(job(film(), settings));
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(textOf(outcome->facts.subtitleTracks), QStringLiteral("eng*"));
    const int before = brightest(film());
    QVERIFY(before >= 0 && before < 50);
    QVERIFY(brightest(outcome->target) > 150);
}

void TestConversionTracks::aTrackThatIsNotThereIsRefused()
{
    OutputSettings settings = video(QStringLiteral("mkv"));
    settings.audioTracks = choice("1,4");
    QCOMPARE(errorOf(convert(job(film(), settings))),
             QStringLiteral("has 3 audio tracks, so no number 4; choose another one"));
    settings.audioTracks = {};
    settings.subtitles = choice("3");
    QCOMPARE(errorOf(convert(job(film(), settings))),
             QStringLiteral("has 2 subtitle tracks, so no number 3; choose another one"));
    OutputSettings sound = audio(QStringLiteral("mp3"));
    sound.audioTracks = choice("none");
    QCOMPARE(errorOf(convert(job(film(), sound))),
             QStringLiteral("none of its audio tracks is kept; keep one"));
}

QTEST_GUILESS_MAIN(TestConversionTracks)
#include "tst_conversion_tracks.moc"
