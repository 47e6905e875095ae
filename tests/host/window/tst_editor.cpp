#include "host/app/languages.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/windowsettings.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QDir>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

using namespace WindowUser;

/*! The part of a film that is kept, chosen by keys, mouse and typing. */
class TestEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void keysMoveAHandle_data();
    void keysMoveAHandle();
    void theHandleAtWorkShowsItsPicture();
    void aDragMovesAHandle();
    void aLongFilmCanBeSeenCloser();
    void aTypedTimeIsKeptToTheThousandth();
    void aTypedMistakeIsNamed_data();
    void aTypedMistakeIsNamed();
    void theConvertersFileIsOpenedWithItsFormat();

private:
    const Task &task() const { return m_main->editor().tasks()->tasks().constFirst(); }
    QQuickItem *item(const char *name, int which = 0) const;
    /*! The handle of this name; the field of the same name comes before it or after it. */
    QQuickItem *handle(const char *name) const;
    QQuickItem *field(const char *name) const;

    QTemporaryDir m_work;
    QString m_film;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

QQuickItem *TestEditor::item(const char *name, int which) const
{
    const auto found = itemsNamed(m_window->contentItem(), QString::fromLatin1(name));
    return found.value(which);
}

QQuickItem *TestEditor::handle(const char *name) const
{
    for (QQuickItem *found : itemsNamed(m_window->contentItem(), QString::fromLatin1(name))) {
        if (found->property("isUsed").isValid()) {
            return found;
        }
    }
    return nullptr;
}

QQuickItem *TestEditor::field(const char *name) const
{
    for (QQuickItem *found : itemsNamed(m_window->contentItem(), QString::fromLatin1(name))) {
        if (found->inherits("QQuickTextInput")) {
            return found;
        }
    }
    return nullptr;
}

void TestEditor::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    m_film = m_work.filePath(QStringLiteral("film.mp4"));
    QVERIFY(MediaClips::makeFilm(m_film, 30)); // 25 fps
    collectWarnings();
}

void TestEditor::init()
{
    QDir(m_work.filePath(QStringLiteral("config"))).removeRecursively();
    m_main = std::make_unique<MainWindow>(m_work.filePath(QStringLiteral("config")));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    m_window->resize(1040, 700);
    m_window->setProperty("currentPage", 1);
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    m_main->editor().addPaths({m_film});
    QTRY_COMPARE_WITH_TIMEOUT(task().state, Task::Ready, patience);
    QTRY_VERIFY_WITH_TIMEOUT(handle("Start") != nullptr, patience);
}

void TestEditor::cleanup()
{
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

void TestEditor::keysMoveAHandle_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<double>("start");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    QTest::newRow("a picture") << Qt::Key_Right << none << 12.04;
    QTest::newRow("a picture back") << Qt::Key_Left << none << 11.96;
    QTest::newRow("a second") << Qt::Key_Right << Qt::KeyboardModifiers(Qt::ShiftModifier) << 13.0;
    QTest::newRow("ten seconds") << Qt::Key_Left << Qt::KeyboardModifiers(Qt::ControlModifier)
                                 << 2.0;
    QTest::newRow("a page") << Qt::Key_PageUp << none << 22.0;
    QTest::newRow("a page back") << Qt::Key_PageDown << none << 2.0;
}

void TestEditor::keysMoveAHandle()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    m_main->editor().cut(task().id, 12, 0);
    handle("Start")->forceActiveFocus();
    QTest::keyClick(m_window, key, modifiers);
    QTEST(task().start, "start");
    QCOMPARE(task().end, 0.0);
    // No key moves it past an end.
    for (int press = 0; press < 4; ++press) {
        QTest::keyClick(m_window, Qt::Key_PageDown);
    }
    QCOMPARE(task().start, 0.0);
}

void TestEditor::theHandleAtWorkShowsItsPicture()
{
    QSignalSpy ready(&m_main->editor(), &EditorProxy::frameReady);
    handle("End")->forceActiveFocus();
    QTest::keyClick(m_window, Qt::Key_PageDown);
    QVERIFY(ready.wait(patience));
    const double lastKept = task().end - 1 / 25.0;
    QVERIFY(qAbs(ready.at(0).at(1).toDouble() - lastKept) < 1e-6);
    // The picture's caption says where the handle is, as the field does.
    QTRY_VERIFY(item(qPrintable(m_main->editor().clockOf(task().end)), 2) != nullptr);
}

void TestEditor::aDragMovesAHandle()
{
    const QPoint from = middleOf(handle("Start"));
    QTest::mousePress(m_window, Qt::LeftButton, {}, from);
    QTest::mouseMove(m_window, from + QPoint(60, 0));
    QTest::mouseMove(m_window, from + QPoint(120, 0));
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, from + QPoint(120, 0));
    QVERIFY(task().start > 1);
    QVERIFY(task().start < 15);
    QCOMPARE(middleOf(handle("Start")).x(), from.x() + 120);
}

void TestEditor::aLongFilmCanBeSeenCloser()
{
    m_main->editor().cut(task().id, 12, 0);
    const QPoint place = middleOf(handle("Start"));
    handle("Start")->forceActiveFocus();
    for (int press = 0; press < 4; ++press) {
        QTest::keyClick(m_window, Qt::Key_Plus);
    }
    QCOMPARE(middleOf(handle("Start")), place); // it stays, and all else comes closer
    QVERIFY(handle("End") == nullptr);

    QTest::mousePress(m_window, Qt::LeftButton, {}, place);
    QTest::mouseMove(m_window, place + QPoint(20, 0));
    QTest::mouseMove(m_window, place + QPoint(40, 0));
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, place + QPoint(40, 0));
    QVERIFY(task().start > 12);
    QVERIFY(task().start < 12.3);

    // A drag beside the handle goes through the film.
    const double kept = task().start;
    const QPoint beside = place + QPoint(200, 0);
    const int before = middleOf(handle("Start")).x();
    QTest::mousePress(m_window, Qt::LeftButton, {}, beside);
    QTest::mouseMove(m_window, beside - QPoint(30, 0));
    QTest::mouseMove(m_window, beside - QPoint(60, 0));
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, beside - QPoint(60, 0));
    QCOMPARE(middleOf(handle("Start")).x(), before - 60);
    QCOMPARE(task().start, kept);
    for (int press = 0; press < 5; ++press) {
        QTest::keyClick(m_window, Qt::Key_Minus);
    }
    QVERIFY(handle("End") != nullptr);
}

void TestEditor::aTypedTimeIsKeptToTheThousandth()
{
    QQuickItem *start = field("Start");
    QTest::mouseClick(m_window, Qt::LeftButton, {}, middleOf(start));
    QTest::keyClick(m_window, Qt::Key_A, Qt::ControlModifier);
    type(m_window, QStringLiteral("0:01.517"));
    QTest::keyClick(m_window, Qt::Key_Return);
    QCOMPARE(task().start, 1.517);
    QCOMPARE(start->property("text").toString(), QStringLiteral("0:01.517"));
}

void TestEditor::aTypedMistakeIsNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mistake");
    QTest::newRow("no time") << QStringLiteral("abc")
                             << QStringLiteral("Write a time such as 1:02:03.5");
    QTest::newRow("too late") << QStringLiteral("1:00:00")
                              << QStringLiteral("%1 is the latest possible time");
}

void TestEditor::aTypedMistakeIsNamed()
{
    QFETCH(QString, text);
    QFETCH(QString, mistake);
    const double latest = task().facts.duration - 0.01;
    mistake.replace(QStringLiteral("%1"), m_main->editor().clockOf(latest));
    QQuickItem *start = field("Start");
    QTest::mouseClick(m_window, Qt::LeftButton, {}, middleOf(start));
    QTest::keyClick(m_window, Qt::Key_A, Qt::ControlModifier);
    type(m_window, text);
    QTest::keyClick(m_window, Qt::Key_Return);
    QTRY_VERIFY(item(qPrintable(mistake)) != nullptr);
    QCOMPARE(start->property("text").toString(), text); // to be corrected
    QCOMPARE(task().start, 0.0);
    QTest::keyClick(m_window, Qt::Key_Escape);
    QCOMPARE(start->property("text").toString(), QStringLiteral("0:00"));
    QTRY_VERIFY(item(qPrintable(mistake)) == nullptr);
}

void TestEditor::theConvertersFileIsOpenedWithItsFormat()
{
    ConverterProxy &converter = m_main->converter();
    converter.addPaths({m_film});
    const int id = converter.tasks()->tasks().constFirst().id;
    converter.setConvertingListTaskFormat(id, QStringLiteral("Video_MKV_001"));
    QTRY_COMPARE_WITH_TIMEOUT(converter.tasks()->tasks().constFirst().state, Task::Ready, patience);
    m_window->setProperty("currentPage", 0);
    m_window->grabWindow(); // lays the page out
    QVERIFY(click(m_window, QStringLiteral("Cut in the editor")));
    QCOMPARE(m_window->property("currentPage").toInt(), 1);
    const QVector<Task> &edited = m_main->editor().tasks()->tasks();
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.at(0).source, m_film);
    QCOMPARE(edited.at(0).format, QStringLiteral("Video_MKV_001"));
}

QTEST_MAIN(TestEditor)
#include "tst_editor.moc"
