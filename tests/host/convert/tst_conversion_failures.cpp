#include "host/convert/ffmpegarguments.h"
#include "tests/host/convert/conversiontest.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"
#include "tests/support/testfiles.h"

/*! Whatever goes wrong, nothing half-written is left. */
class TestConversionFailures : public ConversionTest
{
    Q_OBJECT

private Q_SLOTS:
    void cancellingHalfWayLeavesNothing();
    void cancellingTheProbeLeavesNothing();
    void cancellingTheListOfEncodersLeavesNothing();
    void cancellingTheCheckOfTheResultLeavesNothing();
    void aCancelledConversionCanBeStartedAgain();
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
    void whatFfmpegSaysIsPutInPlainWords_data();
    void whatFfmpegSaysIsPutInPlainWords();
    void aMissingEncoderIsNamed();
    void anFfmpegThatListsNoEncodersIsToBeChecked();
    void withoutTheToolsItSaysWhatToInstall_data();
    void withoutTheToolsItSaysWhatToInstall();
};

void TestConversionFailures::cancellingHalfWayLeavesNothing()
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
    const Outcome outcome = outcomeOf(conversion);
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Cancelled);
    QCOMPARE(whileRunning.size(), 2);
    QCOMPARE(everything(), names("long.mp4"));
    QCOMPARE(contentOf(source), before);
    QCOMPARE(finished.count(), 1);
}

void TestConversionFailures::cancellingTheProbeLeavesNothing()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    Conversion conversion(job(source, video(QStringLiteral("mkv"))));
    QTimer::singleShot(0, &conversion, &Conversion::cancel);
    QCOMPARE(outcomeOf(conversion).error().kind, Error::Cancelled);
    QCOMPARE(everything(), names("film.mp4"));
}

void TestConversionFailures::cancellingTheListOfEncodersLeavesNothing()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    // Whatever it is asked, ffmpeg says that it is there and hangs.
    const QString sign = m_tools->filePath(QStringLiteral("sign"));
    writeTool(QStringLiteral("ffmpeg"), QStringLiteral("touch '%1'; exec sleep 600").arg(sign));
    Conversion conversion(job(source, video(QStringLiteral("mkv"))));
    cancelOnce(conversion, sign);
    QCOMPARE(outcomeOf(conversion).error().kind, Error::Cancelled);
    QCOMPARE(everything(), names("film.mp4"));
}

void TestConversionFailures::cancellingTheCheckOfTheResultLeavesNothing()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    // The result can't be read, so that ffprobe is asked why, which hangs.
    const QString sign = m_tools->filePath(QStringLiteral("sign"));
    standIn(QStringLiteral("for last; do :; done\n"
                           "case $last in */part) echo no film > \"${last#file:}\"; exit;; esac\n"
                           "exec $REAL \"$@\""));
    standIn(QStringLiteral("touch '%1'; exec sleep 600").arg(sign), QStringLiteral("ffprobe"));
    Conversion conversion(job(source, video(QStringLiteral("mkv"))));
    cancelOnce(conversion, sign);
    QCOMPARE(outcomeOf(conversion).error().kind, Error::Cancelled);
    QCOMPARE(everything(), names("film.mp4"));
}

void TestConversionFailures::aCancelledConversionCanBeStartedAgain()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("film.mp4"));
    Conversion conversion(job(source, video(QStringLiteral("mkv"))));
    QTimer::singleShot(0, &conversion, &Conversion::cancel);
    QCOMPARE(outcomeOf(conversion).error().kind, Error::Cancelled);
    const Outcome outcome = outcomeOf(conversion);
    QCOMPARE(errorOf(outcome), QString());
    QCOMPARE(outcome->target, path(QStringLiteral("film.mkv")));
}

void TestConversionFailures::destroyingARunningConversionLeavesNothing()
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

void TestConversionFailures::aSourceThatIsNoMediaIsRefused_data()
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

void TestConversionFailures::aSourceThatIsNoMediaIsRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    QFile file(path(QStringLiteral("clip.mp4")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    file.close();
    const Outcome outcome = convert(job(file.fileName(), video(QStringLiteral("mkv"))));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QVERIFY2(errorOf(outcome).startsWith(error), qPrintable(errorOf(outcome)));
    QVERIFY2(!errorOf(outcome).contains(m_folder->path()), qPrintable(errorOf(outcome)));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::aPlaylistIsNotFollowed()
{
    QVERIFY(!copyOf(QStringLiteral("film.mp4"), QStringLiteral("other.mp4")).isEmpty());
    QFile list(path(QStringLiteral("holiday.mp4")));
    QVERIFY(list.open(QIODevice::WriteOnly));
    QVERIFY(list.write("ffconcat version 1.0\nfile other.mp4\n") > 0);
    list.close();
    const Outcome outcome = convert(job(list.fileName(), video(QStringLiteral("mkv"))));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QCOMPARE(errorOf(outcome), QStringLiteral("is a playlist; choose the files that it lists"));

    // Nor is one that takes the film's place after the look into it.
    const Result<QStringList> formed = ffmpegArguments(
        video(QStringLiteral("mkv")), MediaClips::factsOf(path(QStringLiteral("other.mp4"))),
        {QStringLiteral("libx264"), QStringLiteral("aac")}, list.fileName(),
        path(QStringLiteral("out.mkv")));
    QVERIFY(formed);
    const ToolCall call = ffmpegCall(*formed);
    QVERIFY(QProcess::execute(call.program, call.arguments) != 0);
    QCOMPARE(everything(), names("holiday.mp4|other.mp4"));
}

void TestConversionFailures::settingsThatNoFileCanHaveAreRefused_data()
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

void TestConversionFailures::settingsThatNoFileCanHaveAreRefused()
{
    QFETCH(OutputSettings, settings);
    QFETCH(QString, error);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    Conversion conversion(job(source, settings));
    QSignalSpy finished(&conversion, &Conversion::finished);
    const Outcome outcome = outcomeOf(conversion);
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QCOMPARE(errorOf(outcome), error);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::aFolderThatCannotBeWrittenIsRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("a file") << QStringLiteral("clip.mp4");
    QTest::newRow("inside a file") << QStringLiteral("clip.mp4/inside");
}

void TestConversionFailures::aFolderThatCannotBeWrittenIsRefused()
{
    QFETCH(QString, folder);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    ConversionJob elsewhere = job(source, video(QStringLiteral("mkv")));
    elsewhere.target.folder = path(folder);
    const Outcome outcome = convert(elsewhere);
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QCOMPARE(errorOf(outcome),
             QStringLiteral("the folder %1 doesn't exist; make it or choose another "
                            "one")
                 .arg(path(folder)));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::aFullDiskLeavesNothing_data()
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

void TestConversionFailures::aFullDiskLeavesNothing()
{
    QFETCH(QString, script);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    standIn(script);
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QCOMPARE(errorOf(outcome), QStringLiteral("the disk with %1 is full; free some space or choose "
                                              "another folder")
                                   .arg(m_folder->path()));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::aFailingFfmpegLeavesNothing_data()
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
    QTest::newRow("not closed, with exit code 0")
        << QStringLiteral("$REAL \"$@\"; echo 'Error closing file x: Input/output error' >&2")
        << QStringLiteral("Input/output error");
    QTest::newRow("wrote nothing, with exit code 0")
        << QStringLiteral("exit 0") << QStringLiteral("can't be played");
    QTest::newRow("wrote only sound")
        << QStringLiteral("for last; do :; done; exec $REAL -v error -y -f lavfi -i "
                          "sine=duration=1 -f matroska "
                          "\"$last\"")
        << QStringLiteral("can't be played");
}

void TestConversionFailures::aFailingFfmpegLeavesNothing()
{
    QFETCH(QString, script);
    QFETCH(QString, reason);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    standIn(script);
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QVERIFY2(errorOf(outcome).contains(reason), qPrintable(errorOf(outcome)));
    QVERIFY2(!errorOf(outcome).contains(QLatin1Char('\n')), qPrintable(errorOf(outcome)));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::whatFfmpegSaysIsPutInPlainWords_data()
{
    QTest::addColumn<QString>("said");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *said, const char *words) {
        QTest::newRow(said) << QString::fromLatin1(said) << QString::fromLatin1(words);
    };
    row("[AVFilterGraph @ 0x55d] No such filter: 'zscale'",
        "its video is HDR, and this ffmpeg can't map that to ordinary colours; install an ffmpeg "
        "with zscale and tonemap");
    row("[matroska @ 0x55d] Can't write packet with unknown timestamp",
        "the source doesn't say when its frames are shown");
    row("[mp4 @ 0x55d] Application provided invalid, non monotonically increasing dts to muxer",
        "the source doesn't say when its frames are shown");
    row("[mp4 @ 0x55d] Could not find tag for codec pcm_s16le in stream #1",
        "this kind of file can't hold one of the streams");
    row("Could not write header for output file #0 (incorrect codec parameters ?)",
        "this kind of file can't hold one of the streams");
    row("Error while opening encoder for output stream #0:1 - maybe incorrect parameters such as "
        "bit_rate, rate, width or height",
        "the encoder refuses these settings");
    row("Specified sample rate 7 is not supported", "Specified sample rate 7 is not supported");
}

void TestConversionFailures::whatFfmpegSaysIsPutInPlainWords()
{
    QFETCH(QString, said);
    QFETCH(QString, words);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    standIn(QStringLiteral("echo \"%1\" >&2; exit 1").arg(said));
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QVERIFY(!outcome);
    QVERIFY2(errorOf(outcome).contains(QLatin1Char('(') + words + QLatin1Char(')')),
             qPrintable(errorOf(outcome)));
}

void TestConversionFailures::aMissingEncoderIsNamed()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    writeTool(QStringLiteral("ffmpeg"),
              QStringLiteral("echo ' ------'\necho ' A....D aac  AAC'\n"));
    OutputSettings settings = video(QStringLiteral("mp4"));
    settings.videoCodec = QStringLiteral("hevc");
    const Outcome outcome = convert(job(source, settings));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::EncoderMissing);
    QVERIFY2(errorOf(outcome).startsWith(QStringLiteral("needs the encoder libx265 for hevc")),
             qPrintable(errorOf(outcome)));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::anFfmpegThatListsNoEncodersIsToBeChecked()
{
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    writeTool(QStringLiteral("ffmpeg"), QStringLiteral("echo 'no such library' >&2; exit 127"));
    const Outcome outcome = convert(job(source, video(QStringLiteral("mp4"))));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QCOMPARE(errorOf(outcome),
             QStringLiteral("ffmpeg doesn't list its encoders (no such library); check that "
                            "\"ffmpeg -encoders\" works, or install another ffmpeg"));
    QCOMPARE(everything(), names("clip.mp4"));
}

void TestConversionFailures::withoutTheToolsItSaysWhatToInstall_data()
{
    QTest::addColumn<bool>("isFilm");
    QTest::addColumn<QString>("missing");
    QTest::newRow("ffmpeg") << true << QStringLiteral("ffmpeg");
    QTest::newRow("ffprobe, which says why a file can't be read")
        << false << QStringLiteral("ffprobe");
}

void TestConversionFailures::withoutTheToolsItSaysWhatToInstall()
{
    QFETCH(bool, isFilm);
    QFETCH(QString, missing);
    const QString source = copyOf(QStringLiteral("film.mp4"), QStringLiteral("clip.mp4"));
    QVERIFY(isFilm || writeFile(source, "no film"));
    qputenv("PATH", m_tools->path().toLocal8Bit());
    const Outcome outcome = convert(job(source, video(QStringLiteral("mkv"))));
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().kind, Error::Failed);
    QCOMPARE(errorOf(outcome),
             QStringLiteral("%1 is not on the PATH; install ffmpeg (Debian: apt-get "
                            "install ffmpeg) and try again")
                 .arg(missing));
    QCOMPARE(everything(), names("clip.mp4"));
}

QTEST_GUILESS_MAIN(TestConversionFailures)
#include "tst_conversion_failures.moc"
