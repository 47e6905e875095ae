#include "host/commandline/progresstext.h"
#include "host/convert/progress.h"

#include <QtTest>

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReportIsReadWhole();
    void piecesMayBeCutAnywhere();
    void aLongLineIsReadAllTheSame();
    void aLineWithoutEndIsForgotten();
    void aNumberIsReadHoweverItIsWritten_data();
    void aNumberIsReadHoweverItIsWritten();
    void aReportThatIsNotCompleteChangesNothing();
    void whatIsNotKnownYetIsZero_data();
    void whatIsNotKnownYetIsZero();
    void severalRunsHaveOneProgress();
    void thePercentageStaysInBounds_data();
    void thePercentageStaysInBounds();
    void theTimeLeftFollowsFromTheSpeed_data();
    void theTimeLeftFollowsFromTheSpeed();
    void theLineSaysWhatIsKnown_data();
    void theLineSaysWhatIsKnown();

private:
    static Progress progress(double done, double total, double speed)
    {
        Progress made;
        made.done = done;
        made.total = total;
        made.speed = speed;
        return made;
    }
};

void TestProgress::aReportIsReadWhole()
{
    ProgressReader reader(10);
    QVERIFY(!reader.feed("frame=50\nfps=25.0\nout_time_us=2500000\nout_time_ms=2500000\n"
                         "out_time=00:00:02.500000\nspeed=   2x\n"));
    QCOMPARE(reader.progress().done, 0.0);
    QVERIFY(reader.feed("progress=continue\n"));
    QCOMPARE(reader.progress().done, 2.5);
    QCOMPARE(reader.progress().speed, 2.0);
    QCOMPARE(reader.progress().percent(), 25);
}

void TestProgress::piecesMayBeCutAnywhere()
{
    const QByteArray report = "out_time_us=1000000\nspeed=0.5x\nprogress=continue\n"
                              "out_time_us=4000000\nspeed=1.25x\nprogress=end\n";
    for (int cut = 0; cut <= report.size(); ++cut) {
        ProgressReader reader(4);
        const bool first = reader.feed(report.left(cut));
        const bool second = reader.feed(report.mid(cut));
        QVERIFY(first || second);
        QCOMPARE(reader.progress().done, 4.0);
        QCOMPARE(reader.progress().speed, 1.25);
    }
}

void TestProgress::aLongLineIsReadAllTheSame()
{
    ProgressReader reader(10);
    QVERIFY(!reader.feed("out_time_us=4000000" + QByteArray(60000, ' ')));
    QVERIFY(reader.feed("\nprogress=continue\n"));
    QCOMPARE(reader.progress().done, 4.0);
}

void TestProgress::aNumberIsReadHoweverItIsWritten_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::newRow("with a unit") << QByteArray("out_time_us=4000000\nspeed=12x\nprogress=end\n");
    QTest::newRow("without one") << QByteArray("out_time_us=4000000\nspeed=12\nprogress=end\n");
    QTest::newRow("with blanks") << QByteArray(
        " out_time_us= 4000000 \n speed= 12x \n progress=end \n");
    QTest::newRow("with carriage returns")
        << QByteArray("out_time_us=4000000\r\nspeed=12x\r\nprogress=end\r\n");
}

void TestProgress::aNumberIsReadHoweverItIsWritten()
{
    QFETCH(QByteArray, report);
    ProgressReader reader(10);
    QVERIFY(reader.feed(report));
    QCOMPARE(reader.progress().done, 4.0);
    QCOMPARE(reader.progress().speed, 12.0);
}

void TestProgress::aReportThatIsNotCompleteChangesNothing()
{
    ProgressReader reader(10);
    QVERIFY(reader.feed("out_time_us=2000000\nspeed=1x\nprogress=continue\n"));
    QVERIFY(!reader.feed("out_time_us=4000000\nspeed=2x\nprogress"));
    QCOMPARE(reader.progress().done, 2.0);
    QCOMPARE(reader.progress().speed, 1.0);
}

void TestProgress::aLineWithoutEndIsForgotten()
{
    ProgressReader reader(10);
    QVERIFY(!reader.feed(QByteArray(1000000, 'x')));
    QVERIFY(reader.feed("out_time_us=4000000\nspeed=2x\nprogress=continue\n"));
    QCOMPARE(reader.progress().done, 4.0);
}

void TestProgress::whatIsNotKnownYetIsZero_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::newRow("N/A") << QByteArray("out_time_us=N/A\nspeed=N/A\nprogress=continue\n");
    QTest::newRow("before the start")
        << QByteArray("out_time_us=-9223372036854775808\nspeed=N/A\nprogress=continue\n");
    QTest::newRow("beyond numbers")
        << QByteArray("out_time_us=1e300\nspeed=1e300x\nprogress=continue\n");
    QTest::newRow("infinite") << QByteArray("out_time_us=inf\nspeed=infx\nprogress=continue\n");
    QTest::newRow("no number") << QByteArray("out_time_us=nan\nspeed=nanx\nprogress=continue\n");
    QTest::newRow("nothing said") << QByteArray("progress=continue\n");
    QTest::newRow("no pairs") << QByteArray("\nhello\n=\nprogress=continue\n");
}

void TestProgress::whatIsNotKnownYetIsZero()
{
    QFETCH(QByteArray, report);
    ProgressReader reader(10);
    QVERIFY(reader.feed(report));
    QCOMPARE(reader.progress().done, 0.0);
    QCOMPARE(reader.progress().speed, 0.0);
}

void TestProgress::severalRunsHaveOneProgress()
{
    ProgressReader first(10, 0, 1);
    QVERIFY(first.feed("out_time_us=5000000\nspeed=2x\nprogress=continue\n"));
    QCOMPARE(first.progress().percent(), 25);
    QCOMPARE(first.written(), 5.0);
    ProgressReader second(10, 1);
    QCOMPARE(second.progress().percent(), 50);
    QVERIFY(second.feed("out_time_us=5000000\nspeed=2x\nprogress=continue\n"));
    QCOMPARE(second.progress().percent(), 75);
    QCOMPARE(second.written(), 5.0);
}

void TestProgress::thePercentageStaysInBounds_data()
{
    QTest::addColumn<double>("done");
    QTest::addColumn<double>("total");
    QTest::addColumn<int>("percent");
    QTest::newRow("start") << 0.0 << 8.0 << 0;
    QTest::newRow("half") << 4.0 << 8.0 << 50;
    QTest::newRow("not quite done") << 7.99 << 8.0 << 99;
    QTest::newRow("done") << 8.0 << 8.0 << 100;
    QTest::newRow("past the end") << 9.0 << 8.0 << 100;
    QTest::newRow("length unknown") << 4.0 << 0.0 << -1;
}

void TestProgress::thePercentageStaysInBounds()
{
    QFETCH(double, done);
    QFETCH(double, total);
    QFETCH(int, percent);
    QCOMPARE(progress(done, total, 1).percent(), percent);
}

void TestProgress::theTimeLeftFollowsFromTheSpeed_data()
{
    QTest::addColumn<double>("done");
    QTest::addColumn<double>("total");
    QTest::addColumn<double>("speed");
    QTest::addColumn<double>("left");
    QTest::newRow("twice as fast") << 4.0 << 10.0 << 2.0 << 3.0;
    QTest::newRow("past the end") << 11.0 << 10.0 << 2.0 << 0.0;
    QTest::newRow("speed unknown") << 4.0 << 10.0 << 0.0 << -1.0;
    QTest::newRow("at a standstill") << 4.0 << 10.0 << 1e-300 << -1.0;
    QTest::newRow("length unknown") << 4.0 << 0.0 << 2.0 << -1.0;
}

void TestProgress::theTimeLeftFollowsFromTheSpeed()
{
    QFETCH(double, done);
    QFETCH(double, total);
    QFETCH(double, speed);
    QFETCH(double, left);
    QCOMPARE(progress(done, total, speed).timeLeft(), left);
}

void TestProgress::theLineSaysWhatIsKnown_data()
{
    QTest::addColumn<Progress>("told");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("bar");
    QTest::newRow("all known") << progress(40, 100, 3.21) << QStringLiteral("40%, 3.2x, 0:19 left")
                               << QStringLiteral("[########------------]");
    QTest::newRow("fast") << progress(40, 100, 2258.4) << QStringLiteral("40%, 2258x, 0:00 left")
                          << QStringLiteral("[########------------]");
    QTest::newRow("a part of a percent and of a second")
        << progress(49.99, 100, 4) << QStringLiteral("49%, 4.0x, 0:13 left")
        << QStringLiteral("[#########-----------]");
    QTest::newRow("slow") << progress(400, 10000, 0.05) << QStringLiteral("4%, 0.1x, 53:20:00 left")
                          << QStringLiteral("[--------------------]");
    QTest::newRow("nearly ten times real time")
        << progress(5, 100, 9.94) << QStringLiteral("5%, 9.9x, 0:10 left")
        << QStringLiteral("[#-------------------]");
    QTest::newRow("ten times real time")
        << progress(5, 100, 10) << QStringLiteral("5%, 10x, 0:10 left")
        << QStringLiteral("[#-------------------]");
    QTest::newRow("not quite done")
        << progress(99.9, 100, 1) << QStringLiteral("99%, 1.0x, 0:00 left")
        << QStringLiteral("[###################-]");
    QTest::newRow("speed unknown")
        << progress(0, 100, 0) << QStringLiteral("0%") << QStringLiteral("[--------------------]");
    QTest::newRow("length unknown")
        << progress(75, 0, 2) << QStringLiteral("1:15 done, 2.0x") << QString();
    QTest::newRow("done") << progress(100, 100, 2) << QStringLiteral("100%, 2.0x, 0:00 left")
                          << QStringLiteral("[####################]");
}

void TestProgress::theLineSaysWhatIsKnown()
{
    QFETCH(Progress, told);
    QFETCH(QString, text);
    QFETCH(QString, bar);
    QCOMPARE(progressText(told), text);
    QCOMPARE(progressBar(told), bar);
}

QTEST_GUILESS_MAIN(TestProgress)
#include "tst_progress.moc"
