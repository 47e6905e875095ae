#include "host/tools/tool.h"
#include "tests/host/mediaclips.h"
#include "tests/host/runningprocess.h"
#include "tests/support/messagelog.h"

#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <optional>

constexpr int patience = 30000; // for a shell script, on a busy machine

using Ending = std::function<void(QPointer<Tool> &)>;
Q_DECLARE_METATYPE(Ending)

/*! Tools that are shell scripts in ffmpeg's place, as wrappers of it are. */
class TestTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theOutcomeHoldsWhatNobodyRead();
    void whatAToolStartedEndsWithIt_data();
    void whatAToolStartedEndsWithIt();
    void outputWithoutEndEndsTheTool();
    void outputThatIsReadHasNoLimit();
    void errorsWithoutEndAreKeptShort();
    void aToolThatTakesTooLongIsEnded();
    void aToolWithinItsTimeIsLeftAlone();
    void aToolThatIsNotThereIsToBeInstalled();
    void aToolThatCannotBeStartedIsNotMissing();

private:
    /*! Starts ffmpeg, which is \a script, and keeps its outcome. */
    QPointer<Tool> start(const QString &script, const ToolLimits &limits = {})
    {
        if (!MediaClips::makeStandIn(m_folder->path(), script)) {
            return nullptr;
        }
        return startFfmpeg(limits);
    }
    QPointer<Tool> startFfmpeg(const ToolLimits &limits = {})
    {
        qputenv("PATH", MediaClips::pathWith(m_folder->path()));
        return new Tool(
            QStringLiteral("ffmpeg"), {},
            [this](const ToolOutcome &outcome) { m_outcomes.append(outcome); }, &m_owner, limits);
    }
    /*! The id of the process that the script has written into this file; 0 before. */
    qint64 idIn(const QString &name) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
    }

    QByteArray m_path;
    QObject m_owner;
    std::optional<QTemporaryDir> m_folder;
    std::optional<MessageLog> m_log;
    QVector<ToolOutcome> m_outcomes;
};

void TestTool::init()
{
    m_path = qgetenv("PATH");
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_log.emplace();
    m_outcomes.clear();
}

void TestTool::cleanup()
{
    qputenv("PATH", m_path);
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
    m_folder.reset();
}

void TestTool::theOutcomeHoldsWhatNobodyRead()
{
    start(QStringLiteral("echo told; echo '[libx264 @ 0x55d] bad option' >&2; exit 3"));
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    const ToolOutcome outcome = m_outcomes.constFirst();
    QVERIFY(outcome.started);
    QVERIFY(!outcome.exitedCleanly);
    QCOMPARE(outcome.excess, ToolOutcome::None);
    QCOMPARE(outcome.output, QByteArray("told\n"));
    QCOMPARE(outcome.firstError(), QStringLiteral("bad option"));
}

void TestTool::whatAToolStartedEndsWithIt_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<Ending>("end");
    QTest::addColumn<bool>("isTold");
    QTest::addColumn<int>("milliseconds");

    const QString worker = QStringLiteral("sleep 1000 & echo $! > \"${0%/*}/worker\"\n");
    const Ending byItself = [](QPointer<Tool> &) {};
    const auto row = [&worker](const char *name, const char *script, const Ending &end,
                               bool isTold = true, int milliseconds = 0) {
        QTest::newRow(name) << worker + QLatin1String(script) << end << isTold << milliseconds;
    };
    row("stopped", "wait", [](QPointer<Tool> &tool) { tool->stop(); });
    row(
        "destroyed", "wait", [](QPointer<Tool> &tool) { delete tool; }, false);
    row("too long", "wait", byItself, true, 5000);
    row("too much output", "yes", byItself);
    row("ended by itself", "exit 0", byItself);
    row("killed by someone else", "kill -9 $$", byItself);
}

void TestTool::whatAToolStartedEndsWithIt()
{
    QFETCH(QString, script);
    QFETCH(Ending, end);
    QFETCH(bool, isTold);
    QFETCH(int, milliseconds);
    QPointer<Tool> tool = start(script, {100000, milliseconds});
    QTRY_VERIFY_WITH_TIMEOUT(idIn(QStringLiteral("worker")) > 0, patience);
    end(tool);
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(idIn(QStringLiteral("worker"))), patience);
    QTRY_VERIFY_WITH_TIMEOUT(tool.isNull(), patience);
    QCOMPARE(m_outcomes.size(), isTold ? 1 : 0);
}

void TestTool::outputWithoutEndEndsTheTool()
{
    constexpr int limit = 300000;
    start(QStringLiteral("exec yes"), {limit, 0});
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    const ToolOutcome outcome = m_outcomes.constFirst();
    QCOMPARE(outcome.excess, ToolOutcome::OfOutput);
    QVERIFY(!outcome.exitedCleanly);
    QVERIFY(outcome.output.size() < 3 * limit);
    QCOMPARE(outcome.firstError(), QStringLiteral("ffmpeg printed too much"));
}

void TestTool::outputThatIsReadHasNoLimit()
{
    constexpr int size = 3000000;
    const QPointer<Tool> tool =
        start(QStringLiteral("exec head -c %1 /dev/zero").arg(size), {300000, 0});
    int readBytes = 0;
    connect(tool, &QProcess::readyReadStandardOutput, tool,
            [&readBytes, tool] { readBytes += tool->readAllStandardOutput().size(); });
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    QCOMPARE(m_outcomes.constFirst().excess, ToolOutcome::None);
    QVERIFY(m_outcomes.constFirst().exitedCleanly);
    QCOMPARE(readBytes, size);
}

void TestTool::errorsWithoutEndAreKeptShort()
{
    start(QStringLiteral("echo first >&2; yes | head -c 3000000 >&2; echo last >&2"));
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    const ToolOutcome outcome = m_outcomes.constFirst();
    QVERIFY(outcome.exitedCleanly);
    QVERIFY(outcome.errors.size() <= 32 * 1024);
    QVERIFY(outcome.errors.startsWith("first\n"));
    QVERIFY(outcome.errors.endsWith("last\n"));
}

void TestTool::aToolThatTakesTooLongIsEnded()
{
    start(QStringLiteral("exec sleep 1000"), {1000, 100});
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    QCOMPARE(m_outcomes.constFirst().excess, ToolOutcome::OfTime);
    QVERIFY(!m_outcomes.constFirst().exitedCleanly);
    QCOMPARE(m_outcomes.constFirst().firstError(), QStringLiteral("ffmpeg took too long"));
}

void TestTool::aToolWithinItsTimeIsLeftAlone()
{
    start(QStringLiteral("exit 0"), {1000, 600000});
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    QCOMPARE(m_outcomes.constFirst().excess, ToolOutcome::None);
    QVERIFY(m_outcomes.constFirst().exitedCleanly);
}

void TestTool::aToolThatIsNotThereIsToBeInstalled()
{
    qputenv("PATH", m_folder->path().toLocal8Bit());
    const Tool *tool = new Tool(
        QStringLiteral("ffmpeg"), {},
        [this](const ToolOutcome &outcome) { m_outcomes.append(outcome); }, &m_owner);
    QVERIFY(tool != nullptr);
    QVERIFY(m_outcomes.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    QVERIFY(!m_outcomes.constFirst().started);
    QCOMPARE(m_outcomes.constFirst().notStartedText(),
             QStringLiteral("ffmpeg is not on the PATH; install ffmpeg (Debian: apt-get install "
                            "ffmpeg) and try again"));
}

void TestTool::aToolThatCannotBeStartedIsNotMissing()
{
    QFile file(m_folder->filePath(QStringLiteral("ffmpeg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no program") > 0);
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    file.close();
    startFfmpeg();
    QTRY_COMPARE_WITH_TIMEOUT(m_outcomes.size(), 1, patience);
    QVERIFY(!m_outcomes.constFirst().started);
    const QString text = m_outcomes.constFirst().notStartedText();
    QVERIFY2(text.startsWith(QStringLiteral("ffmpeg couldn't be started (")), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestTool)
#include "tst_tool.moc"
