#include "host/app/languages.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

using namespace WindowUser;

/*! The list of a page under mouse and keys. Its files are a.wav, b.wav and c.wav. */
class TestTaskListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aClickSelectsOneAndModifiersMore();
    void theKeysSelectMoveAndRemove();
    void aRowIsDraggedByItsGrip();

private:
    QQuickItem *row(const char *name) const;
    void clickRow(const char *name, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QString selected() const;
    QString order() const;
    ConverterProxy &page() const { return m_main->converter(); }

    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

void TestTaskListView::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    const QDir files(m_work.filePath(QStringLiteral("files")));
    QVERIFY(files.mkpath(QStringLiteral("../results")));
    QVERIFY(files.mkpath(QStringLiteral(".")));
    for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
        QVERIFY(MediaClips::makeSong(files.filePath(QString::fromLatin1(name))));
    }
    collectWarnings();
}

void TestTaskListView::init()
{
    QFile::remove(m_work.filePath(QStringLiteral("config/queue.json")));
    m_main = std::make_unique<MainWindow>(m_work.filePath(QStringLiteral("config")));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    page().setFolder(m_work.filePath(QStringLiteral("results")));
    page().addPaths({m_work.filePath(QStringLiteral("files"))});
    QTRY_COMPARE_WITH_TIMEOUT(page().tasks()->countOf(Task::Ready), 3, patience);
}

void TestTaskListView::cleanup()
{
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

QQuickItem *TestTaskListView::row(const char *name) const
{
    const QString beginning = QString::fromLatin1(name) + QStringLiteral(",");
    const std::function<QQuickItem *(QQuickItem *)> find = [&](QQuickItem *root) -> QQuickItem * {
        if (!root->isVisible() || nameOf(root).startsWith(beginning)) {
            return root->isVisible() ? root : nullptr;
        }
        for (QQuickItem *child : root->childItems()) {
            if (QQuickItem *found = find(child)) {
                return found;
            }
        }
        return nullptr;
    };
    return find(m_window->contentItem());
}

void TestTaskListView::clickRow(const char *name, Qt::KeyboardModifiers modifiers)
{
    QTRY_VERIFY_WITH_TIMEOUT(row(name) != nullptr, patience);
    // On its name, which is no control.
    const QPoint place = row(name)->mapToScene(QPointF(200, 26)).toPoint();
    QTest::mouseClick(m_window, Qt::LeftButton, modifiers, place);
}

QString TestTaskListView::selected() const
{
    QString names;
    for (const Task &task : page().tasks()->tasks()) {
        names += task.isSelected ? QFileInfo(task.source).baseName() : QString();
    }
    return names;
}

QString TestTaskListView::order() const
{
    QString names;
    for (const Task &task : page().tasks()->tasks()) {
        names += QFileInfo(task.source).baseName();
    }
    return names;
}

void TestTaskListView::aClickSelectsOneAndModifiersMore()
{
    clickRow("a.wav");
    QCOMPARE(selected(), QStringLiteral("a"));
    clickRow("c.wav", Qt::ControlModifier);
    QCOMPARE(selected(), QStringLiteral("ac"));
    clickRow("a.wav", Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("abc"));
    clickRow("b.wav");
    QCOMPARE(selected(), QStringLiteral("b"));
    QTest::keyClick(m_window, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(selected(), QStringLiteral("abc"));
    QVERIFY(!itemsNamed(m_window->contentItem(), QStringLiteral("3 of 3 selected")).isEmpty());
}

void TestTaskListView::theKeysSelectMoveAndRemove()
{
    clickRow("a.wav");
    QTest::keyClick(m_window, Qt::Key_Down);
    QCOMPARE(selected(), QStringLiteral("b"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("bc"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), QStringLiteral("bc"));
    QTest::keyClick(m_window, Qt::Key_Home);
    QCOMPARE(selected(), QStringLiteral("a"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("bac"));
    QTest::keyClick(m_window, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(order(), QStringLiteral("abc"));
    QTest::keyClick(m_window, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(m_window, Qt::Key_Delete);
    QCOMPARE(order(), QStringLiteral("c"));
    // The row below takes the place, so that Delete can be pressed again.
    QCOMPARE(selected(), QStringLiteral("c"));
    QTest::keyClick(m_window, Qt::Key_Escape);
    QCOMPARE(selected(), QString());
    QVERIFY(click(m_window, QStringLiteral("Undo")));
    QTRY_COMPARE(order(), QStringLiteral("abc"));
}

void TestTaskListView::aRowIsDraggedByItsGrip()
{
    clickRow("a.wav");
    const QPoint from = row("a.wav")->mapToScene(QPointF(8, 40)).toPoint();
    const QPoint to = row("c.wav")->mapToScene(QPointF(8, 90)).toPoint();
    QTest::mousePress(m_window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step) {
        QTest::mouseMove(m_window, from + (to - from) * step / 4);
    }
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, to);
    QTRY_COMPARE(order(), QStringLiteral("bca"));
}

QTEST_MAIN(TestTaskListView)
#include "tst_tasklistview.moc"
