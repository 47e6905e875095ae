#include "host/window/clock.h"

#include <QtTest>

class TestClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void momentsAreReadAsPeopleWriteThem_data();
    void momentsAreReadAsPeopleWriteThem();
    void secondsAreWrittenShort_data();
    void secondsAreWrittenShort();
};

void TestClock::momentsAreReadAsPeopleWriteThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("seconds");
    const auto row = [](const char *text, double seconds) {
        QTest::newRow(text) << QString::fromLatin1(text) << seconds;
    };
    row("0", 0);
    row("7.25", 7.25);
    row("7,5", 7.5);
    row(" 9 ", 9);
    row("90", 90);
    row("2:03", 123);
    row("1:02:03.5", 3723.5);
    row("", -1);
    row("x", -1);
    row("-1", -1);
    row("1:", -1);
    row(":5", -1);
    row("1:2:3:4", -1);
    row("1:100", -1);
    row("1.", -1);
    row("1.5:2", -1);
}

void TestClock::momentsAreReadAsPeopleWriteThem()
{
    QFETCH(QString, text);
    QTEST(Clock::secondsOf(text), "seconds");
}

void TestClock::secondsAreWrittenShort_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](double seconds, const char *text) {
        QTest::newRow(text) << seconds << QString::fromLatin1(text);
    };
    row(0, "0:00");
    row(4.5, "0:04.5");
    row(7.25, "0:07.25");
    row(59.999, "1:00");
    row(61.05, "1:01.05");
    row(3723, "1:02:03");
    row(-1, "0:00");
    row(1e300, "0:00");
    row(qQNaN(), "0:00");
}

void TestClock::secondsAreWrittenShort()
{
    QFETCH(double, seconds);
    QTEST(Clock::textOf(seconds), "text");
}

QTEST_GUILESS_MAIN(TestClock)
#include "tst_clock.moc"
