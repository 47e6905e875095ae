#ifndef HOST_PRESETS_TRACEDRUN_H
#define HOST_PRESETS_TRACEDRUN_H

#include <QString>
#include <QStringList>

/*! Runs of a program that end by SIGKILL at a system call of choice. */
namespace TracedRun {

/*!
 * Runs the program and kills it as it enters its system call number \a last, the first one being
 * that which opens a file whose path ends with \a firstFile. Returns how many it has entered: less
 * than \a last when it came to its end, -1 when it can't be traced here.
 */
int killAt(int last, const QString &firstFile, const QString &program,
           const QStringList &arguments);

} // namespace TracedRun

#endif
