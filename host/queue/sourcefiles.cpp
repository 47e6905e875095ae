#include "host/queue/sourcefiles.h"

#include "host/media/mediafiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

/*! QDir would hold all facts of each file while it sorts. */
QStringList sortedNames(const QString &folder, QDir::Filters filters)
{
    QStringList names;
    QDirIterator entries(folder, filters);
    while (entries.hasNext()) {
        entries.next();
        names << entries.fileName();
    }
    names.sort();
    return names;
}

} // namespace

Result<> SourceFiles::leaveOut(const QString &folder)
{
    m_leftOut = QFileInfo(folder).canonicalFilePath();
    for (const QString &name : qAsConst(m_named)) {
        if (isFolder(name) && QFileInfo(name).canonicalFilePath() == m_leftOut) {
            return failed(tr("the results can't go into %1 itself, where they would be taken for "
                             "sources; choose another folder with --to")
                              .arg(name));
        }
    }
    return {};
}

QStringList SourceFiles::folders() const
{
    QStringList folders;
    std::copy_if(m_named.begin(), m_named.end(), std::back_inserter(folders), isFolder);
    return folders;
}

void SourceFiles::each(const Take &take) const
{
    const Take takeKept = [this, &take](const SourceFile &file) {
        if (!m_only || m_only->contains(file.path)) {
            take(file);
        }
    };
    for (const QString &name : m_named) {
        if (isFolder(name)) {
            eachIn(name, {}, takeKept);
        } else {
            takeKept({name, {}});
        }
    }
}

void SourceFiles::eachIn(const QString &folder, const QString &subfolder, const Take &take) const
{
    const QStringList names = sortedNames(folder, QDir::Files);
    for (const QString &name : names) {
        if (isMediaName(name)) {
            take({QDir(folder).filePath(name), subfolder});
        }
    }
    if (!m_isRecursive) {
        return;
    }
    const QStringList folders =
        sortedNames(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : folders) {
        const QString path = QDir(folder).filePath(name);
        if (m_leftOut.isEmpty() || QFileInfo(path).canonicalFilePath() != m_leftOut) {
            eachIn(path, subfolder.isEmpty() ? name : subfolder + QLatin1Char('/') + name, take);
        }
    }
}

QStringList pathsInList(const QByteArray &list)
{
    const char separator = list.contains('\0') ? '\0' : '\n';
    QStringList paths;
    const QList<QByteArray> entries = list.split(separator);
    for (const QByteArray &entry : entries) {
        const QString path = QFile::decodeName(entry);
        if (!path.isEmpty()) {
            paths << path;
        }
    }
    return paths;
}
