#include "tests/host/queue/engines/paralleltest.h"

void ParallelTest::initTestCase()
{
    const QString missing = lacking({{QStringLiteral("parallel"), QStringLiteral("parallel")},
                                     {QStringLiteral("rsync"), QStringLiteral("rsync")},
                                     {QStringLiteral("sshd"), QStringLiteral("openssh-server")}});
    if (!missing.isEmpty()) {
        QSKIP(qPrintable(missing));
    }
    EngineTest::initTestCase();
    m_ssh = m_daemons.start(QStringLiteral("ssh.sh"));
    QVERIFY(!m_ssh.isEmpty());
    for (const char *machine : {"alpha", "beta"}) {
        QVERIFY(QFile::link(QStringLiteral(VEXCONVERT), m_daemons.filePath(QLatin1String(machine)) +
                                                            QStringLiteral("/bin/vexconvert")));
    }
}

void ParallelTest::init()
{
    EngineTest::init();
    for (const char *program : {"/ffmpeg", "/rsync"}) {
        QFile::remove(alphasPrograms() + QLatin1String(program));
    }
    m_environment.insert(QStringLiteral("PATH"),
                         m_ssh + QLatin1Char(':') + m_environment.value(QStringLiteral("PATH")));
}

CommandRun ParallelTest::submit(const QString &hosts, int sideBySide) const
{
    return run({QStringLiteral("submit"), QStringLiteral("jobs.jsonl"), QStringLiteral("--engine"),
                QStringLiteral("parallel"), QStringLiteral("--hosts"), hosts,
                QStringLiteral("--jobs"), QString::number(sideBySide)});
}

QStringList ParallelTest::leftOnMachines() const
{
    QStringList left;
    for (const char *machine : {"alpha", "beta"}) {
        left += QDir(m_daemons.filePath(QLatin1String(machine)))
                    .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    left.removeAll(QStringLiteral("bin"));
    return left;
}
