#include "host/media/lightsample.h"

#include <QtTest>

class TestLightSample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lightIsReadInItsUnit_data();
    void lightIsReadInItsUnit();
    void scenesAreAveragedAsTheyAreSeen();
    void aSampleWithoutPicturesTellsNothing();
};

namespace {

Colour hdr(const char *transfer, const char *range = "tv")
{
    return {QLatin1String(range), QStringLiteral("bt2020nc"), QLatin1String(transfer),
            QStringLiteral("bt2020")};
}

QByteArray picture(int high, int top)
{
    return "frame:0\nlavfi.signalstats.YHIGH=" + QByteArray::number(high) +
           "\nlavfi.signalstats.YMAX=" + QByteArray::number(top) + '\n';
}

} // namespace

void TestLightSample::lightIsReadInItsUnit_data()
{
    QTest::addColumn<QByteArray>("transfer");
    QTest::addColumn<QByteArray>("range");
    QTest::addColumn<int>("luma");
    QTest::addColumn<double>("light");
    // The levels of reference white and peak that ITU-R BT.2408 names.
    QTest::newRow("HDR10, white") << QByteArray("smpte2084") << QByteArray("tv") << 573 << 203.0;
    QTest::newRow("HDR10, 1000 cd/m²")
        << QByteArray("smpte2084") << QByteArray("tv") << 723 << 1000.0;
    QTest::newRow("HDR10, full range")
        << QByteArray("smpte2084") << QByteArray("pc") << 594 << 203.0;
    QTest::newRow("HLG, white") << QByteArray("arib-std-b67") << QByteArray("tv") << 721 << 203.0;
    QTest::newRow("HLG, peak") << QByteArray("arib-std-b67") << QByteArray("tv") << 940 << 1000.0;
    QTest::newRow("black") << QByteArray("smpte2084") << QByteArray("tv") << 16 << 0.0;
}

void TestLightSample::lightIsReadInItsUnit()
{
    QFETCH(QByteArray, transfer);
    QFETCH(QByteArray, range);
    QFETCH(int, luma);
    QFETCH(double, light);
    const std::optional<SeenLight> seen =
        seenLightIn(picture(luma, luma), hdr(transfer.constData(), range.constData()));
    QVERIFY(seen);
    QVERIFY2(qAbs(seen->brightest - light) <= light / 50,
             qPrintable(QString::number(seen->brightest)));
    QCOMPARE(seen->bright, seen->brightest);
}

void TestLightSample::scenesAreAveragedAsTheyAreSeen()
{
    const std::optional<SeenLight> seen =
        seenLightIn(picture(300, 573) + picture(500, 723), hdr("smpte2084"));
    const std::optional<SeenLight> between = seenLightIn(picture(400, 400), hdr("smpte2084"));
    QVERIFY(seen && between);
    QCOMPARE(seen->bright, between->bright);
    QVERIFY(seen->brightest > 950);
}

void TestLightSample::aSampleWithoutPicturesTellsNothing()
{
    QVERIFY(!seenLightIn({}, hdr("smpte2084")));
    QVERIFY(!seenLightIn("frame:0\n", hdr("smpte2084")));
}

QTEST_GUILESS_MAIN(TestLightSample)
#include "tst_lightsample.moc"
