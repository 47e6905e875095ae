#include "host/queue/watchjournal.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString stateOf(const QString &path)
{
    const QFileInfo file(path);
    return QStringLiteral("%1 bytes, %2")
        .arg(file.size())
        .arg(file.lastModified().toUTC().toString(Qt::ISODateWithMs));
}

QString keyOf(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

} // namespace

Result<> WatchJournal::open(const QString &folder)
{
    m_file.setFileName(QDir(folder).filePath(QStringLiteral(".vexconvert-watched.jsonl")));
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Append)) {
        return failed(tr("can't write into the folder %1 (%2); choose another one with --to")
                          .arg(QDir::toNativeSeparators(folder), m_file.errorString()));
    }
    const Result<> locked = m_lock.tryLock(m_file.fileName());
    if (!locked) {
        return locked.error().kind == Error::InUse
                   ? failed(tr("another watch writes into the folder %1; end it, or choose another "
                               "folder with --to")
                                .arg(QDir::toNativeSeparators(folder)),
                            Error::InUse)
                   : failed(locked);
    }
    m_file.seek(0);
    bool isWholeLine = true;
    while (!m_file.atEnd()) {
        const QByteArray line = m_file.readLine();
        isWholeLine = line.endsWith('\n');
        // A line that was cut off by a kill is worth nothing: its step wasn't taken.
        const QJsonObject read = QJsonDocument::fromJson(line).object();
        const QString source = read.value(QStringLiteral("source")).toString();
        if (!source.isEmpty()) {
            m_entries.insert(source, {read.value(QStringLiteral("state")).toString(),
                                      read.value(QStringLiteral("target")).toString(),
                                      read.value(QStringLiteral("isDone")).toBool()});
        }
    }
    if (!isWholeLine) {
        m_file.write("\n");
    }
    return {};
}

bool WatchJournal::isDone(const QString &source) const
{
    const Entry entry = m_entries.value(keyOf(source));
    return entry.isDone && entry.state == stateOf(source);
}

QString WatchJournal::promisedTarget(const QString &source) const
{
    const Entry entry = m_entries.value(keyOf(source));
    return !entry.isDone && entry.state == stateOf(source) ? entry.target : QString();
}

Result<> WatchJournal::promise(const QString &source, const QString &target)
{
    return append(keyOf(source), {stateOf(source), target});
}

Result<> WatchJournal::finish(const QString &source)
{
    Entry entry = m_entries.value(keyOf(source));
    entry.isDone = true;
    return append(keyOf(source), entry);
}

Result<> WatchJournal::append(const QString &source, const Entry &entry)
{
    m_entries.insert(source, entry);
    const QJsonObject line{{QStringLiteral("source"), source},
                           {QStringLiteral("state"), entry.state},
                           {QStringLiteral("target"), entry.target},
                           {QStringLiteral("isDone"), entry.isDone}};
    const QByteArray bytes = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    if (m_file.write(bytes) != bytes.size() || !m_file.flush()) {
        return failed(tr("can't write to %1 (%2); free some space")
                          .arg(QDir::toNativeSeparators(m_file.fileName()), m_file.errorString()));
    }
    return {};
}
