#ifndef TESTS_SUPPORT_TESTFILES_H
#define TESTS_SUPPORT_TESTFILES_H

#include <QByteArray>
#include <QFile>
#include <QString>

/*! "missing" also for a file that can't be read. */
[[nodiscard]] inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

/*! False unless the file has all of the content. */
[[nodiscard]] inline bool writeFile(const QString &path, const QByteArray &content = {})
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

#endif
