#include "host/files/localpath.h"

#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <algorithm>
#include <iterator>

QString localPath(const QUrl &url)
{
    // Some programs put the machine's name into the URLs that they drop.
    const QString host = url.host();
    const bool isHere = host.isEmpty() || host == QLatin1String("localhost") ||
                        host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    if (!url.isLocalFile() || !isHere) {
        return {};
    }
    // Only the encoded form has bytes that are not valid UTF-8, unless the URL was made from a
    // path.
    const QString path = url.path(QUrl::FullyDecoded);
    return path.contains(QChar::ReplacementCharacter)
               ? QFile::decodeName(
                     QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()))
               : path;
}

QStringList localPaths(const QList<QUrl> &urls)
{
    QStringList paths;
    std::transform(urls.begin(), urls.end(), std::back_inserter(paths), localPath);
    paths.removeAll(QString());
    return paths;
}

QUrl localUrl(const QString &path)
{
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    return QUrl::fromEncoded("file://" + name.toPercentEncoding("/"));
}
