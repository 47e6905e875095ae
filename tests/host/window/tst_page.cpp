#include "host/window/pageproxies.h"
#include "host/window/presets.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/host/mediaclips.h"
#include "tests/support/patience.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <csignal>

namespace {

const QString mp3 = QStringLiteral("Audio_MP3_003");
const QString flac = QStringLiteral("Audio_FLAC_001");
const QString mkv = QStringLiteral("Video_MKV_001");
const QString mp4 = QStringLiteral("Video_MP4_001");

} // namespace

/*! Both pages over the built-in catalogue and real clips. */
class TestPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aFileIsReadAndPictured();
    void aFolderGivesItsMediaFiles();
    void aFolderWithoutMediaIsNamed();
    void aFileThatIsNoMediaSaysSoAndTheRestGoOn();
    void aNewFormatDoesNotMakeAnUnreadableFileReady();
    void whatIsReadLateChangesNoStateOfAConversion();
    void removingAFileThatHangsLetsTheNextOneBeRead_data();
    void removingAFileThatHangsLetsTheNextOneBeRead();
    void tasksRunOneAfterAnother();
    void tasksRunInTheOrderOfTheList();
    void aRunningTaskIsNotConvertedAnew();
    void allTracksAreKeptWhereThePresetKeepsThem();
    void aStoppedTaskCanBeTriedAgain();
    void removingTheRunningTaskLetsTheNextOneRun();
    void theGlobalFormatHoldsForAllThatAreNotAtWork();
    void aTaskHasAFormatOfItsOwn();
    void choosingMovesThePresetToTheHeadOfTheRecentlyUsed();
    void aPresetIsUsedWhileItsTaskIsQueued();
    void aTaskWhosePresetIsGoneTakesTheGlobalOne();
    void aNewFormatMakesAConvertedTaskReady();
    void resultsGoIntoTheChosenFolder();
    void theEditorCutsItsFiles();

private:
    QUrl song(const QString &name = QStringLiteral("song.wav"));
    QUrl noMedia();
    int addReady(Page &page, const QUrl &url);
    const Task &task(Page &page, int id) { return *page.tasks()->find(id); }

    QTemporaryDir m_config;
    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<WindowSettings> m_settings;
    std::unique_ptr<Presets> m_presets;

    std::unique_ptr<QTemporaryDir> m_files;
    std::unique_ptr<ConverterProxy> m_converter;
    std::unique_ptr<EditorProxy> m_editor;
    QVector<int> m_runs; //!< the converter's tasks in the order in which they ran
};

void TestPage::initTestCase()
{
    m_store = std::make_unique<PresetStore>(*FormatsProxy::getInstance(), m_config.path());
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    m_settings =
        std::make_unique<WindowSettings>(m_config.filePath(QStringLiteral("vexconvert.ini")));
    m_presets = std::make_unique<Presets>(*m_store);
}

void TestPage::init()
{
    m_settings->setConverterGlobalId(mp3);
    m_settings->setEditorGlobalId(mp3);
    m_files = std::make_unique<QTemporaryDir>();
    m_converter = std::make_unique<ConverterProxy>(*m_settings, *m_presets);
    m_editor = std::make_unique<EditorProxy>(*m_settings, *m_presets);
    m_runs.clear();
    connect(m_converter->tasks(), &TaskList::dataChanged, this, [this](const QModelIndex &row) {
        const Task &changed = m_converter->tasks()->tasks().at(row.row());
        if (changed.state == Task::Running && !m_runs.contains(changed.id)) {
            m_runs << changed.id;
        }
    });
}

void TestPage::cleanup()
{
    m_converter.reset();
    m_editor.reset();
    m_files.reset();
    m_settings->setFolder(PageKind::Converter, QString());
}

QUrl TestPage::song(const QString &name)
{
    const QString path = m_files->filePath(name);
    return MediaClips::makeSong(path) ? QUrl::fromLocalFile(path) : QUrl();
}

/*! A file that is called like a film and is none. */
QUrl TestPage::noMedia()
{
    QFile broken(m_files->filePath(QStringLiteral("broken.mp4")));
    return broken.open(QIODevice::WriteOnly) && broken.write("no film") > 0
               ? QUrl::fromLocalFile(broken.fileName())
               : QUrl();
}

int TestPage::addReady(Page &page, const QUrl &url)
{
    page.addFiles({url});
    const int id = page.tasks()->tasks().constLast().id;
    [&] { QTRY_COMPARE_WITH_TIMEOUT(task(page, id).state, Task::Ready, patience); }();
    return id;
}

void TestPage::aFileIsReadAndPictured()
{
    const QString path = m_files->filePath(QStringLiteral("film.mp4"));
    QVERIFY(MediaClips::makeFilm(path));
    m_converter->addFiles({QUrl::fromLocalFile(path)});
    const int id = m_converter->tasks()->tasks().constFirst().id;
    QCOMPARE(task(*m_converter, id).state, Task::Reading);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Ready, patience);
    QCOMPARE(task(*m_converter, id).facts.video()->codec, QStringLiteral("h264"));
    QTRY_VERIFY_WITH_TIMEOUT(!task(*m_converter, id).thumbnail.isEmpty(), patience);
    const QImage picture(QUrl(task(*m_converter, id).thumbnail).toLocalFile());
    QCOMPARE(picture.size(), QSize(256, 192));
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Middle Quality"));
}

void TestPage::aFolderGivesItsMediaFiles()
{
    song(QStringLiteral("b.wav"));
    song(QStringLiteral("a.mp3"));
    QFile note(m_files->filePath(QStringLiteral("note.txt")));
    QVERIFY(note.open(QIODevice::WriteOnly));
    m_converter->addFiles(
        {QUrl::fromLocalFile(m_files->path()), QUrl(QStringLiteral("https://example.org/c.mp3"))});
    QStringList names;
    for (const Task &task : m_converter->tasks()->tasks()) {
        names << QFileInfo(task.source).fileName();
    }
    QCOMPARE(names, QStringList({QStringLiteral("a.mp3"), QStringLiteral("b.wav")}));
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

void TestPage::aFileThatIsNoMediaSaysSoAndTheRestGoOn()
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

void TestPage::aNewFormatDoesNotMakeAnUnreadableFileReady()
{
    m_converter->addFiles({noMedia()});
    const int id = m_converter->tasks()->tasks().constFirst().id;
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Failed, patience);
    const QString error = task(*m_converter, id).error;
    m_converter->setConvertingListTaskFormat(id, flac);
    m_converter->setConverterGlobalFormat(flac);
    QCOMPARE(task(*m_converter, id).state, Task::Failed);
    QCOMPARE(task(*m_converter, id).error, error);
}

void TestPage::whatIsReadLateChangesNoStateOfAConversion()
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

void TestPage::removingAFileThatHangsLetsTheNextOneBeRead_data()
{
    QTest::addColumn<QString>("tool");
    QTest::newRow("while it is read") << QStringLiteral("ffprobe");
    QTest::newRow("while it is pictured") << QStringLiteral("ffmpeg");
}

void TestPage::removingAFileThatHangsLetsTheNextOneBeRead()
{
    QFETCH(QString, tool);
    const QString film = m_files->filePath(QStringLiteral("hanging.mp4"));
    QVERIFY(MediaClips::makeFilm(film));
    const QUrl next = song();
    // The tool tells its process id and hangs on this file alone.
    const QString told = m_files->filePath(QStringLiteral("pid"));
    QVERIFY(MediaClips::makeStandIn(
        m_files->path(),
        QStringLiteral("case \"$*\" in *hanging*) echo $$ >'%1'; exec sleep 600;; esac\n"
                       "exec $REAL \"$@\"")
            .arg(told),
        QStringLiteral("nothing"), tool));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", MediaClips::pathWith(m_files->path()));
    m_converter->addFiles({QUrl::fromLocalFile(film), next});
    const int first = m_converter->tasks()->tasks().at(0).id;
    const int second = m_converter->tasks()->tasks().at(1).id;
    int pid = 0;
    const bool hangs = QTest::qWaitFor([&told, &pid] {
        QFile file(told);
        pid = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
        return pid != 0;
    });
    m_converter->remove(first);
    const bool isStopped = ::kill(pid, 0) != 0;
    const bool isNextRead =
        QTest::qWaitFor([this, second] { return task(*m_converter, second).state == Task::Ready; });
    qputenv("PATH", path);
    QVERIFY(hangs);
    QVERIFY(isStopped);
    QVERIFY(isNextRead);
    QCOMPARE(m_converter->tasks()->count(), 1);
}

void TestPage::tasksRunOneAfterAnother()
{
    addReady(*m_converter, song(QStringLiteral("a.wav")));
    addReady(*m_converter, song(QStringLiteral("b.wav")));
    int most = 0;
    connect(m_converter->tasks(), &TaskList::dataChanged, this, [this, &most] {
        const QVector<Task> &all = m_converter->tasks()->tasks();
        most = std::max(most, int(std::count_if(all.begin(), all.end(), [](const Task &task) {
                            return task.state == Task::Running;
                        })));
    });
    QVERIFY(m_converter->canConvert());
    QVERIFY(!m_converter->isBusy());
    const QVector<Task> tasks = m_converter->tasks()->tasks();
    m_converter->convert(tasks.at(0).id);
    m_converter->convert(tasks.at(1).id);
    QVERIFY(m_converter->isBusy());
    QVERIFY(!m_converter->canConvert());
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(!m_converter->canConvert());
    QCOMPARE(most, 1);
    QCOMPARE(m_runs, QVector<int>({tasks.at(0).id, tasks.at(1).id}));
}

void TestPage::tasksRunInTheOrderOfTheList()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    const int third = addReady(*m_converter, song(QStringLiteral("c.wav")));
    m_converter->convert(first);
    m_converter->convert(third);
    m_converter->convert(second);
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(m_runs, QVector<int>({first, second, third}));
}

void TestPage::aRunningTaskIsNotConvertedAnew()
{
    const int id = addReady(*m_converter, song());
    m_converter->convert(id);
    m_converter->convert(id);
    QCOMPARE(task(*m_converter, id).state, Task::Running);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QVERIFY(!m_converter->isBusy());
}

void TestPage::allTracksAreKeptWhereThePresetKeepsThem()
{
    const QString path = m_files->filePath(QStringLiteral("dubbed.mkv"));
    QVERIFY(MediaClips::make(
        path, QStringLiteral("-f lavfi -i testsrc2=size=320x240:rate=25:duration=1 -f lavfi -i "
                             "sine=duration=1 -map 0 -map 1 -map 1 -c:v libx264 -preset ultrafast "
                             "-pix_fmt yuv420p -c:a aac")));
    m_converter->setConverterGlobalFormat(mp4);
    const int id = addReady(*m_converter, QUrl::fromLocalFile(path));
    m_converter->convert(id);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QCOMPARE(MediaClips::factsOf(task(*m_converter, id).target).audioTracks.size(), 2);
}

void TestPage::aStoppedTaskCanBeTriedAgain()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->convertAll();
    m_converter->cancelAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QCOMPARE(task(*m_converter, first).state, Task::Cancelled);
    QCOMPARE(task(*m_converter, second).state, Task::Cancelled);
    m_converter->convert(second);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, second).state, Task::Converted, patience);
    QCOMPARE(task(*m_converter, first).state, Task::Cancelled);
    QVERIFY(!QFile::exists(m_files->filePath(QStringLiteral("a.mp3"))));
}

void TestPage::removingTheRunningTaskLetsTheNextOneRun()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->convertAll();
    QCOMPARE(task(*m_converter, first).state, Task::Running);
    m_converter->remove(first);
    QCOMPARE(m_converter->tasks()->count(), 1);
    QCOMPARE(task(*m_converter, second).state, Task::Running);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, second).state, Task::Converted, patience);
    QVERIFY(!QFile::exists(m_files->filePath(QStringLiteral("a.mp3"))));
}

void TestPage::theGlobalFormatHoldsForAllThatAreNotAtWork()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    QSignalSpy changes(m_converter.get(), &Page::globalFormatChanged);
    m_converter->convert(first);
    m_converter->setConverterGlobalFormat(flac);
    QVERIFY(changes.count() > 0);
    QCOMPARE(m_settings->converterGlobalId(), flac);
    QCOMPARE(m_settings->editorGlobalId(), mp3);
    QCOMPARE(m_converter->globalCaption(), QStringLiteral("FLAC - Keep Orignal"));
    QCOMPARE(task(*m_converter, first).format, mp3);
    QCOMPARE(task(*m_converter, second).format, flac);
    QCOMPARE(task(*m_converter, addReady(*m_converter, song())).format, flac);
}

void TestPage::aTaskHasAFormatOfItsOwn()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->setConvertingListTaskFormat(second, flac);
    QCOMPARE(task(*m_converter, first).format, mp3);
    QCOMPARE(task(*m_converter, second).format, flac);
    QCOMPARE(m_settings->converterGlobalId(), mp3);
    m_converter->setConvertingListTaskFormat(second + 1000, flac);
}

void TestPage::choosingMovesThePresetToTheHeadOfTheRecentlyUsed()
{
    const auto head = [this] { return m_store->formats().recentlyFormatsModel()->getId(0); };
    m_converter->setConverterGlobalFormat(flac);
    QCOMPARE(head(), flac);
    m_editor->setEditorGlobalFormat(mkv);
    QCOMPARE(head(), mkv);
    const int id = addReady(*m_editor, song());
    m_editor->setEditingListTaskFormat(id, flac);
    QCOMPARE(head(), flac);
    m_converter->setConvertingListTaskFormat(1, mp3);
    QCOMPARE(head(), mp3);
}

void TestPage::aPresetIsUsedWhileItsTaskIsQueued()
{
    const int first = addReady(*m_converter, song(QStringLiteral("a.wav")));
    const int second = addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->setConvertingListTaskFormat(second, flac);
    QVERIFY(!m_converter->checkFormatUsed(mp3));
    QVERIFY(!m_converter->checkFormatUsed(flac));
    m_converter->convertAll();
    QVERIFY(m_converter->checkFormatUsed(mp3));
    QVERIFY(m_converter->checkFormatUsed(flac));
    QVERIFY(!m_converter->checkFormatUsed(mkv));
    QVERIFY(!m_editor->checkFormatUsed(mp3));
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, first).state, Task::Converted, patience);
    QVERIFY(!m_converter->checkFormatUsed(mp3));
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QVERIFY(!m_converter->checkFormatUsed(flac));
}

void TestPage::aTaskWhosePresetIsGoneTakesTheGlobalOne()
{
    const QString own =
        m_store->formats().addUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), mp3,
                                               {{QStringLiteral("title"), QStringLiteral("Mine")}});
    const int id = addReady(*m_converter, song());
    m_converter->setConvertingListTaskFormat(id, own);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Mine"));
    m_settings->setEditorGlobalId(own);

    m_store->formats().delUserDefineFormat(QStringLiteral("audio"), QStringLiteral("MP3"), own);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).format, mp3, patience);
    QCOMPARE(task(*m_converter, id).formatCaption, QStringLiteral("MP3 - Middle Quality"));
    QCOMPARE(m_editor->globalCaption(), QStringLiteral("MP4 - Keep Orignal"));
    QCOMPARE(task(*m_editor, addReady(*m_editor, song())).format, QStringLiteral("Video_MP4_001"));
}

void TestPage::aNewFormatMakesAConvertedTaskReady()
{
    const int id = addReady(*m_converter, song());
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    m_converter->setConvertingListTaskFormat(id, flac);
    QCOMPARE(task(*m_converter, id).state, Task::Ready);
    QCOMPARE(task(*m_converter, id).target, QString());
    QVERIFY(m_converter->canConvert());
}

void TestPage::resultsGoIntoTheChosenFolder()
{
    QTemporaryDir folder;
    m_converter->setFolder(folder.path());
    const int id = addReady(*m_converter, song());
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("song.mp3"))));
}

void TestPage::theEditorCutsItsFiles()
{
    const QString path = m_files->filePath(QStringLiteral("film.mkv"));
    QVERIFY(MediaClips::makeFilm(path, 4));
    m_editor->setEditorGlobalFormat(mkv);
    const int id = addReady(*m_editor, QUrl::fromLocalFile(path));
    m_editor->cut(id, 1, 3.5);
    m_editor->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_editor, id).state, Task::Converted, patience);
    const double seconds = MediaClips::factsOf(task(*m_editor, id).target).duration;
    QVERIFY2(std::abs(seconds - 2.5) < 0.15, qPrintable(QString::number(seconds)));
    // Another part of a file that is through makes it ready again.
    m_editor->cut(id, 0, 1);
    QCOMPARE(task(*m_editor, id).state, Task::Ready);
    QCOMPARE(task(*m_editor, id).end, 1.0);
}

QTEST_MAIN(TestPage)
#include "tst_page.moc"
