#include "host/tools/tool.h"
#include "tests/support/mediaclips.h"
#include "tests/support/messagelog.h"
#include "tests/support/runningprocess.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>
#include <optional>

constexpr int patience = 30000; // for a shell script, on a busy machine

using Ending = std::function<void(std::unique_ptr<Tool> &)>;
Q_DECLARE_METATYPE(Ending)

/*! Tools that are shell scripts in ffmpeg's place, as wrappers of it are. */
class TestTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theResultContainsTheUnreadOutput();
    void processesThatAToolStartedEndWithIt_data();
    void processesThatAToolStartedEndWithIt();
    void endlessOutputEndsTheTool();
    void readOutputIsUnlimited();
    void endlessErrorsAreShortened();
    void aToolThatTakesTooLongIsEnded();
    void aToolWithinItsTimeIsLeftAlone();
    void aStoppedToolIsCancelled();
    void aToolCanBeStartedAgain_data();
    void aToolCanBeStartedAgain();
    void aRunningToolIsAbandonedForTheNextRun();
    void onlyAToolThatExitsCleanlyHasACleanOutput();
    void aMissingToolShouldBeInstalled();
    void aToolThatCannotStartIsNotReportedMissing();

private:
    /*! Starts ffmpeg, which is \a script, and keeps how it ends. */
    void start(const QString &script, const ToolLimits &limits = {})
    {
        QVERIFY(MediaClips::makeStandIn(m_folder->path(), script));
        startFfmpeg(limits);
    }
    void startFfmpeg(const ToolLimits &limits = {})
    {
        qputenv("PATH", MediaClips::pathWith(m_folder->path()));
        m_tool->start(ffmpegCall({}), limits);
    }
    ToolRun run() const { return m_runs.constFirst().value_or(ToolRun()); }
    QString startError() const
    {
        return m_runs.constFirst() ? QString() : m_runs.constFirst().error().text;
    }
    /*! The id of the process that the script has written into this file; 0 before. */
    qint64 idIn(const QString &name) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
    }

    QByteArray m_path;
    std::optional<QTemporaryDir> m_folder;
    std::optional<MessageLog> m_log;
    QVector<Result<ToolRun>> m_runs;
    std::unique_ptr<Tool> m_tool;
};

void TestTool::init()
{
    m_path = qgetenv("PATH");
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_log.emplace();
    m_runs.clear();
    m_tool = std::make_unique<Tool>();
    connect(m_tool.get(), &Tool::finished, this,
            [this](const Result<ToolRun> &run) { m_runs.append(run); });
}

void TestTool::cleanup()
{
    m_tool.reset();
    qputenv("PATH", m_path);
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
    m_folder.reset();
}

void TestTool::theResultContainsTheUnreadOutput()
{
    start(QStringLiteral("echo output; echo '[libx264 @ 0x55d] bad option' >&2; exit 3"));
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QVERIFY(m_runs.constFirst());
    const ToolRun outcome = run();
    QVERIFY(!outcome.exitedCleanly);
    QCOMPARE(outcome.excess, ToolRun::None);
    QCOMPARE(outcome.output, QByteArray("output\n"));
    QCOMPARE(outcome.firstError(), QStringLiteral("bad option"));
}

void TestTool::processesThatAToolStartedEndWithIt_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<Ending>("end");
    QTest::addColumn<bool>("isReported");
    QTest::addColumn<int>("milliseconds");

    const QString worker = QStringLiteral("sleep 1000 & echo $! > \"${0%/*}/worker\"\n");
    const Ending byItself = [](std::unique_ptr<Tool> &) {};
    const auto row = [&worker](const char *name, const char *script, const Ending &end,
                               bool isReported = true, int milliseconds = 0) {
        QTest::newRow(name) << worker + QLatin1String(script) << end << isReported << milliseconds;
    };
    row("stopped", "wait", [](std::unique_ptr<Tool> &tool) { tool->stop(); });
    row(
        "destroyed", "wait", [](std::unique_ptr<Tool> &tool) { tool.reset(); }, false);
    row(
        "abandoned", "wait", [](std::unique_ptr<Tool> &tool) { tool->abandon(); }, false);
    row("too long", "wait", byItself, true, 5000);
    row("too much output", "yes", byItself);
    row("ended by itself", "exit 0", byItself);
    row("killed by someone else", "kill -9 $$", byItself);
}

void TestTool::processesThatAToolStartedEndWithIt()
{
    QFETCH(QString, script);
    QFETCH(Ending, end);
    QFETCH(bool, isReported);
    QFETCH(int, milliseconds);
    start(script, {100000, milliseconds});
    QTRY_VERIFY_WITH_TIMEOUT(idIn(QStringLiteral("worker")) > 0, patience);
    end(m_tool);
    QTRY_VERIFY_WITH_TIMEOUT(!isRunning(idIn(QStringLiteral("worker"))), patience);
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), isReported ? 1 : 0, patience);
    QCoreApplication::processEvents();
    QCOMPARE(m_runs.size(), isReported ? 1 : 0);
}

void TestTool::endlessOutputEndsTheTool()
{
    constexpr int limit = 300000;
    start(QStringLiteral("exec yes"), {limit, 0});
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    const ToolRun outcome = run();
    QCOMPARE(outcome.excess, ToolRun::OfOutput);
    QVERIFY(!outcome.exitedCleanly);
    QVERIFY(outcome.output.size() < 3 * limit);
    QCOMPARE(outcome.firstError(), QStringLiteral("ffmpeg printed too much"));
}

void TestTool::readOutputIsUnlimited()
{
    constexpr int size = 3000000;
    int readBytes = 0;
    connect(m_tool.get(), &Tool::outputReady, this,
            [this, &readBytes] { readBytes += m_tool->readOutput().size(); });
    start(QStringLiteral("exec head -c %1 /dev/zero").arg(size), {300000, 0});
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QCOMPARE(run().excess, ToolRun::None);
    QVERIFY(run().exitedCleanly);
    QCOMPARE(readBytes, size);
}

void TestTool::endlessErrorsAreShortened()
{
    start(QStringLiteral("echo first >&2; yes | head -c 3000000 >&2; echo last >&2"));
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    const ToolRun outcome = run();
    QVERIFY(outcome.exitedCleanly);
    QCOMPARE(outcome.errors.size(), 32 * 1024);
    QVERIFY(outcome.errors.startsWith("first\n"));
    QVERIFY(outcome.errors.endsWith("last\n"));
}

void TestTool::aToolThatTakesTooLongIsEnded()
{
    start(QStringLiteral("exec sleep 1000"), {1000, 100});
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QCOMPARE(run().excess, ToolRun::OfTime);
    QVERIFY(!run().exitedCleanly);
    QCOMPARE(run().firstError(), QStringLiteral("ffmpeg took too long"));
}

void TestTool::aToolWithinItsTimeIsLeftAlone()
{
    start(QStringLiteral("exit 0"), {1000, 600000});
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QCOMPARE(run().excess, ToolRun::None);
    QVERIFY(run().exitedCleanly);
}

void TestTool::aStoppedToolIsCancelled()
{
    start(QStringLiteral("exec sleep 1000"));
    m_tool->stop();
    QVERIFY(m_runs.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QVERIFY(!m_runs.constFirst());
    QCOMPARE(m_runs.constFirst().error().kind, Error::Cancelled);
    // There is nothing left to stop.
    m_tool->stop();
    QCoreApplication::processEvents();
    QCOMPARE(m_runs.size(), 1);
}

void TestTool::aToolCanBeStartedAgain_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<Ending>("end");
    QTest::addColumn<int>("milliseconds");
    const Ending byItself = [](std::unique_ptr<Tool> &) {};
    QTest::newRow("after its end")
        << QStringLiteral("echo old; echo old >&2; exit 1") << byItself << 0;
    QTest::newRow("after a limit") << QStringLiteral("exec sleep 1000") << byItself << 100;
    QTest::newRow("stopped") << QStringLiteral("exec sleep 1000")
                             << Ending([](std::unique_ptr<Tool> &tool) { tool->stop(); }) << 0;
}

void TestTool::aToolCanBeStartedAgain()
{
    QFETCH(QString, first);
    QFETCH(Ending, end);
    QFETCH(int, milliseconds);
    start(first, {1000, milliseconds});
    end(m_tool);
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    start(QStringLiteral("echo new; echo 'new trouble' >&2"));
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 2, patience);
    const Result<ToolRun> second = m_runs.constLast();
    QVERIFY(second);
    QVERIFY(second->exitedCleanly);
    QCOMPARE(second->excess, ToolRun::None);
    QCOMPARE(second->output, QByteArray("new\n"));
    QCOMPARE(second->errors, QByteArray("new trouble\n"));
}

void TestTool::aRunningToolIsAbandonedForTheNextRun()
{
    start(QStringLiteral("echo old; exec sleep 1000"));
    start(QStringLiteral("echo new"));
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QCOMPARE(run().output, QByteArray("new\n"));
}

void TestTool::onlyAToolThatExitsCleanlyHasACleanOutput()
{
    start(QStringLiteral("echo output"));
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QCOMPARE(cleanOutput(m_runs.at(0)).value_or(QByteArray()), QByteArray("output\n"));
    start(QStringLiteral("echo output; echo trouble >&2; exit 1"));
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 2, patience);
    QCOMPARE(cleanOutput(m_runs.at(1)).error().text, QStringLiteral("trouble"));
    QCOMPARE(cleanOutput(failed({}, Error::Cancelled)).error().kind, Error::Cancelled);
}

void TestTool::aMissingToolShouldBeInstalled()
{
    qputenv("PATH", m_folder->path().toLocal8Bit());
    m_tool->start(ffmpegCall({}));
    QVERIFY(m_runs.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QVERIFY(!m_runs.constFirst());
    QCOMPARE(startError(),
             QStringLiteral("ffmpeg is not on the PATH; install ffmpeg (Debian: apt-get install "
                            "ffmpeg) and try again"));
}

void TestTool::aToolThatCannotStartIsNotReportedMissing()
{
    QFile file(m_folder->filePath(QStringLiteral("ffmpeg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no program") > 0);
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    file.close();
    startFfmpeg();
    QTRY_COMPARE_WITH_TIMEOUT(m_runs.size(), 1, patience);
    QVERIFY(!m_runs.constFirst());
    const QString text = startError();
    QVERIFY2(text.startsWith(QStringLiteral("ffmpeg couldn't be started (")), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestTool)
#include "tst_tool.moc"
