#include "host/presets/userfile.h"
#include "tests/host/presets/tracedrun.h"
#include "tests/support/commandrun.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

namespace {

// A sanitized program starts ten times slower. What survives is the same in both builds.
#ifdef __SANITIZE_ADDRESS__
constexpr int everySystemCall = 9;
constexpr int randomKills = 100;
constexpr int additionsAtOnce = 20;
#else
constexpr int everySystemCall = 1;
constexpr int randomKills = 1000;
constexpr int additionsAtOnce = 100;
#endif

const QString presetsName = QStringLiteral("formatCache.json");

/*! A process that may write no file larger than that. */
class LimitedProcess : public QProcess
{
public:
    explicit LimitedProcess(rlim_t largestFile)
        : m_limit{largestFile, largestFile}
    {}

protected:
    void setupChildProcess() override { ::setrlimit(RLIMIT_FSIZE, &m_limit); }

private:
    const rlimit m_limit;
};

/*! A small disk in memory, mounted on a folder as long as it lives. */
class SmallDisk
{
    Q_DISABLE_COPY(SmallDisk)

public:
    SmallDisk(const QString &folder, const QString &options)
        : m_folder(QFile::encodeName(folder))
        , m_isMounted(::mount("tmpfs", m_folder.constData(), "tmpfs", 0,
                              options.toLatin1().constData()) == 0)
    {}
    ~SmallDisk()
    {
        if (m_isMounted) {
            ::umount2(m_folder.constData(), MNT_DETACH);
        }
    }
    bool isMounted() const { return m_isMounted; }
    bool makeReadOnly() const
    {
        return ::mount("tmpfs", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) ==
               0;
    }

private:
    const QByteArray m_folder;
    const bool m_isMounted;
};

} // namespace

/*! The user's presets, under everything that can happen to the real program while it saves. */
class TestPresetSafety : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void aKillAtAnySystemCallLosesNothing_data();
    void aKillAtAnySystemCallLosesNothing();
    void aKillAtAnyMomentLosesNothing();
    void aFullDiskLosesNothing_data();
    void aFullDiskLosesNothing();
    void aFileSizeLimitLosesNothing();
    void aReadOnlyFolderIsReported();
    void allPresetsAddedAtTheSameTimeAreStored();
    void aHugeFileIsRefusedAtOnce();
    void anythingButAFileIsRefused();

private:
    QString config() const { return m_folder.filePath(QStringLiteral("config")); }
    QString presets() const { return config() + QLatin1Char('/') + presetsName; }
    QStringList call(const QStringList &words) const
    {
        return QStringList{QStringLiteral("--config"), config(), QStringLiteral("user")} + words;
    }
    CommandRun run(const QStringList &words) const
    {
        QProcess process;
        process.start(QStringLiteral(VEXCONVERT), call(words));
        return CommandRun::of(process);
    }
    /*! Fills the folder with what stood in it before the change that is tried. */
    bool restore() const;
    /*! What the change makes of the presets when nothing disturbs it. */
    QByteArray undisturbed(const QStringList &words);
    void checkIsWhole(const QByteArray &after) const;
    void verifyReported(const CommandRun &result, const QByteArray &after) const;

    QTemporaryDir m_folder;
    QMap<QString, QByteArray> m_before;
};

const QStringList addition = {QStringLiteral("add"), QStringLiteral("Video_MP4_005"),
                              QStringLiteral("--title"), QStringLiteral("New")};

void TestPresetSafety::initTestCase()
{
    qputenv("VEX_EXPORT_CATALOGUE", "");
    // What is traced can't be searched for leaks.
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":detect_leaks=0");
    for (const char *title : {"One", "Two", "Three"}) {
        QCOMPARE(run({QStringLiteral("add"), QStringLiteral("Video_MP4_005"),
                      QStringLiteral("--title"), QString::fromLatin1(title)})
                     .exitCode,
                 0);
    }
    const QDir folder(config());
    for (const QString &name : folder.entryList(QDir::Files)) {
        m_before.insert(name, contentOf(folder.filePath(name)));
    }
    QCOMPARE(QStringList(m_before.keys()),
             (QStringList{presetsName, presetsName + QStringLiteral(".bak"),
                          QStringLiteral("presethistory.json"), QStringLiteral("presetnotes.json"),
                          QStringLiteral("recently.json"), QStringLiteral("recently.json.bak"),
                          QStringLiteral("vexconvert.lock")}));
}

void TestPresetSafety::init()
{
    QVERIFY(restore());
}

bool TestPresetSafety::restore() const
{
    QDir(config()).removeRecursively();
    bool isRestored = QDir().mkpath(config());
    for (auto file = m_before.begin(); file != m_before.end(); ++file) {
        isRestored =
            isRestored && writeFile(config() + QLatin1Char('/') + file.key(), file.value());
    }
    return isRestored;
}

QByteArray TestPresetSafety::undisturbed(const QStringList &words)
{
    const bool isDone = run(words).exitCode == 0;
    const QByteArray after = contentOf(presets());
    return isDone && after != m_before.value(presetsName) && restore() ? after : QByteArray();
}

/*! Each of the two files as it was or as it was to be, and neither needs a repair. */
void TestPresetSafety::checkIsWhole(const QByteArray &after) const
{
    const QByteArray now = contentOf(presets());
    QVERIFY2(now == m_before.value(presetsName) || now == after, now.constData());
    QVERIFY(UserFile(presets()).check());
    const UserFile recently(config() + QStringLiteral("/recently.json"));
    QVERIFY(recently.check());
    QCOMPARE(recently.content()->json, m_before.value(QStringLiteral("recently.json")));
}

/*! What the program says it did is what it did. */
void TestPresetSafety::verifyReported(const CommandRun &result, const QByteArray &after) const
{
    checkIsWhole(after);
    if (result.exitCode == 0) {
        QCOMPARE(contentOf(presets()), after);
        QCOMPARE(result.err, QString());
    } else {
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(contentOf(presets()), m_before.value(presetsName));
        QVERIFY2(
            result.err.contains(QStringLiteral("which is as before")) ||
                result.err.contains(QStringLiteral("can't write into the configuration folder")),
            qUtf8Printable(result.err));
        QCOMPARE(result.out, QString());
    }
}

void TestPresetSafety::aKillAtAnySystemCallLosesNothing_data()
{
    QTest::addColumn<QStringList>("change");
    QTest::newRow("add") << addition;
    QTest::newRow("change") << QStringList{QStringLiteral("change"), QStringLiteral("1002"),
                                           QStringLiteral("--title"), QStringLiteral("Renamed")};
    QTest::newRow("delete") << QStringList{QStringLiteral("delete"), QStringLiteral("1002")};
}

void TestPresetSafety::aKillAtAnySystemCallLosesNothing()
{
    QFETCH(QStringList, change);
    const QByteArray after = undisturbed(change);
    QVERIFY(!after.isEmpty());

    int kills = 0;
    bool wasStored = false;
    for (int last = 1;; last += everySystemCall) {
        const int entered = TracedRun::killAt(last, QStringLiteral("vexconvert.lock"),
                                              QStringLiteral(VEXCONVERT), call(change));
        if (entered < 0) {
            QSKIP("Programs can't be traced here");
        }
        checkIsWhole(after);
        if (QTest::currentTestFailed()) {
            QFAIL(qPrintable(QStringLiteral("killed at system call %1").arg(last)));
        }
        const bool isStored = contentOf(presets()) == after;
        // The next run starts with whatever else this one left.
        QVERIFY(writeFile(presets(), m_before.value(presetsName)));
        if (entered < last) {
            break;
        }
        ++kills;
        wasStored = wasStored || isStored;
    }
    qInfo("%d kills", kills);
    QVERIFY(kills > 150 / everySystemCall);
    QVERIFY(wasStored);

    // All that they left is gone with the next change.
    QVERIFY(writeFile(presets() + QStringLiteral(".bak"), m_before.value(presetsName)));
    QCOMPARE(run(change).exitCode, 0);
    QCOMPARE(contentOf(presets()), after);
    QCOMPARE(QDir(config()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(m_before.keys()));
}

void TestPresetSafety::aKillAtAnyMomentLosesNothing()
{
    QElapsedTimer timer;
    timer.start();
    const QByteArray after = undisturbed(addition);
    QVERIFY(!after.isEmpty());
    const auto duration = quint32(timer.nsecsElapsed() / 1000);

    QRandomGenerator random(1);
    for (int kill = 0; kill < randomKills; ++kill) {
        QProcess process;
        process.start(QStringLiteral(VEXCONVERT), call(addition));
        QVERIFY(process.waitForStarted(patience));
        QThread::usleep(random.bounded(duration));
        process.kill();
        QVERIFY(process.waitForFinished(patience));
        checkIsWhole(after);
        if (QTest::currentTestFailed()) {
            QFAIL(qPrintable(QStringLiteral("kill number %1").arg(kill)));
        }
        QVERIFY(writeFile(presets(), m_before.value(presetsName)));
        QVERIFY(writeFile(presets() + QStringLiteral(".bak"), m_before.value(presetsName)));
    }
}

void TestPresetSafety::aFullDiskLosesNothing_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    // In pages of 4 KiB, and in files; the first ones are just enough for what is there already.
    QTest::newRow("space") << QStringLiteral("size=%1k") << 4 * 12 << 4 * 45;
    QTest::newRow("files") << QStringLiteral("nr_inodes=%1") << 6 << 20;
}

void TestPresetSafety::aFullDiskLosesNothing()
{
    QFETCH(QString, options);
    QFETCH(int, first);
    QFETCH(int, last);
    const QByteArray after = undisturbed(addition);
    QVERIFY(!after.isEmpty());

    int refusals = 0;
    int successes = 0;
    for (int size = first; size <= last; ++size) {
        QDir(config()).removeRecursively();
        QVERIFY(QDir().mkpath(config()));
        const SmallDisk disk(config(), options.arg(size));
        if (!disk.isMounted()) {
            QSKIP("Only root may mount a small disk");
        }
        bool isFilled = true;
        for (auto file = m_before.begin(); file != m_before.end(); ++file) {
            isFilled =
                writeFile(config() + QLatin1Char('/') + file.key(), file.value()) && isFilled;
        }
        if (!isFilled) {
            continue; // too small even for what is there
        }
        const CommandRun result = run(addition);
        verifyReported(result, after);
        if (QTest::currentTestFailed()) {
            QFAIL(qPrintable(options.arg(size)));
        }
        ++(result.exitCode == 0 ? successes : refusals);
    }
    qInfo("%d refused, %d stored", refusals, successes);
    QVERIFY(refusals > 0);
    QVERIFY(successes > 0);
}

void TestPresetSafety::aFileSizeLimitLosesNothing()
{
    const QByteArray after = undisturbed(addition);
    QVERIFY(!after.isEmpty());
    bool wasRefused = false;
    bool wasStored = false;
    for (rlim_t limit = 0; !wasStored; limit += 509) {
        LimitedProcess process(limit);
        process.start(QStringLiteral(VEXCONVERT), call(addition));
        const CommandRun result = CommandRun::of(process);
        verifyReported(result, after);
        if (QTest::currentTestFailed()) {
            QFAIL(qPrintable(QStringLiteral("%1 bytes").arg(limit)));
        }
        wasStored = result.exitCode == 0;
        wasRefused = wasRefused || !wasStored;
    }
    QVERIFY(wasRefused);
}

void TestPresetSafety::aReadOnlyFolderIsReported()
{
    QDir(config()).removeRecursively();
    QVERIFY(QDir().mkpath(config()));
    const SmallDisk disk(config(), QStringLiteral("size=1m"));
    if (!disk.isMounted()) {
        QSKIP("Only root may mount a small disk");
    }
    for (auto file = m_before.begin(); file != m_before.end(); ++file) {
        QVERIFY(writeFile(config() + QLatin1Char('/') + file.key(), file.value()));
    }
    QVERIFY(disk.makeReadOnly());
    const CommandRun result = run(addition);
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.err, QStringLiteral("vexconvert: can't write into the configuration folder %1 "
                                        "(Read-only file system); name another one\n")
                             .arg(config()));
    checkIsWhole({});
    const CommandRun list = run({QStringLiteral("list")});
    QCOMPARE(list.exitCode, 0);
    QCOMPARE(list.err, QString());
    QVERIFY(list.out.contains(QStringLiteral("Three")));
}

void TestPresetSafety::allPresetsAddedAtTheSameTimeAreStored()
{
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int number = 0; number < additionsAtOnce; ++number) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(QStringLiteral(VEXCONVERT), call(addition));
    }
    bool wasWaitTold = false;
    for (const auto &process : processes) {
        QVERIFY(process->waitForFinished(5 * patience));
        const QString result = QString::fromUtf8(process->readAllStandardError());
        QVERIFY2(process->exitCode() == 0, qUtf8Printable(result));
        wasWaitTold =
            wasWaitTold ||
            (result.startsWith(QStringLiteral("vexconvert: waiting for vexconvert "
                                              "(process ")) &&
             result.endsWith(QStringLiteral(", which is using the presets in %1\n").arg(config())));
    }
    QVERIFY(wasWaitTold);
    const QString list = run({QStringLiteral("list"), QStringLiteral("--json")}).out;
    QCOMPARE(QJsonDocument::fromJson(list.toUtf8()).array().size(), 3 + additionsAtOnce);
}

void TestPresetSafety::aHugeFileIsRefusedAtOnce()
{
    QVERIFY(QFile::resize(presets(), 500LL * 1024 * 1024));
    const QString complaint = QStringLiteral("vexconvert: %1 has 500 MB, and no more than 64 MB "
                                             "are read; move it away to start anew\n")
                                  .arg(presets());
    for (const QStringList &words :
         {QStringList{QStringLiteral("list"), QStringLiteral("--json")}, addition}) {
        const CommandRun result = run(words);
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.err, complaint);
    }
    QCOMPARE(QFileInfo(presets()).size(), 500LL * 1024 * 1024);
}

void TestPresetSafety::anythingButAFileIsRefused()
{
    QVERIFY(QFile::remove(presets()));
    QCOMPARE(::mkfifo(QFile::encodeName(presets()).constData(), 0600), 0);
    const CommandRun result = run({QStringLiteral("list"), QStringLiteral("--json")});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.out, QString());
    QCOMPARE(result.err,
             QStringLiteral("vexconvert: %1 is no file; move it away\n").arg(presets()));
}

QTEST_GUILESS_MAIN(TestPresetSafety)
#include "tst_presetsafety.moc"
