#include "host/files/keptfiles.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <functional>
#include <string>
#include <system_error>

#include <sys/stat.h>

namespace {

size_t hashOfName(const QString &path)
{
    return std::hash<std::string>()(
        QFile::encodeName(QFileInfo(path).absoluteFilePath()).toStdString());
}

/*! Of the file itself, whatever its name; that of the name if it doesn't exist. */
size_t hashOfFile(const QString &path)
{
    struct stat file = {};
    if (stat(QFile::encodeName(path).constData(), &file) != 0) {
        return hashOfName(path);
    }
    return std::hash<std::string>()(std::to_string(file.st_dev) + '/' +
                                    std::to_string(file.st_ino));
}

} // namespace

void KeptFiles::addFile(const QString &path)
{
    m_hashes.insert(hashOfFile(path));
}

void KeptFiles::addName(const QString &path)
{
    m_hashes.insert(hashOfName(path));
}

bool KeptFiles::contains(const QString &path) const
{
    return m_hashes.count(hashOfName(path)) > 0 || m_hashes.count(hashOfFile(path)) > 0;
}

bool isSameFile(const QString &one, const QString &other)
{
    std::error_code missing;
    return std::filesystem::equivalent(QFile::encodeName(one).toStdString(),
                                       QFile::encodeName(other).toStdString(), missing);
}
