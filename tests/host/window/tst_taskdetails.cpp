#include "tests/host/window/listviewtest.h"

#include "tests/support/mediaclips.h"
#include "tests/support/testfiles.h"

using namespace WindowUser;

/*! The tracks that a row shows when it is open. Its file has two audio tracks and two subtitle
 *  tracks. */
class TestTaskDetails : public ListViewTest
{
    Q_OBJECT

private Q_SLOTS:
    void theKeysOpenAndCloseARow_data();
    void theKeysOpenAndCloseARow();
    void theButtonAndTheMenuOpenARow();
    void aBoxDropsATrackAndStaysFocused();
    void aRowThatClosesTakesTheFocusOfItsBoxes();
    void everyControlIsReachedWithTheTabKey();
    void whatTheFormatLeavesOutIsSaid();
    void aLongTitleIsShownWhole();

private:
    const Task &addFilm();
    bool isShown(const QString &name) const
    {
        return !itemsNamed(m_window->contentItem(), name).isEmpty();
    }
    const Task &task() const { return page().tasks()->tasks().constLast(); }

    const QString m_german = QStringLiteral("2.  Deutsch  ·  aac, mono");
};

const Task &TestTaskDetails::addFilm()
{
    page().remove(page().idAt(0));
    page().remove(page().idAt(0));
    page().remove(page().idAt(0));
    page().offer()->dismiss();
    page().setConverterGlobalFormat(QStringLiteral("Video_MKV_001"));
    const QString film = m_work.filePath(QStringLiteral("film.mkv"));
    if (!QFile::exists(film)) {
        const QString words = m_work.filePath(QStringLiteral("words.srt"));
        [&] {
            QVERIFY(writeFile(words, "1\n00:00:00,000 --> 00:00:01,000\nHello\n"));
            QVERIFY(MediaClips::make(
                film, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 "
                                     "-f lavfi -i sine=duration=1 -i %1 -map 0 -map 1 -map 1 "
                                     "-map 2 -map 2 -c:v libx264 -preset ultrafast -c:a aac "
                                     "-c:s srt -metadata:s:a:0 language=eng "
                                     "-metadata:s:a:1 language=ger -metadata:s:s:1 title=%2")
                          .arg(words, QString(200, QLatin1Char('w')))));
        }();
    }
    page().addPaths({film});
    [&] { QTRY_COMPARE_WITH_TIMEOUT(task().state, Task::Ready, patience); }();
    clickRow("film.mkv");
    return task();
}

void TestTaskDetails::theKeysOpenAndCloseARow_data()
{
    QTest::addColumn<int>("open");
    QTest::addColumn<int>("close");
    QTest::newRow("Space") << int(Qt::Key_Space) << int(Qt::Key_Space);
    QTest::newRow("Right and Left") << int(Qt::Key_Right) << int(Qt::Key_Left);
}

void TestTaskDetails::theKeysOpenAndCloseARow()
{
    QFETCH(int, open);
    QFETCH(int, close);
    addFilm();
    QVERIFY(!isShown(m_german));
    const qreal closed = row("film.mkv")->height();
    QTest::keyClick(m_window, Qt::Key(open));
    QTRY_VERIFY(isShown(m_german));
    QVERIFY(row("film.mkv")->height() > closed + 100);
    QTest::keyClick(m_window, Qt::Key(close));
    QTRY_VERIFY(!isShown(m_german));
    QCOMPARE(row("film.mkv")->height(), closed);
}

void TestTaskDetails::theButtonAndTheMenuOpenARow()
{
    addFilm();
    QVERIFY(click(m_window, QStringLiteral("Show tracks")));
    QTRY_VERIFY(isShown(m_german));
    clickRow("film.mkv", {}, Qt::RightButton);
    choose(QStringLiteral("Hide tracks"));
    QTRY_VERIFY(!isShown(m_german));
}

void TestTaskDetails::aBoxDropsATrackAndStaysFocused()
{
    addFilm();
    QTest::keyClick(m_window, Qt::Key_Right);
    QVERIFY(click(m_window, m_german));
    QTRY_COMPARE(task().tracks.audio.text(), QStringLiteral("1"));
    const QQuickItem *box = m_window->activeFocusItem();
    QCOMPARE(nameOf(m_window->activeFocusItem()), m_german);
    QTest::keyClick(m_window, Qt::Key_Space);
    QCOMPARE(task().tracks.audio.text(), QStringLiteral("all"));
    QCOMPARE(m_window->activeFocusItem(), box);
    QVERIFY(click(m_window, QStringLiteral("Default track: ") + m_german));
    QTRY_COMPARE(task().tracks.audio.text(), QStringLiteral("1,2/2"));
    QVERIFY(click(m_window, QStringLiteral("Burn in: 1.  subrip")));
    QTRY_COMPARE(task().tracks.burnedSubtitles, 1);
    QCOMPARE(task().tracks.subtitles.text(), QStringLiteral("2"));
}

void TestTaskDetails::aRowThatClosesTakesTheFocusOfItsBoxes()
{
    addFilm();
    QTest::keyClick(m_window, Qt::Key_Right);
    QVERIFY(click(m_window, m_german));
    QTRY_COMPARE(nameOf(m_window->activeFocusItem()), m_german);
    QVERIFY(click(m_window, QStringLiteral("Hide tracks")));
    QTRY_COMPARE(m_window->activeFocusItem(), row("film.mkv"));
}

void TestTaskDetails::everyControlIsReachedWithTheTabKey()
{
    addFilm();
    QTest::keyClick(m_window, Qt::Key_Right);
    QTRY_VERIFY(isShown(m_german));
    QStringList reached;
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(m_window, Qt::Key_Tab);
        reached << nameOf(m_window->activeFocusItem());
    }
    for (const QString &name :
         {QStringLiteral("Hide tracks"), m_german, QStringLiteral("Default track: ") + m_german,
          QStringLiteral("1.  subrip"), QStringLiteral("Burn in: 1.  subrip"),
          QStringLiteral("Default track: 1.  subrip")}) {
        QVERIFY2(reached.contains(name), qPrintable(name));
    }
}

void TestTaskDetails::whatTheFormatLeavesOutIsSaid()
{
    addFilm();
    QTest::keyClick(m_window, Qt::Key_Right);
    QTRY_VERIFY(isShown(m_german));
    page().useFormat(task().id, QStringLiteral("Audio_MP3_003"));
    QTRY_VERIFY(isShown(m_german + QStringLiteral(", not in .mp3")));
    // As the command line says it.
    QTRY_VERIFY(
        isShown(QStringLiteral("left out: 1 of 2 audio tracks (.mp3 holds 1, .mka holds all)")));
}

void TestTaskDetails::aLongTitleIsShownWhole()
{
    addFilm();
    QTest::keyClick(m_window, Qt::Key_Right);
    const QString title = QStringLiteral("2.  subrip  ·  ") + QString(200, QLatin1Char('w'));
    QTRY_VERIFY(isShown(title));
    const QQuickItem *box = itemsNamed(m_window->contentItem(), title).constFirst();
    const auto *text = box->property("contentItem").value<QQuickItem *>();
    QVERIFY(!text->property("truncated").toBool());
    QVERIFY(text->implicitHeight() <= box->height());
    QVERIFY(text->property("contentWidth").toReal() <= text->width());
}

QTEST_MAIN(TestTaskDetails)
#include "tst_taskdetails.moc"
