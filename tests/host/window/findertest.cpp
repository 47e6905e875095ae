#include "tests/host/window/findertest.h"

#include "host/app/languages.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/support/mediaclips.h"

#include <QDir>

using namespace WindowUser;

void FinderTest::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    const QDir files(m_work.filePath(QStringLiteral("files")));
    QVERIFY(files.mkpath(QStringLiteral(".")));
    for (const char *name : {"a.wav", "b.wav"}) {
        QVERIFY(MediaClips::makeSong(files.filePath(QString::fromLatin1(name))));
    }
    collectWarnings();
}

void FinderTest::init()
{
    QDir(m_work.filePath(QStringLiteral("config"))).removeRecursively();
    openWindow();
    page().setConverterGlobalFormat(mp3);
    page().addPaths({m_work.filePath(QStringLiteral("files"))});
    QTRY_COMPARE_WITH_TIMEOUT(page().tasks()->countOf(Task::Ready), 2, patience);
}

void FinderTest::openWindow()
{
    m_main.reset();
    m_main = std::make_unique<MainWindow>(m_work.filePath(QStringLiteral("config")));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void FinderTest::cleanup()
{
    // The library keeps them for the next window of this process.
    for (const QString &id : ownIds()) {
        m_main->presetActions().remove(id);
    }
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

bool FinderTest::isOpen() const
{
    return m_window->property("finder").value<QObject *>()->property("opened").toBool();
}

bool FinderTest::isShown(const QString &text) const
{
    return !itemsNamed(m_window->contentItem(), text).isEmpty();
}

void FinderTest::find(const QString &text)
{
    QTest::keyClick(m_window, Qt::Key_F, Qt::ControlModifier);
    QTRY_VERIFY_WITH_TIMEOUT(isOpen(), patience);
    type(m_window, text);
    waitForDrawing();
}

void FinderTest::waitForDrawing()
{
    for (int frame = 0; frame < 2; ++frame) {
        QSignalSpy drawn(m_window, &QQuickWindow::afterRendering);
        m_window->update();
        QTRY_VERIFY_WITH_TIMEOUT(!drawn.isEmpty(), patience);
    }
}

QQuickItem *FinderTest::menuEntry(const char *entry)
{
    waitForDrawing();
    QTest::keyClick(m_window, Qt::Key_F10, Qt::ShiftModifier);
    const auto *menu = m_window->findChild<QObject *>(QStringLiteral("presetMenu"));
    const bool isOpened =
        QTest::qWaitFor([menu] { return menu->property("opened").toBool(); }, patience);
    waitForDrawing();
    // The page below has texts like those of the menu.
    auto *entries = menu->property("contentItem").value<QQuickItem *>();
    return isOpened ? itemsNamed(entries, QString::fromUtf8(entry)).value(0) : nullptr;
}

void FinderTest::choose(const char *entry)
{
    const QQuickItem *found = menuEntry(entry);
    QVERIFY2(found != nullptr, entry);
    QTest::mouseClick(m_window, Qt::LeftButton, {}, middleOf(found));
}

QString FinderTest::makeOwn(const QString &title)
{
    PresetActions &actions = m_main->presetActions();
    QString own = actions.duplicate(QStringLiteral("Video_MP4_005"));
    actions.rename(own, title);
    QTest::qWait(0); // until it is saved
    return own;
}

QStringList FinderTest::ownIds() const
{
    const FormatListModel &formats = *FormatsProxy::getInstance()->formatListModel();
    QStringList ids;
    for (int row = 0; row < formats.rowCount(); ++row) {
        QQueue<FormatDetailModelData> presets;
        if (const auto *list = formats.formatDetailModel(formats.getTitle(row))) {
            list->getModelInfo(presets);
        }
        for (const FormatDetailModelData &preset : qAsConst(presets)) {
            if (preset.userDefine) {
                ids << preset.id;
            }
        }
    }
    return ids;
}

QStringList FinderTest::ownTitles() const
{
    QStringList titles;
    for (const QString &id : ownIds()) {
        titles << m_main->presetActions().title(id);
    }
    return titles;
}
