#ifndef HOST_QUEUE_ENGINES_PARALLELTEST_H
#define HOST_QUEUE_ENGINES_PARALLELTEST_H

#include "tests/host/queue/engines/enginetest.h"

/*! "submit --engine parallel" with GNU parallel, ssh and rsync, and two machines behind sshd. */
class ParallelTest : public EngineTest
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase();
    void init();

protected:
    [[nodiscard]] CommandRun submit(const QString &hosts, int sideBySide = 1) const;
    [[nodiscard]] QString alphasPrograms() const
    {
        return m_daemons.filePath(QStringLiteral("alpha/bin"));
    }
    /*! What is in the machines' home folders, besides their programs. */
    [[nodiscard]] QStringList leftOnMachines() const;

private:
    EngineDaemons m_daemons;
    QString m_ssh; //!< the folder of ssh
};

#endif
