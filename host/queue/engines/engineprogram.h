#ifndef QUEUE_ENGINES_ENGINEPROGRAM_H
#define QUEUE_ENGINES_ENGINEPROGRAM_H

#include "host/error.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QProcess>
#include <QString>
#include <QStringList>

/*! A program of an engine, on the PATH. */
struct EngineProgram
{
    Q_DECLARE_TR_FUNCTIONS(EngineProgram)
public:
    QString name;
    QString package; //!< Debian's, which holds it

    /*! An error that names the package if it isn't on the PATH. */
    [[nodiscard]] Result<> find() const;
    /*! Waits for the program, and returns what it printed. An error if it isn't there, or says that
     *  it failed: then the text is the first line that it printed on standard error. */
    [[nodiscard]] Result<QByteArray> output(const QStringList &arguments) const;
    /*! The first line that the failed program printed on standard error. */
    [[nodiscard]] QString complaint(QProcess &process) const;
};

/*! A process that gets no Ctrl-C of the terminal and is asked to end when this one has ended,
 * however that was. */
class EngineProcess : public QProcess
{
    Q_OBJECT

protected:
    void setupChildProcess() override;
};

#endif
