#include "host/media/ratio.h"

#include <QtTest>

Q_DECLARE_METATYPE(Ratio)

class TestRatio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFractionIsRead_data();
    void aFractionIsRead();
    void roundedFrameRatesAreRecognized_data();
    void roundedFrameRatesAreRecognized();
    void equalFractionsAreEqualHoweverWritten();
};

void TestRatio::aFractionIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("frame rate") << QStringLiteral("30000/1001") << QStringLiteral("30000/1001");
    QTest::newRow("pixel aspect") << QStringLiteral("16:11") << QStringLiteral("16/11");
    QTest::newRow("whole number") << QStringLiteral("25") << QStringLiteral("25");
    QTest::newRow("denominator 1") << QStringLiteral("25/1") << QStringLiteral("25");
    QTest::newRow("unknown") << QStringLiteral("0/0") << QString();
    QTest::newRow("no pixels") << QStringLiteral("0:1") << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("word") << QStringLiteral("N/A") << QString();
    QTest::newRow("negative") << QStringLiteral("-25/1") << QString();
    QTest::newRow("largest") << QStringLiteral("2147483647/2147483646")
                             << QStringLiteral("2147483647/2147483646");
    QTest::newRow("too fine") << QStringLiteral("1/2147483648") << QString();
    QTest::newRow("too large") << QStringLiteral("99999999999/1") << QString();
}

void TestRatio::aFractionIsRead()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const Ratio ratio = Ratio::fromText(text);
    QCOMPARE(ratio.isValid(), !expected.isEmpty());
    if (ratio.isValid()) {
        QCOMPARE(ratio.toText(), expected);
    } else {
        QCOMPARE(ratio.value(), 0.0);
    }
}

void TestRatio::roundedFrameRatesAreRecognized_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Ratio>("expected");

    QTest::newRow("23.976") << QStringLiteral("23.976") << Ratio{24000, 1001};
    QTest::newRow("23.98") << QStringLiteral("23.98") << Ratio{24000, 1001};
    QTest::newRow("29.97") << QStringLiteral("29.97") << Ratio{30000, 1001};
    QTest::newRow("59.94") << QStringLiteral("59.94") << Ratio{60000, 1001};
    QTest::newRow("119.88") << QStringLiteral("119.88") << Ratio{120000, 1001};
    // A whole number is meant as it stands, however near to a slowed one.
    QTest::newRow("5") << QStringLiteral("5") << Ratio{5, 1};
    QTest::newRow("24") << QStringLiteral("24") << Ratio{24, 1};
    QTest::newRow("25.0") << QStringLiteral("25.0") << Ratio{25, 1};
    QTest::newRow("12.5") << QStringLiteral("12.5") << Ratio{25, 2};
    QTest::newRow("fraction") << QStringLiteral("30000/1001") << Ratio{30000, 1001};
    QTest::newRow("keeps the source's") << QStringLiteral("0") << Ratio();
    QTest::newRow("empty") << QString() << Ratio();
    QTest::newRow("negative") << QStringLiteral("-24") << Ratio();
    QTest::newRow("not a number") << QStringLiteral("nan") << Ratio();
    QTest::newRow("infinite") << QStringLiteral("inf") << Ratio();
    QTest::newRow("huge") << QStringLiteral("1e300") << Ratio();
    QTest::newRow("tiny") << QStringLiteral("1e-300") << Ratio();
}

void TestRatio::roundedFrameRatesAreRecognized()
{
    QFETCH(QString, text);
    QFETCH(Ratio, expected);
    const Ratio rate = Ratio::fromFrameRate(text);
    QCOMPARE(rate.isValid(), expected.isValid());
    QCOMPARE(rate.toText(), expected.toText());
}

void TestRatio::equalFractionsAreEqualHoweverWritten()
{
    QVERIFY((Ratio{50, 2} == Ratio{25, 1}));
    QVERIFY((Ratio{30, 1} != Ratio{30000, 1001}));
    QVERIFY((Ratio() != Ratio{25, 1}));
    // Products beyond 32 bits are still distinguished.
    QVERIFY((Ratio{2000000000, 1} != Ratio{2000000001, 1}));
}

QTEST_GUILESS_MAIN(TestRatio)
#include "tst_ratio.moc"
