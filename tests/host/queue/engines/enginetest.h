#ifndef HOST_QUEUE_ENGINES_ENGINETEST_H
#define HOST_QUEUE_ENGINES_ENGINETEST_H

#include "tests/support/commandrun.h"

#include <QDir>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! A script beside this file that runs an engine's daemons in a folder of its own. */
class EngineDaemons
{
    Q_DISABLE_COPY(EngineDaemons)

public:
    EngineDaemons() = default;
    ~EngineDaemons();

    /*! What the script prints when all are ready; empty if they don't get so. */
    [[nodiscard]] QString start(const QString &script);
    [[nodiscard]] QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
};

/*!
 * Plans of 3 songs whose names hold whatever a name can, given to a real engine. The song "broken"
 * isn't one.
 */
class EngineTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    /*! The first one that isn't installed, with Debian's package; empty: none. */
    [[nodiscard]] static QString lacking(const QList<QPair<QString, QString>> &programs);

    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString source(const QString &name) const;
    [[nodiscard]] bool makeSource(const QString &name) const;
    /*! Makes sources until there are so many jobs, and the plan. */
    [[nodiscard]] bool makeJobs(int count);

    void start(QProcess &process, const QStringList &arguments) const;
    [[nodiscard]] CommandRun run(const QStringList &arguments) const;
    [[nodiscard]] CommandRun run(const char *words) const;

    /*! Replaces the ffmpeg in \a folder by one that does \a script before its work. */
    [[nodiscard]] static bool makeFfmpeg(const QString &folder, const QString &script);

    /*! The names of the results without their extension; hidden files have theirs. */
    [[nodiscard]] QStringList results() const;
    [[nodiscard]] QStringList wholeResults() const;
    /*! Of each result, when it was written. */
    [[nodiscard]] QMap<QString, QDateTime> dates() const;

    QStringList m_names; //!< of the songs that can be converted, sorted
    QTemporaryDir m_clips;
    std::optional<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
};

#endif
