#include "tests/host/window/listviewtest.h"

#include "host/app/languages.h"
#include "tests/support/mediaclips.h"

using namespace WindowUser;

void ListViewTest::initTestCase()
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

void ListViewTest::init()
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

void ListViewTest::cleanup()
{
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

QQuickItem *ListViewTest::row(const char *name) const
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

void ListViewTest::clickRow(const char *name, Qt::KeyboardModifiers modifiers,
                            Qt::MouseButton button)
{
    QTRY_VERIFY_WITH_TIMEOUT(row(name) != nullptr, patience);
    const QPoint place = row(name)->mapToScene(QPointF(200, 26)).toPoint();
    QTest::mouseClick(m_window, button, modifiers, place);
}

QString ListViewTest::selected() const
{
    QString names;
    for (const Task &task : page().tasks()->tasks()) {
        names += task.isSelected ? QFileInfo(task.source).baseName() : QString();
    }
    return names;
}

QString ListViewTest::order() const
{
    QString names;
    for (const Task &task : page().tasks()->tasks()) {
        names += QFileInfo(task.source).baseName();
    }
    return names;
}

QList<QQuickItem *> ListViewTest::menuItems() const
{
    QList<QQuickItem *> found;
    const std::function<void(QQuickItem *)> collect = [&](QQuickItem *root) {
        if (root->isVisible() && root->height() > 0 && root->inherits("QQuickMenuItem")) {
            found << root;
        }
        for (QQuickItem *child : root->childItems()) {
            collect(child);
        }
    };
    collect(m_window->contentItem());
    return found;
}

QStringList ListViewTest::menuEntries() const
{
    QStringList names;
    for (QQuickItem *item : menuItems()) {
        names << nameOf(item);
    }
    return names;
}

void ListViewTest::choose(const QString &name)
{
    QPoint place;
    const auto standsStill = [&] {
        const QPoint before = place;
        const int row = menuEntries().indexOf(name);
        place = row < 0 ? QPoint() : middleOf(menuItems().at(row));
        return row >= 0 && place == before;
    };
    QTRY_VERIFY_WITH_TIMEOUT(standsStill(), patience);
    // Qt takes no click on an entry that the pointer hasn't been moved to.
    QTest::mouseMove(m_window, place);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, place);
}
