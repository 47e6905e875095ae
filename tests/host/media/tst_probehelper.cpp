#include "host/media/mediaprobe.h"
#include "host/media/probehelper.h"
#include "tests/support/mediaclips.h"
#include "tests/support/messagelog.h"
#include "tests/support/patience.h"
#include "tests/support/runningprocess.h"
#include "tests/support/testfiles.h"

#include <QEventLoop>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>
#include <sys/stat.h>

/*! Helpers that are shell scripts around vexprobe. Each writes a line into "starts". */
class TestProbeHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void oneProcessAnswersManyQuestions();
    void aFileThatCannotBeReadHasNoAnswer();
    void aHelperThatFailsIsReplaced_data();
    void aHelperThatFailsIsReplaced();
    void aHangingFileEndsTheHelper();
    void anAbandonedQuestionHasNoAnswer();
    void theProcessEndsWithItsHelper();
    void helpersAreUsedAgain();
    void whereTheHelperFailsFfprobeIsAsked_data();
    void whereTheHelperFailsFfprobeIsAsked();
    void aProbeIsCancelledWhileTheHelperIsAsked();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    /*! A helper that runs \a script; $REAL is vexprobe. */
    QString standIn(const QByteArray &script) const
    {
        const QString program = path("helper");
        QFile file(program);
        const QByteArray text = "#!/bin/sh\nREAL=" VEXPROBE "\necho $$ >> " +
                                QFile::encodeName(path("starts")) + '\n' + script + '\n';
        return writeFile(program, text) && file.setPermissions(QFile::ReadOwner | QFile::ExeOwner)
                   ? program
                   : QString();
    }
    QList<QByteArray> starts() const { return contentOf(path("starts")).trimmed().split('\n'); }
    /*! What the helper answers; nothing if it doesn't. */
    static std::optional<QByteArray> ask(ProbeHelper &helper, const QString &file,
                                         const ToolLimits &limits = probeLimits)
    {
        QSignalSpy answers(&helper, &ProbeHelper::answered);
        helper.ask(file, limits);
        if (!answers.isEmpty() || !answers.wait(patience)) {
            return std::nullopt;
        }
        return answers.constFirst().constFirst().toByteArray();
    }

    /*! The video codec that a probe finds; its error if it finds none. */
    static QString codecOf(const QString &file, ProbeHelpers &helpers)
    {
        MediaProbe probe(nullptr, helpers);
        QEventLoop loop;
        Result<MediaFacts> facts;
        connect(&probe, &MediaProbe::finished, &loop,
                [&facts, &loop](const Result<MediaFacts> &found) {
                    facts = found;
                    loop.quit();
                });
        probe.start(file, {1000000, 6000});
        loop.exec();
        return facts ? facts->videoTracks.value(0).codec : facts.error().text;
    }

    QTemporaryDir m_clips;
    QString m_film;
    std::optional<QTemporaryDir> m_folder;
    std::optional<MessageLog> m_log;
};

void TestProbeHelper::initTestCase()
{
    m_film = m_clips.filePath(QStringLiteral("film.mp4"));
    QVERIFY(MediaClips::makeFilm(m_film));
}

void TestProbeHelper::init()
{
    m_folder.emplace();
    QVERIFY(m_folder->isValid());
    m_log.emplace();
}

void TestProbeHelper::cleanup()
{
    QCOMPARE(m_log->takeAll(), QStringList());
    m_log.reset();
    m_folder.reset();
}

void TestProbeHelper::oneProcessAnswersManyQuestions()
{
    ProbeHelper helper(standIn("exec $REAL"));
    for (int i = 0; i < 500; ++i) {
        const std::optional<QByteArray> json = ask(helper, m_film);
        QVERIFY(json);
        QVERIFY(MediaFacts::fromProbe(*json).video() != nullptr);
    }
    QCOMPARE(starts().size(), 1);
}

void TestProbeHelper::aFileThatCannotBeReadHasNoAnswer()
{
    ProbeHelper helper(standIn("exec $REAL"));
    QCOMPARE(ask(helper, path("missing.mp4")), std::optional(QByteArray()));
    QVERIFY(ask(helper, m_film)->startsWith('{'));
    QCOMPARE(starts().size(), 1);
}

void TestProbeHelper::aHelperThatFailsIsReplaced_data()
{
    QTest::addColumn<QByteArray>("failure");
    QTest::newRow("dies") << QByteArray("head -c 10 > /dev/null; kill -9 $$");
    QTest::newRow("ends") << QByteArray("head -c 10 > /dev/null");
    QTest::newRow("answers twice") << QByteArray("printf '{}\\n{}\\n'; exec sleep 1000");
    QTest::newRow("answers without end") << QByteArray("exec yes no | tr -d '\\n'");
    QTest::newRow("is slow") << QByteArray("exec sleep 1000");
}

void TestProbeHelper::aHelperThatFailsIsReplaced()
{
    QFETCH(QByteArray, failure);
    ProbeHelper helper(
        standIn("[ $(wc -l < \"${0%/*}/starts\") -gt 1 ] && exec $REAL\n" + failure));
    QCOMPARE(ask(helper, m_film, {100000, 1000}), std::optional(QByteArray()));
    QVERIFY(ask(helper, m_film)->startsWith('{'));
    QCOMPARE(starts().size(), 2);
    QVERIFY(!isRunning(starts().constFirst().toLongLong()));
}

void TestProbeHelper::aHangingFileEndsTheHelper()
{
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.mp4")).constData(), S_IRWXU), 0);
    ProbeHelper helper(standIn("exec $REAL"));
    QCOMPARE(ask(helper, path("pipe.mp4"), {1000, 300}), std::optional(QByteArray()));
    QVERIFY(!isRunning(starts().constFirst().toLongLong()));
    QVERIFY(ask(helper, m_film)->startsWith('{'));
}

void TestProbeHelper::anAbandonedQuestionHasNoAnswer()
{
    ProbeHelper helper(standIn("exec $REAL"));
    QSignalSpy answers(&helper, &ProbeHelper::answered);
    helper.ask(m_film, probeLimits);
    helper.abandon();
    helper.ask(path("missing.mp4"), probeLimits);
    // The next question takes the place of one that is still open.
    helper.ask(m_film, probeLimits);
    QVERIFY(answers.wait(patience));
    QVERIFY(answers.constFirst().constFirst().toByteArray().startsWith('{'));
    QCoreApplication::processEvents();
    QCOMPARE(answers.size(), 1);
}

void TestProbeHelper::theProcessEndsWithItsHelper()
{
    std::optional<ProbeHelper> helper(standIn("exec $REAL"));
    QVERIFY(ask(*helper, m_film));
    const qint64 process = starts().constFirst().toLongLong();
    QVERIFY(isRunning(process));
    helper.reset();
    QVERIFY(!isRunning(process));
}

void TestProbeHelper::helpersAreUsedAgain()
{
    ProbeHelpers helpers(standIn("exec $REAL"));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(codecOf(m_film, helpers), QStringLiteral("h264"));
    }
    QCOMPARE(starts().size(), 1);
}

void TestProbeHelper::whereTheHelperFailsFfprobeIsAsked_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("works") << QByteArray("exec $REAL");
    QTest::newRow("dies") << QByteArray("kill -9 $$");
    QTest::newRow("can't read the file") << QByteArray("while :; do echo; sleep 1; done");
    QTest::newRow("answers nonsense") << QByteArray("while :; do echo nonsense; sleep 1000; done");
    QTest::newRow("says that there are no tracks")
        << QByteArray("while :; do echo '{\"streams\":[]}'; sleep 1000; done");
    QTest::newRow("hangs") << QByteArray("exec sleep 1000");
    QTest::newRow("isn't installed") << QByteArray();
}

void TestProbeHelper::whereTheHelperFailsFfprobeIsAsked()
{
    QFETCH(QByteArray, script);
    ProbeHelpers helpers(script.isEmpty() ? path("missing") : standIn(script));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(codecOf(m_film, helpers), QStringLiteral("h264"));
    }
}

void TestProbeHelper::aProbeIsCancelledWhileTheHelperIsAsked()
{
    ProbeHelpers helpers(standIn("exec sleep 1000"));
    MediaProbe probe(nullptr, helpers);
    std::optional<Result<MediaFacts>> facts;
    connect(&probe, &MediaProbe::finished, this,
            [&facts](const Result<MediaFacts> &found) { facts = found; });
    probe.start(m_film);
    QTRY_COMPARE_WITH_TIMEOUT(starts().size(), 1, patience);
    probe.stop();
    QVERIFY(!facts);
    QTRY_VERIFY_WITH_TIMEOUT(facts, patience);
    QCOMPARE(facts->error().kind, Error::Cancelled);
}

QTEST_GUILESS_MAIN(TestProbeHelper)
#include "tst_probehelper.moc"
