#include "host/presets/folderlock.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QSysInfo>
#include <QThread>

namespace {

/*! "vexconvert (process 123 on desk)", as the holder wrote it into the lock file. */
QString holderIn(const QString &path)
{
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QStringList lines =
        QString::fromUtf8(isOpen ? file.read(1024) : QByteArray()).split(QLatin1Char('\n'));
    return lines.size() < 3
               ? FolderLock::tr("another program")
               : FolderLock::tr("%1 (process %2 on %3)").arg(lines.at(1), lines.at(0), lines.at(2));
}

/*! For messages only: the lock doesn't depend on it. */
void writeHolder(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QStringLiteral("%1\n%2\n%3\n")
                       .arg(QString::number(QCoreApplication::applicationPid()),
                            QCoreApplication::applicationName(), QSysInfo::machineHostName())
                       .toUtf8());
    }
}

} // namespace

Result<> FolderLock::lock(const QString &folder, int patience, const Report &report)
{
    constexpr int pause = 20;      // ms
    constexpr int unnoticed = 300; // ms; shorter waits aren't reported
    const QString shownFolder = QDir::toNativeSeparators(folder);
    const QString path = QDir(folder).absoluteFilePath(QStringLiteral("vexconvert.lock"));
    QDir().mkpath(folder);
    const QFileInfo file(path);
    if (file.isSymLink() || (file.exists() && !file.isFile())) {
        // Writing would change another file, and reading a pipe would block forever.
        return failed(tr("%1 is no plain file; remove it").arg(QDir::toNativeSeparators(path)));
    }
    // Creates the file, but keeps what another process wrote into it.
    QFile(path).open(QIODevice::ReadWrite);

    QElapsedTimer total;
    QElapsedTimer sinceChange;
    total.start();
    sinceChange.start();
    QString holder;
    bool isReported = false;
    for (;;) {
        const Result<> locked = m_lock.tryLock(path);
        if (locked) {
            writeHolder(path);
            return {};
        }
        if (locked.error().kind != Error::InUse) {
            return failed(tr("can't write into the configuration folder %1 (%2); name another one")
                              .arg(shownFolder, locked.error().text));
        }
        const QString current = holderIn(path);
        if (current != holder) {
            holder = current;
            sinceChange.restart();
        }
        if (sinceChange.elapsed() >= patience) {
            return failed(
                tr("%1 is using the presets in %2; close it, or try again when it is done")
                    .arg(holder, shownFolder),
                Error::InUse);
        }
        if (report && !isReported && total.elapsed() >= unnoticed) {
            report(tr("waiting for %1, which is using the presets in %2").arg(holder, shownFolder));
            isReported = true;
        }
        QThread::msleep(pause);
    }
}
