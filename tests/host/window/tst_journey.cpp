#include "host/app/languages.h"
#include "host/files/filenamecodec.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/windowsettings.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"

#include <QProcess>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

using namespace WindowUser;

namespace {

const char configVariable[] = "VEX_JOURNEY_CONFIG";

/*! The names of what can take the focus or be pressed and has none for screen readers. */
QStringList namelessControls(QQuickItem *root)
{
    QStringList nameless;
    if (!root->isVisible()) {
        return nameless;
    }
    if (root->activeFocusOnTab() && root->isEnabled() && nameOf(root).isEmpty()) {
        nameless << QString::fromLatin1(root->metaObject()->className());
    }
    for (QQuickItem *child : root->childItems()) {
        nameless << namelessControls(child);
    }
    return nameless;
}

} // namespace

/*! A user's way through the real window, with mouse and keys. */
class TestJourney : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void twoFilesAreConvertedWithTheUsersPresets();
    void everythingIsRestoredAfterARestart();
    void theKeyboardDoesWhatTheMouseDoes();
    void aFileWhoseNameIsNotUtf8IsConverted();

private:
    QString configFolder() const;

    QTemporaryDir m_work;
};

void TestJourney::initTestCase()
{
    installFileNameCodec();
    Languages::install(QStringLiteral("en"));
    collectWarnings();
}

void TestJourney::cleanup()
{
    QCOMPARE(takeWarnings(), QString());
}

QString TestJourney::configFolder() const
{
    const QString given = qEnvironmentVariable(configVariable);
    return given.isEmpty() ? m_work.filePath(QStringLiteral("config")) : given;
}

void TestJourney::twoFilesAreConvertedWithTheUsersPresets()
{
    const QString film = m_work.filePath(QStringLiteral("film.mp4"));
    const QString song = m_work.filePath(QStringLiteral("song.wav"));
    QVERIFY(MediaClips::makeFilm(film));
    QVERIFY(MediaClips::makeSong(song));

    MainWindow main(configFolder());
    QVERIFY(main.open());
    QQuickWindow *window = main.window();
    QVERIFY(QTest::qWaitForWindowActive(window));
    const FormatsProxy &formats = *FormatsProxy::getInstance();
    const WindowSettings &settings = main.settings();

    // Two files are dropped.
    QVERIFY(!itemsNamed(window->contentItem(), QStringLiteral("Drop video or audio files here"))
                 .isEmpty());
    drop(window, {QUrl::fromLocalFile(film), QUrl::fromLocalFile(song)});
    const QVector<Task> &tasks = main.converter().tasks()->tasks();
    QTRY_COMPARE(tasks.size(), 2);
    QTRY_VERIFY(tasks.at(0).state == Task::Ready && tasks.at(1).state == Task::Ready);

    // The format of both is found by a search.
    auto *picker = window->property("picker").value<QObject *>();
    QVERIFY(click(window, QStringLiteral("Convert all to: MP4 - Keep original")));
    QTRY_VERIFY(picker->property("opened").toBool());
    type(window, QStringLiteral("mp3"));
    QVERIFY(click(window, QStringLiteral("High quality")));
    QTRY_VERIFY(!picker->property("visible").toBool());
    QCOMPARE(settings.converterGlobalId(), QStringLiteral("Audio_MP3_002"));
    QCOMPARE(tasks.at(0).format, QStringLiteral("Audio_MP3_002"));
    QVERIFY(formats.isFormatInRecently(QStringLiteral("Audio_MP3_002")));

    // It is edited to a preset of the user's own, which is deleted, and to another, which stays.
    QVERIFY(click(window, QStringLiteral("Convert all to: MP3 - High quality")));
    QTRY_VERIFY(picker->property("opened").toBool());
    QVERIFY(click(window, QStringLiteral("Audio")));
    const QStringList titles = {QStringLiteral("Passing"), QStringLiteral("Mine")};
    for (const QString &title : titles) {
        QVERIFY(click(window, QStringLiteral("Edit")));
        QTRY_VERIFY(main.dialog() != nullptr);
        QQuickWindow *dialog = main.dialog()->window();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QVERIFY(QTest::qWaitFor([dialog] {
            return itemsNamed(dialog->contentItem(), QStringLiteral("Title")).size() == 2;
        }));
        QQuickItem *field = itemsNamed(dialog->contentItem(), QStringLiteral("Title")).at(1);
        // The dialog may still take its size, and the place of the field with it.
        QVERIFY(QTest::qWaitFor([dialog, field] {
            if (!field->hasActiveFocus()) {
                QTest::mouseClick(dialog, Qt::LeftButton, {}, middleOf(field));
            }
            return field->hasActiveFocus();
        }));
        QTest::keyClick(dialog, Qt::Key_A, Qt::ControlModifier);
        type(dialog, title);
        QCOMPARE(field->property("text").toString(), title);
        QVERIFY(click(dialog, QStringLiteral("Create")));
        QTRY_VERIFY(main.dialog() == nullptr);
        QVERIFY(picker->property("visible").toBool());
        const QString made = settings.converterGlobalId();
        QCOMPARE(formats.getFormat(made).value(QStringLiteral("title")).toString(), title);
        QCOMPARE(picker->property("curId").toString(), made);
        if (title == titles.constFirst()) {
            QVERIFY(click(window, QStringLiteral("Delete")));
            QTRY_VERIFY(formats.getFormat(made).isEmpty());
            QCOMPARE(settings.converterGlobalId(), QStringLiteral("Video_MP4_001"));
        }
    }
    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_VERIFY(!picker->property("visible").toBool());

    // Both are converted.
    QVERIFY(click(window, QStringLiteral("Convert All")));
    QTRY_VERIFY_WITH_TIMEOUT(
        tasks.at(0).state == Task::Converted && tasks.at(1).state == Task::Converted, 60000);
    for (const char *result : {"film.mp3", "song.mp3"}) {
        const MediaFacts facts = MediaClips::factsOf(m_work.filePath(QString::fromLatin1(result)));
        QVERIFY(facts.video() == nullptr);
        QCOMPARE(facts.audio()->codec, QStringLiteral("mp3"));
    }
}

/*! Looks for it in a process of its own: the library loads its files once in a process. */
void TestJourney::everythingIsRestoredAfterARestart()
{
    if (!qEnvironmentVariableIsSet(configVariable)) {
        QProcess second;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(configVariable), configFolder());
        second.setProcessEnvironment(environment);
        second.setProcessChannelMode(QProcess::ForwardedChannels);
        second.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(__func__)});
        QVERIFY(second.waitForFinished(60000));
        QCOMPARE(second.exitCode(), 0);
        return;
    }
    MainWindow main(configFolder());
    QVERIFY(main.open());
    QQuickWindow *window = main.window();
    QVERIFY(QTest::qWaitForWindowActive(window));
    auto *picker = window->property("picker").value<QObject *>();
    QVERIFY(click(window, QStringLiteral("Convert all to: MP3 - Mine")));
    QTRY_VERIFY(picker->property("opened").toBool());
    QTRY_COMPARE(picker->property("selectTag").toString(), QStringLiteral("recently"));
    QTRY_VERIFY(!itemsNamed(window->contentItem(), QStringLiteral("MP3- Mine")).isEmpty());
    QTRY_VERIFY(!itemsNamed(window->contentItem(), QStringLiteral("MP3- High quality")).isEmpty());
    QVERIFY(itemsNamed(window->contentItem(), QStringLiteral("MP3- Passing")).isEmpty());
    QVERIFY(click(window, QStringLiteral("Audio")));
    QTRY_VERIFY(!itemsNamed(window->contentItem(), QStringLiteral("Mine")).isEmpty());
}

void TestJourney::theKeyboardDoesWhatTheMouseDoes()
{
    if (qEnvironmentVariableIsSet(configVariable)) {
        return;
    }
    const QString song = m_work.filePath(QStringLiteral("keys.wav"));
    QVERIFY(MediaClips::makeSong(song));
    QTemporaryDir config;
    MainWindow main(config.path());
    QVERIFY(main.open());
    QQuickWindow *window = main.window();
    QVERIFY(QTest::qWaitForWindowActive(window));
    QCOMPARE(namelessControls(window->contentItem()), QStringList());

    main.converter().addFiles({QUrl::fromLocalFile(song)});
    const QVector<Task> &tasks = main.converter().tasks()->tasks();
    QTRY_COMPARE(tasks.at(0).state, Task::Ready);
    QCOMPARE(namelessControls(window->contentItem()), QStringList());

    // Tab comes to every control in turn, and back to the first one.
    QStringList stops;
    for (int i = 0; i < 40 && (stops.size() < 2 || stops.constLast() != stops.constFirst()); ++i) {
        QTest::keyClick(window, Qt::Key_Tab);
        stops << nameOf(window->activeFocusItem());
    }
    for (const char *name : {"Converter", "Add files", "Format: MP3 - High quality", "Convert",
                             "Remove from the list", "Convert All"}) {
        QVERIFY2(stops.contains(QString::fromLatin1(name)),
                 qPrintable(QString::fromLatin1(name) + QStringLiteral(" is not in ") +
                            stops.join(QStringLiteral(" | "))));
    }

    // In the list, Enter opens the picker of the file, Escape closes it, Delete removes the file.
    const auto goTo = [window](const QString &name) {
        return QTest::qWaitFor([&] {
            QTest::keyClick(window, Qt::Key_Tab);
            return nameOf(window->activeFocusItem()).startsWith(name);
        });
    };
    auto *picker = window->property("picker").value<QObject *>();
    QVERIFY(goTo(QStringLiteral("keys.wav")));
    QTest::keyClick(window, Qt::Key_Return);
    QTRY_VERIFY(picker->property("opened").toBool());
    QCOMPARE(picker->property("openWay").toBool(), false);
    QCOMPARE(picker->property("listId").toInt(), tasks.at(0).id);
    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_VERIFY(!picker->property("visible").toBool());
    QVERIFY(goTo(QStringLiteral("keys.wav")));
    QTest::keyClick(window, Qt::Key_Delete);
    QTRY_COMPARE(tasks.size(), 0);
    QTest::keyClick(window, Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(tasks.size(), 1);
    QVERIFY(goTo(QStringLiteral("keys.wav")));
    QTest::keyClick(window, Qt::Key_Delete);
    QTRY_COMPARE(tasks.size(), 0);
    QVERIFY(click(window, QStringLiteral("Close")));

    // Arrows change the page.
    QVERIFY(goTo(QStringLiteral("Converter")));
    QTest::keyClick(window, Qt::Key_Right);
    QCOMPARE(window->property("currentPage").toInt(), 1);
    QCOMPARE(namelessControls(window->contentItem()), QStringList());
}

void TestJourney::aFileWhoseNameIsNotUtf8IsConverted()
{
    // A file manager names it by a URL, the folder that holds it by another.
    const QTemporaryDir work;
    const QString folder = QDir(work.path()).filePath(QFile::decodeName("m\xfcsik"));
    const QString song = QDir(folder).filePath(QFile::decodeName("caf\xe9\n.wav"));
    QVERIFY(QDir().mkdir(folder));
    const QString made = work.filePath(QStringLiteral("song.wav"));
    QVERIFY(MediaClips::makeSong(made));
    QVERIFY(QFile::rename(made, song));
    MainWindow main(work.filePath(QStringLiteral("config")));
    QVERIFY(main.open());
    QQuickWindow *window = main.window();
    QVERIFY(QTest::qWaitForWindowActive(window));
    ConverterProxy &page = main.converter();
    page.setFolder(folder);

    const QByteArray url = "file://" + QFile::encodeName(work.path()) + "/m%FCsik";
    drop(window, {QUrl::fromEncoded(url + "/caf%E9%0A.wav"), QUrl::fromEncoded(url)});
    const QVector<Task> &tasks = page.tasks()->tasks();
    QTRY_COMPARE(tasks.size(), 1);
    QVERIFY(click(window, QStringLiteral("Add again")));
    QTRY_COMPARE(tasks.size(), 2);
    for (const Task &task : tasks) {
        QCOMPARE(task.source, song);
    }
    QTRY_VERIFY(tasks.at(0).state == Task::Ready && tasks.at(1).state == Task::Ready);
    QTRY_COMPARE(itemsNamed(window->contentItem(), QStringLiteral("caf\uFFFD\uFFFD.wav")).isEmpty(),
                 false);
    page.setConverterGlobalFormat(QStringLiteral("Audio_MP3_002"));
    page.convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!page.isBusy(), 60000);
    // Side by side, either may be the first to take the name.
    QList<QByteArray> targets = {QFile::encodeName(tasks.at(0).target),
                                 QFile::encodeName(tasks.at(1).target)};
    std::sort(targets.begin(), targets.end());
    QCOMPARE(targets, (QList<QByteArray>{QFile::encodeName(folder) + "/caf\xe9\n (2).mp3",
                                         QFile::encodeName(folder) + "/caf\xe9\n.mp3"}));
    QVERIFY(QFile::exists(tasks.at(0).target) && QFile::exists(tasks.at(1).target));
}

QTEST_MAIN(TestJourney)
#include "tst_journey.moc"
