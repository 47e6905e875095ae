#include "host/window/singleinstance.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QThread>
#include <QtTest>

#include <memory>

namespace {

constexpr int patience = 60000; // ms, on a busy machine

} // namespace

/*! Both ends in this process: the later start, which waits, in a thread of its own. */
class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void pathsArriveByteForByte_data();
    void pathsArriveByteForByte();
    void severalInstancesAreAnswered();
    void nobodyAnswersForAnotherFolder();
    void aHangingWindowGetsNothing();

private:
    /*! Whether the paths were taken, without blocking this thread's events. */
    bool handOver(const QString &folder, const QStringList &paths);
};

void TestSingleInstance::initTestCase()
{
    // Any byte is a character here, so that what is lost is lost on the way.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO 8859-1"));
}

bool TestSingleInstance::handOver(const QString &folder, const QStringList &paths)
{
    bool isTaken = false;
    const std::unique_ptr<QThread> laterStart(QThread::create([&folder, &paths, &isTaken] {
        isTaken = SingleInstance(folder).handOver(paths, patience);
    }));
    laterStart->start();
    const bool hasEnded =
        QTest::qWaitFor([&laterStart] { return laterStart->isFinished(); }, 2 * patience);
    laterStart->wait();
    return hasEnded && isTaken;
}

void TestSingleInstance::pathsArriveByteForByte_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("none") << QStringList();
    QTest::newRow("several") << QStringList{QStringLiteral("/a b.mp4"), QStringLiteral("/c\n.mp4")};
    QTest::newRow("not UTF-8") << QStringList{QFile::decodeName("/\xff\xe4.mp4")};
    QStringList many;
    for (int i = 0; i < 20000; ++i) {
        many << QStringLiteral("/a folder with a long name/film %1.mp4").arg(i);
    }
    QTest::newRow("more than a socket holds") << many;
}

void TestSingleInstance::pathsArriveByteForByte()
{
    QFETCH(QStringList, paths);
    const QTemporaryDir folder;
    SingleInstance window(folder.path());
    QSignalSpy asked(&window, &SingleInstance::asked);
    window.listen();
    QVERIFY(handOver(folder.path(), paths));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toStringList(), paths);
}

void TestSingleInstance::severalInstancesAreAnswered()
{
    const QTemporaryDir folder;
    SingleInstance window(folder.path());
    QSignalSpy asked(&window, &SingleInstance::asked);
    window.listen();
    for (int i = 1; i <= 3; ++i) {
        QVERIFY(handOver(folder.path(), {}));
        QCOMPARE(asked.count(), i);
    }
}

void TestSingleInstance::nobodyAnswersForAnotherFolder()
{
    const QTemporaryDir folder;
    const QTemporaryDir other;
    SingleInstance window(folder.path());
    window.listen();
    QVERIFY(!SingleInstance(other.path()).handOver({}, patience));
}

void TestSingleInstance::aHangingWindowGetsNothing()
{
    const QTemporaryDir folder;
    SingleInstance window(folder.path());
    QSignalSpy asked(&window, &SingleInstance::asked);
    window.listen();
    // No event of this thread is handled meanwhile.
    constexpr int shortPatience = 50;
    QVERIFY(!SingleInstance(folder.path()).handOver({QStringLiteral("/a.mp4")}, shortPatience));
    QVERIFY(handOver(folder.path(), {}));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toStringList(), QStringList());
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
