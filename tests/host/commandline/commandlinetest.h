#ifndef HOST_COMMANDLINE_COMMANDLINETEST_H
#define HOST_COMMANDLINE_COMMANDLINETEST_H

#include "tests/support/commandrun.h"
#include "tests/support/testfiles.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! The command itself, run as a user runs it, over a small catalogue of its own. */
class CommandLineTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString config() const { return path(QStringLiteral("config")); }
    QStringList words(const char *line) const
    {
        return QString::fromUtf8(line).split(QLatin1Char(' '));
    }
    /*! The names of all files in the test's folder, and of what is hidden there. */
    QStringList everything() const;
    void start(QProcess &process, const QStringList &arguments) const;
    CommandRun run(const QStringList &arguments) const;
    CommandRun run(const char *line) const { return run(words(line)); }
    QStringList recentIds() const;

    QProcessEnvironment m_environment;
    QTemporaryDir m_clips; //!< "film.mp4" and the folder "catalogue"
    std::optional<QTemporaryDir> m_folder;
};

#endif
