#include "host/window/queuekeeper.h"

#include "host/window/page.h"
#include "host/window/toolfun.h"

#include <algorithm>

QueueKeeper::QueueKeeper(const QString &path, const QMap<QString, Page *> &pages)
    : m_pages(pages)
    , m_file(path)
{
    constexpr int pause = 500; // a kill loses no more than this
    m_change.setSingleShot(true);
    m_change.setInterval(pause);
    connect(&m_change, &QTimer::timeout, this, &QueueKeeper::save);
    connect(&m_file, &QueueFile::writeFailed, this, &QueueKeeper::noticed);
}

void QueueKeeper::restore()
{
    const Result<KeptQueue> kept = m_file.read();
    if (!kept) {
        Q_EMIT noticed(kept.error().text);
    }
    bool wasInterrupted = false;
    for (auto page = m_pages.begin(); page != m_pages.end(); ++page) {
        const QVector<KeptTask> tasks = kept ? kept->pages.value(page.key()) : QVector<KeptTask>();
        page.value()->restore(tasks);
        wasInterrupted =
            wasInterrupted || std::any_of(tasks.begin(), tasks.end(), [](const KeptTask &task) {
                return task.status == KeptTask::Interrupted;
            });
        connect(page.value()->tasks(), &TaskList::edited, this, [this] {
            if (!m_change.isActive()) {
                m_change.start();
            }
        });
    }
    if (wasInterrupted) {
        Q_EMIT noticed(ToolFun::text(QStringLiteral(
            "VexConvert was closed while it converted; Convert All goes on with what is left")));
    }
}

void QueueKeeper::flush()
{
    m_change.stop();
    save();
    m_file.waitForWritten();
}

void QueueKeeper::save()
{
    KeptQueue queue;
    for (auto page = m_pages.begin(); page != m_pages.end(); ++page) {
        queue.pages.insert(page.key(), page.value()->kept());
    }
    m_file.write(queue);
}
