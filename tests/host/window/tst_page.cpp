#include "tests/host/window/pagetest.h"
#include "tests/support/testfiles.h"

#include <csignal>

/*! What a page reads of its files. */
class TestPage : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsReadAndGetsTheThumbnailAskedFor();
    void aFoldersMediaFilesAreAdded();
    void aFolderWithoutMediaIsNamed();
    void aFileThatIsNotMediaFailsAndTheOthersGoOn();
    void factsThatArriveLateDoNotChangeTheState();
    void removingAHangingFileLetsTheNextOneBeRead_data();
    void removingAHangingFileLetsTheNextOneBeRead();
};

void TestPage::aFileIsReadAndGetsTheThumbnailAskedFor()
{
    const QString path = m_files->filePath(QStringLiteral("film.mp4"));
    QVERIFY(MediaClips::makeFilm(path));
    m_converter->addFiles({QUrl::fromLocalFile(path)});
    const int id = m_converter->tasks()->tasks().constFirst().id;
    QCOMPARE(task(*m_converter, id).state, Task::Reading);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Ready, patience);
    QCOMPARE(task(*m_converter, id).facts.video()->codec, QStringLiteral("h264"));
    m_converter->requestThumbnail(id);
    QTRY_VERIFY_WITH_TIMEOUT(!task(*m_converter, id).thumbnail.isEmpty(), patience);
    const QImage thumbnail(QUrl(task(*m_converter, id).thumbnail).toLocalFile());
    QCOMPARE(thumbnail.size(), QSize(256, 192));
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Middle Quality"));
}

void TestPage::aFoldersMediaFilesAreAdded()
{
    song(QStringLiteral("b.wav"));
    song(QStringLiteral("a.mp3"));
    QFile note(m_files->filePath(QStringLiteral("note.txt")));
    QVERIFY(note.open(QIODevice::WriteOnly));
    m_converter->addFiles({QUrl::fromLocalFile(m_files->path())});
    QCOMPARE(names(*m_converter), QStringList({QStringLiteral("a.mp3"), QStringLiteral("b.wav")}));
}

void TestPage::aFolderWithoutMediaIsNamed()
{
    QSignalSpy noticed(m_converter.get(), &Page::noticed);
    const QUrl folder = QUrl::fromLocalFile(m_files->path());
    m_converter->addFiles({folder});
    QCOMPARE(m_converter->tasks()->count(), 0);
    QCOMPARE(noticed.count(), 1);
    QVERIFY(noticed.at(0).at(0).toString().contains(m_files->path()));
    song();
    m_converter->addFiles({folder});
    QCOMPARE(m_converter->tasks()->count(), 1);
    QCOMPARE(noticed.count(), 1);
}

void TestPage::aFileThatIsNotMediaFailsAndTheOthersGoOn()
{
    m_converter->addFiles({noMedia(), song()});
    const int first = m_converter->tasks()->tasks().at(0).id;
    const int second = m_converter->tasks()->tasks().at(1).id;
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, first).state, Task::Failed, patience);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, second).state, Task::Ready, patience);
    m_converter->convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(task(*m_converter, first).state, Task::Failed);
    QVERIFY(task(*m_converter, first).error.startsWith(QStringLiteral("cannot be read as media")));
    QCOMPARE(task(*m_converter, second).state, Task::Converted);
    QVERIFY(task(*m_converter, second).target.endsWith(QStringLiteral("/song.mp3")));
    QCOMPARE(MediaClips::factsOf(task(*m_converter, second).target).audio()->codec,
             mp3.mid(6, 3).toLower());
}

void TestPage::factsThatArriveLateDoNotChangeTheState()
{
    QVector<Task::State> states;
    connect(m_converter->tasks(), &TaskList::dataChanged, this,
            [this, &states] { states << m_converter->tasks()->tasks().constFirst().state; });
    m_converter->addFiles({song()});
    const int id = m_converter->tasks()->tasks().constFirst().id;
    m_converter->convert(id);
    QTRY_VERIFY_WITH_TIMEOUT(!task(*m_converter, id).facts.isEmpty(), patience);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QVERIFY(!states.contains(Task::Ready));
}

void TestPage::removingAHangingFileLetsTheNextOneBeRead_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<bool>("isFilm");
    QTest::newRow("while it is read") << QStringLiteral("ffprobe") << false;
    QTest::newRow("while its thumbnail is made") << QStringLiteral("ffmpeg") << true;
}

void TestPage::removingAHangingFileLetsTheNextOneBeRead()
{
    QFETCH(QString, tool);
    QFETCH(bool, isFilm);
    const QString film = m_files->filePath(QStringLiteral("hanging.mp4"));
    // ffprobe is asked only about what isn't media.
    QVERIFY(isFilm ? MediaClips::makeFilm(film) : writeFile(film, "no film"));
    const QUrl next = song();
    // The tool writes its process id, and hangs on this file only.
    const QString pidFile = m_files->filePath(QStringLiteral("pid"));
    QVERIFY(MediaClips::makeStandIn(
        m_files->path(),
        QStringLiteral("case \"$*\" in *hanging*) echo $$ >'%1'; exec sleep 600;; esac\n"
                       "exec $REAL \"$@\"")
            .arg(pidFile),
        QStringLiteral("nothing"), tool));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", MediaClips::pathWith(m_files->path()));
    m_converter->addFiles({QUrl::fromLocalFile(film), next});
    const int first = m_converter->tasks()->tasks().at(0).id;
    const int second = m_converter->tasks()->tasks().at(1).id;
    int pid = 0;
    const bool hangs = QTest::qWaitFor(
        [this, first, &pidFile, &pid] {
            m_converter->requestThumbnail(first);
            pid = contentOf(pidFile).trimmed().toInt();
            return pid != 0;
        },
        patience);
    m_converter->remove(first);
    const bool isStopped = ::kill(pid, 0) != 0;
    const bool isNextRead = QTest::qWaitFor(
        [this, second] { return task(*m_converter, second).state == Task::Ready; }, patience);
    qputenv("PATH", path);
    QVERIFY(hangs);
    QVERIFY(isStopped);
    QVERIFY(isNextRead);
    QCOMPARE(m_converter->tasks()->count(), 1);
}

QTEST_MAIN(TestPage)
#include "tst_page.moc"
