#include "host/files/filenamecodec.h"
#include "host/queue/keptqueue.h"

#include <QFile>
#include <QtTest>

namespace {

KeptQueue queueOf(const KeptTask &task)
{
    KeptQueue queue;
    queue.pages.insert(QStringLiteral("converter"), {task});
    return queue;
}

/*! What is read of the task after it was written. */
KeptTask rewritten(const KeptTask &task)
{
    const Result<KeptQueue> read = KeptQueue::fromJson(queueOf(task).toJson());
    return read ? read->pages.value(QStringLiteral("converter")).value(0) : KeptTask();
}

} // namespace

class TestKeptQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installFileNameCodec(); }
    void aTaskIsReadAsItWasWritten();
    void everyStatusIsKept();
    void theChoiceOfTracksIsKept_data();
    void theChoiceOfTracksIsKept();
    void pathsKeepEveryByte();
    void pagesAndTheirOrderAreKept();
    void entriesWithoutASourceAreLeftOut();
    void unusableFilesAreRefused_data();
    void unusableFilesAreRefused();
};

void TestKeptQueue::aTaskIsReadAsItWasWritten()
{
    KeptTask task;
    task.source = QStringLiteral("/films/a \"b\" 100%.mkv");
    task.ownFormats = QStringList{QStringLiteral("A"), QStringLiteral("B")};
    task.format = QStringLiteral("B");
    task.formatCaption = QStringLiteral("MP4 - Größe");
    task.start = 1.25;
    task.end = 3.5;
    task.status = KeptTask::Converted;
    task.target = QStringLiteral("/films/a.mp4");
    task.targetBytes = 5000000000;
    task.note = QStringLiteral("left out: the cover");
    task.error = QStringLiteral("none");
    const KeptTask read = rewritten(task);
    QCOMPARE(read.source, task.source);
    QCOMPARE(read.ownFormats, task.ownFormats);
    QCOMPARE(read.format, task.format);
    QCOMPARE(read.formatCaption, task.formatCaption);
    QCOMPARE(read.start, task.start);
    QCOMPARE(read.end, task.end);
    QCOMPARE(read.target, task.target);
    QCOMPARE(read.targetBytes, task.targetBytes);
    QCOMPARE(read.note, task.note);
    QCOMPARE(read.error, task.error);
}

void TestKeptQueue::everyStatusIsKept()
{
    for (const auto status : {KeptTask::Unconverted, KeptTask::Interrupted, KeptTask::Converted,
                              KeptTask::Failed, KeptTask::Stopped}) {
        KeptTask task;
        task.source = QStringLiteral("/a");
        task.status = status;
        QCOMPARE(rewritten(task).status, status);
    }
}

void TestKeptQueue::theChoiceOfTracksIsKept_data()
{
    QTest::addColumn<QString>("audio");
    QTest::addColumn<QString>("subtitles");
    QTest::addColumn<int>("burned");
    QTest::newRow("all") << QStringLiteral("all") << QStringLiteral("all") << 0;
    QTest::newRow("some") << QStringLiteral("1,3/3") << QStringLiteral("2/0") << 1;
    QTest::newRow("none") << QStringLiteral("none") << QStringLiteral("none") << 0;
}

void TestKeptQueue::theChoiceOfTracksIsKept()
{
    QFETCH(QString, audio);
    QFETCH(QString, subtitles);
    QFETCH(int, burned);
    KeptTask task;
    task.source = QStringLiteral("/a");
    task.tracks = {*TrackChoice::fromText(audio), *TrackChoice::fromText(subtitles), burned};
    const ChosenTracks read = rewritten(task).tracks;
    QCOMPARE(read.audio.text(), audio);
    QCOMPARE(read.subtitles.text(), subtitles);
    QCOMPARE(read.burnedSubtitles, burned);
}

void TestKeptQueue::pathsKeepEveryByte()
{
    KeptTask task;
    task.source = QFile::decodeName("/m\xfcsik/caf\xe9\n%41 \xef\xbf\xbd.wav");
    task.target = QFile::decodeName("/m\xfcsik/caf\xe9\n.mp3");
    const KeptTask read = rewritten(task);
    QCOMPARE(QFile::encodeName(read.source), QFile::encodeName(task.source));
    QCOMPARE(QFile::encodeName(read.target), QFile::encodeName(task.target));
}

void TestKeptQueue::pagesAndTheirOrderAreKept()
{
    KeptQueue queue;
    QStringList written;
    for (int i = 20; i > 0; --i) {
        KeptTask task;
        task.source = QStringLiteral("/%1").arg(i);
        written << task.source;
        queue.pages[QStringLiteral("editor")] << task;
    }
    const Result<KeptQueue> kept = KeptQueue::fromJson(queue.toJson());
    QVERIFY(kept);
    QCOMPARE(kept->pages.keys(), QStringList{QStringLiteral("editor")});
    QStringList read;
    for (const KeptTask &task : kept->pages.first()) {
        read << task.source;
    }
    QCOMPARE(read, written);
}

void TestKeptQueue::entriesWithoutASourceAreLeftOut()
{
    const Result<KeptQueue> kept = KeptQueue::fromJson(
        R"({"version":1,"pages":{"editor":[{},7,{"source":"/a","status":"strange","end":-1,)"
        R"("audioTracks":"?","burnedSubtitles":-1}]}})");
    QVERIFY(kept);
    const QVector<KeptTask> tasks = kept->pages.value(QStringLiteral("editor"));
    QCOMPARE(tasks.size(), 1);
    QCOMPARE(tasks.constFirst().status, KeptTask::Unconverted);
    QCOMPARE(tasks.constFirst().end, 0.0);
    QVERIFY(tasks.constFirst().tracks.audio == TrackChoice());
    QCOMPARE(tasks.constFirst().tracks.burnedSubtitles, 0);
}

void TestKeptQueue::unusableFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << queueOf({QStringLiteral("/a"), {}}).toJson().chopped(3);
    QTest::newRow("another file") << QByteArray("[]");
    QTest::newRow("no pages") << QByteArray(R"({"version":1})");
    QTest::newRow("no version") << QByteArray(R"({"pages":{}})");
    QTest::newRow("of a newer program") << QByteArray(R"({"version":2,"pages":{}})");
}

void TestKeptQueue::unusableFilesAreRefused()
{
    QFETCH(QByteArray, json);
    const Result<KeptQueue> read = KeptQueue::fromJson(json);
    QVERIFY(!read);
    QVERIFY(!read.error().text.isEmpty());
}

QTEST_GUILESS_MAIN(TestKeptQueue)
#include "tst_keptqueue.moc"
