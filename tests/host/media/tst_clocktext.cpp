#include "host/media/clocktext.h"

#include <QtTest>

class TestClockText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commonNotationsAreRead_data();
    void commonNotationsAreRead();
    void secondsAreWrittenShort_data();
    void secondsAreWrittenShort();
    void hoursAreShownOnlyIfThereAreAny_data();
    void hoursAreShownOnlyIfThereAreAny();
};

void TestClockText::commonNotationsAreRead_data()
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

void TestClockText::commonNotationsAreRead()
{
    QFETCH(QString, text);
    QTEST(secondsFromClockText(text), "seconds");
}

void TestClockText::secondsAreWrittenShort_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    const auto row = [](double seconds, const char *text) {
        QTest::newRow(text) << seconds << QString::fromLatin1(text);
    };
    row(0, "0:00");
    row(4.5, "0:04.5");
    row(7.25, "0:07.25");
    row(59.999, "0:59.999");
    row(59.9999, "1:00");
    row(61.05, "1:01.05");
    row(3723, "1:02:03");
    row(-1, "0:00");
    row(1e300, "0:00");
    row(qQNaN(), "0:00");
}

void TestClockText::secondsAreWrittenShort()
{
    QFETCH(double, seconds);
    QTEST(exactClockText(seconds), "text");
}

void TestClockText::hoursAreShownOnlyIfThereAreAny_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("0:00");
    QTest::newRow("negative") << -3.0 << QStringLiteral("0:00");
    QTest::newRow("too many") << 1e300 << QStringLiteral("0:00");
    QTest::newRow("not a number") << qQNaN() << QStringLiteral("0:00");
    QTest::newRow("rounded") << 0.98 << QStringLiteral("0:01");
    QTest::newRow("minutes") << 754.0 << QStringLiteral("12:34");
    QTest::newRow("an hour less one") << 3599.0 << QStringLiteral("59:59");
    QTest::newRow("an hour") << 3600.0 << QStringLiteral("1:00:00");
    QTest::newRow("rounded up to an hour") << 3599.6 << QStringLiteral("1:00:00");
    QTest::newRow("hours") << 3723.0 << QStringLiteral("1:02:03");
}

void TestClockText::hoursAreShownOnlyIfThereAreAny()
{
    QFETCH(double, seconds);
    QFETCH(QString, text);
    QCOMPARE(clockText(seconds), text);
}

QTEST_GUILESS_MAIN(TestClockText)
#include "tst_clocktext.moc"
