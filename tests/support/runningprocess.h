#ifndef TESTS_SUPPORT_RUNNINGPROCESS_H
#define TESTS_SUPPORT_RUNNINGPROCESS_H

#include <QFile>

/*! Whether there is a process with this id that isn't dead; one that nobody waits for stays listed.
 */
inline bool isRunning(qint64 id)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(id));
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray stat = file.readAll();
    return stat.mid(stat.lastIndexOf(')') + 2, 1) != "Z";
}

#endif
