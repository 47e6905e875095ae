#include "tests/host/window/pagetest.h"

void PageTest::initTestCase()
{
    m_store = std::make_unique<PresetStore>(*FormatsProxy::getInstance(), m_config.path());
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    m_settings =
        std::make_unique<WindowSettings>(m_config.filePath(QStringLiteral("vexconvert.ini")));
    m_presets = std::make_unique<Presets>(*m_store);
}

void PageTest::init()
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

void PageTest::cleanup()
{
    m_converter.reset();
    m_editor.reset();
    m_files.reset();
    m_settings->setFolder(std::nullopt, QString());
    m_settings->setNameTemplate(std::nullopt, QString());
    m_settings->setIfInUse(std::nullopt, WindowSettings::Rename);
    m_settings->setKeepsTree(std::nullopt, true);
}

QUrl PageTest::song(const QString &name)
{
    const QString path = m_files->filePath(name);
    return MediaClips::makeSong(path) ? QUrl::fromLocalFile(path) : QUrl();
}

QStringList PageTest::names(Page &page) const
{
    QStringList names;
    for (const Task &task : page.tasks()->tasks()) {
        names << QFileInfo(task.source).fileName();
    }
    return names;
}

QUrl PageTest::noMedia()
{
    QFile broken(m_files->filePath(QStringLiteral("broken.mp4")));
    return broken.open(QIODevice::WriteOnly) && broken.write("no film") > 0
               ? QUrl::fromLocalFile(broken.fileName())
               : QUrl();
}

int PageTest::addReady(Page &page, const QUrl &url)
{
    page.addFiles({url});
    const int id = page.tasks()->tasks().constLast().id;
    [&] { QTRY_COMPARE_WITH_TIMEOUT(task(page, id).state, Task::Ready, patience); }();
    return id;
}
