#include "tests/host/window/pagetest.h"

#include "tests/support/testfiles.h"

/*! Which tracks of a file a user of a page keeps. The film has three audio tracks and two subtitle
 *  tracks, the first ones default. */
class TestTaskTracks : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aLineSaysWhatATrackIs();
    void everyTrackIsKeptUntilOneIsDropped();
    void aDroppedTrackIsNoLongerTheDefaultOne();
    void theDefaultTrackIsKept();
    void burntInSubtitlesAreNoTrackAsWell();
    void whatTheFormatLeavesOutIsMarked();
    void theConversionWritesTheChosenTracks();
    void aConvertedTaskBecomesReadyAgain();
    void theChoiceIsThereAfterARestart();

private:
    QUrl film();
    QString lines(int id, TaskTracks::Kind kind);
    TaskTracks &tracks() { return *m_converter->tracks(); }
};

QUrl TestTaskTracks::film()
{
    const QString words = m_files->filePath(QStringLiteral("words.srt"));
    const QString path = m_files->filePath(QStringLiteral("film.mkv"));
    const bool isMade =
        writeFile(words, "1\n00:00:00,000 --> 00:00:01,000\nHello\n") &&
        MediaClips::make(
            path, QStringLiteral(
                      "-f lavfi -i color=black:size=320x240:rate=25:duration=1 "
                      "-f lavfi -i sine=duration=1 -i %1 -map 0 -map 1 -map 1 -map 1 -map 2 "
                      "-map 2 -c:v libx264 -preset ultrafast -pix_fmt yuv420p -c:a aac -ac:a:0 6 "
                      "-c:s srt -metadata:s:a:0 language=eng -metadata:s:a:1 language=ger "
                      "-metadata:s:a:1 title=Comment -metadata:s:s:0 language=tlh "
                      "-disposition:a:0 default -disposition:a:1 0 -disposition:a:2 0 "
                      "-disposition:s:0 default -disposition:s:1 forced")
                      .arg(words));
    return isMade ? QUrl::fromLocalFile(path) : QUrl();
}

/*! A letter for each track: kept, default in upper case, dropped "-", burnt in "!". */
QString TestTaskTracks::lines(int id, TaskTracks::Kind kind)
{
    QString text;
    const QVariantList all = tracks().lines(id, kind, {}, {}, {});
    for (const QVariant &value : all) {
        const auto line = value.value<TrackLine>();
        text += QLatin1Char(line.isBurned ? '!' : !line.isKept ? '-' : line.isDefault ? 'K' : 'k');
        text += line.remark.isEmpty() ? QString() : QStringLiteral("(%1)").arg(line.remark);
    }
    return text;
}

void TestTaskTracks::aLineSaysWhatATrackIs()
{
    const int id = addReady(*m_converter, film());
    QStringList texts;
    for (const TaskTracks::Kind kind : {TaskTracks::Audio, TaskTracks::Subtitles}) {
        const QVariantList all = tracks().lines(id, kind, {}, {}, {});
        for (const QVariant &line : all) {
            texts << line.value<TrackLine>().text;
        }
    }
    QCOMPARE(texts,
             (QStringList{QStringLiteral("1.  English  ·  aac, 5.1"),
                          QStringLiteral("2.  Deutsch  ·  aac, mono  ·  Comment"),
                          QStringLiteral("3.  aac, mono"), QStringLiteral("1.  Tlh  ·  subrip"),
                          QStringLiteral("2.  subrip, forced")}));
    QVERIFY(tracks().lines(id + 1, TaskTracks::Audio, {}, {}, {}).isEmpty());
}

void TestTaskTracks::everyTrackIsKeptUntilOneIsDropped()
{
    const int id = addReady(*m_converter, film());
    m_converter->useFormat(id, mkv);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("Kkk"));
    tracks().keep(id, TaskTracks::Audio, 2, false);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("K-k"));
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("Kk"));
    tracks().keep(id, TaskTracks::Audio, 1, false);
    tracks().keep(id, TaskTracks::Audio, 3, false);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("---"));
    for (int number = 1; number <= 3; ++number) {
        tracks().keep(id, TaskTracks::Audio, number, true);
    }
    QVERIFY(task(*m_converter, id).tracks.audio == TrackChoice());
}

void TestTaskTracks::aDroppedTrackIsNoLongerTheDefaultOne()
{
    const int id = addReady(*m_converter, film());
    m_converter->useFormat(id, mkv);
    tracks().setDefault(id, TaskTracks::Audio, 3);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("kkK"));
    tracks().keep(id, TaskTracks::Audio, 3, false);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("Kk-"));
}

void TestTaskTracks::theDefaultTrackIsKept()
{
    const int id = addReady(*m_converter, film());
    m_converter->useFormat(id, mkv);
    tracks().keep(id, TaskTracks::Subtitles, 2, false);
    tracks().setDefault(id, TaskTracks::Subtitles, 2);
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("kK"));
    tracks().setDefault(id, TaskTracks::Subtitles, 0);
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("kk"));
}

void TestTaskTracks::burntInSubtitlesAreNoTrackAsWell()
{
    const int id = addReady(*m_converter, film());
    m_converter->useFormat(id, mkv);
    tracks().burn(id, 1);
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("!k"));
    QCOMPARE(task(*m_converter, id).tracks.subtitles.text(), QStringLiteral("2"));
    tracks().burn(id, 2);
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("K!"));
    tracks().burn(id, 0);
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("Kk"));
}

void TestTaskTracks::whatTheFormatLeavesOutIsMarked()
{
    const int id = addReady(*m_converter, film());
    m_converter->useFormat(id, mp3);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("Kk(not in .mp3)k(not in .mp3)"));
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("K(not in .mp3)k(not in .mp3)"));
    tracks().setDefault(id, TaskTracks::Audio, 3);
    tracks().burn(id, 1);
    QCOMPARE(lines(id, TaskTracks::Audio), QStringLiteral("k(not in .mp3)k(not in .mp3)K"));
    QCOMPARE(lines(id, TaskTracks::Subtitles), QStringLiteral("!(not in .mp3)k(not in .mp3)"));
}

void TestTaskTracks::theConversionWritesTheChosenTracks()
{
    const int id = addReady(*m_converter, film());
    m_converter->useFormat(id, mkv);
    tracks().keep(id, TaskTracks::Audio, 3, false);
    tracks().setDefault(id, TaskTracks::Audio, 2);
    tracks().burn(id, 2);
    m_converter->convert(id);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    const MediaFacts facts = MediaClips::factsOf(task(*m_converter, id).target);
    QCOMPARE(facts.audioTracks.size(), 2);
    QCOMPARE(facts.audioTracks.at(0).language, QStringLiteral("eng"));
    QVERIFY(!facts.audioTracks.at(0).isDefault);
    QCOMPARE(facts.audioTracks.at(1).language, QStringLiteral("ger"));
    QVERIFY(facts.audioTracks.at(1).isDefault);
    QCOMPARE(facts.subtitleTracks.size(), 1);
    QCOMPARE(facts.subtitleTracks.at(0).language, QStringLiteral("tlh"));
}

void TestTaskTracks::aConvertedTaskBecomesReadyAgain()
{
    const int id = addReady(*m_converter, film());
    m_converter->convert(id);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    tracks().keep(id, TaskTracks::Audio, 1, false);
    QCOMPARE(task(*m_converter, id).state, Task::Ready);
}

void TestTaskTracks::theChoiceIsThereAfterARestart()
{
    const int id = addReady(*m_converter, film());
    tracks().keep(id, TaskTracks::Audio, 1, false);
    tracks().burn(id, 2);
    m_editor->restore(m_converter->kept());
    const Task &restored = m_editor->tasks()->tasks().constFirst();
    QVERIFY(restored.tracks.audio == task(*m_converter, id).tracks.audio);
    QVERIFY(restored.tracks.subtitles == task(*m_converter, id).tracks.subtitles);
    QCOMPARE(restored.tracks.burnedSubtitles, 2);
}

QTEST_MAIN(TestTaskTracks)
#include "tst_tasktracks.moc"
