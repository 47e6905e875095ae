#include "host/convert/picturefit.h"

#include <QtTest>

Q_DECLARE_METATYPE(Ratio)

class TestPictureFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPictureIsFittedIntoTheBox_data();
    void aPictureIsFittedIntoTheBox();
    void anOddSizeLosesALine_data();
    void anOddSizeLosesALine();
    void aStudioFrameIsFilledAsFarAsItGoes_data();
    void aStudioFrameIsFilledAsFarAsItGoes();
};

void TestPictureFit::aPictureIsFittedIntoTheBox_data()
{
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<QSize>("box");
    QTest::addColumn<QSize>("fitted");

    const QSize hd(1280, 720);
    QTest::newRow("same shape") << QSize(3840, 2160) << hd << QSize(1280, 720);
    QTest::newRow("narrower") << QSize(1600, 1200) << hd << QSize(960, 720);
    QTest::newRow("wider") << QSize(2048, 858) << hd << QSize(1280, 536);
    QTest::newRow("width rounded up to even")
        << QSize(1920, 1080) << QSize(854, 480) << QSize(854, 480);
    QTest::newRow("smaller stays") << QSize(640, 360) << hd << QSize(640, 360);
    QTest::newRow("smaller and odd") << QSize(101, 51) << hd << QSize(100, 50);
    QTest::newRow("lower but wider") << QSize(1920, 400) << hd << QSize(1280, 266);
    QTest::newRow("portrait turns the box") << QSize(1080, 1920) << hd << QSize(720, 1280);
    QTest::newRow("small portrait") << QSize(360, 640) << hd << QSize(360, 640);
    QTest::newRow("portrait into a portrait box")
        << QSize(2160, 3840) << QSize(1080, 1920) << QSize(1080, 1920);
    QTest::newRow("landscape into a portrait box")
        << QSize(1920, 1080) << QSize(1080, 1920) << QSize(1080, 608);
    QTest::newRow("square doesn't turn it") << QSize(2000, 2000) << hd << QSize(720, 720);
    QTest::newRow("anamorphic shown size")
        << QSize(1024, 576) << QSize(640, 480) << QSize(640, 360);
    QTest::newRow("odd box") << QSize(1920, 1080) << QSize(641, 361) << QSize(640, 360);
    QTest::newRow("a thin line keeps two pixels")
        << QSize(4000, 2) << QSize(100, 100) << QSize(100, 2);
    QTest::newRow("one pixel") << QSize(1, 1) << hd << QSize(2, 2);
}

void TestPictureFit::aPictureIsFittedIntoTheBox()
{
    QFETCH(QSize, shown);
    QFETCH(QSize, box);
    QFETCH(QSize, fitted);
    QCOMPARE(fitIntoBox(shown, box), fitted);
}

void TestPictureFit::anOddSizeLosesALine_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("even");
    QTest::newRow("even") << QSize(320, 240) << QSize(320, 240);
    QTest::newRow("odd width") << QSize(321, 240) << QSize(320, 240);
    QTest::newRow("odd height") << QSize(322, 243) << QSize(322, 242);
    QTest::newRow("at least two pixels") << QSize(1, 3) << QSize(2, 2);
    QTest::newRow("never larger") << QSize(323, 5) << QSize(322, 4);
}

void TestPictureFit::anOddSizeLosesALine()
{
    QFETCH(QSize, size);
    QFETCH(QSize, even);
    QCOMPARE(evenSize(size), even);
}

void TestPictureFit::aStudioFrameIsFilledAsFarAsItGoes_data()
{
    QTest::addColumn<QSize>("shown");
    QTest::addColumn<Ratio>("rate");
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QString>("aspect");
    QTest::addColumn<QSize>("picture");

    const Ratio pal{25, 1};
    const Ratio ntsc{30000, 1001};
    QTest::newRow("wide, 25 fps") << QSize(1280, 720) << pal << QSize(720, 576)
                                  << QStringLiteral("64/45") << QSize(720, 576);
    QTest::newRow("4:3, 25 fps") << QSize(320, 240) << pal << QSize(720, 576)
                                 << QStringLiteral("16/15") << QSize(720, 576);
    QTest::newRow("wide, 29.97 fps") << QSize(1920, 1080) << ntsc << QSize(720, 480)
                                     << QStringLiteral("32/27") << QSize(720, 480);
    QTest::newRow("24 fps is nearer to 25") << QSize(1280, 720) << Ratio{24, 1} << QSize(720, 576)
                                            << QStringLiteral("64/45") << QSize(720, 576);
    QTest::newRow("60 fps is nearer to 29.97")
        << QSize(1280, 720) << Ratio{60, 1} << QSize(720, 480) << QStringLiteral("32/27")
        << QSize(720, 480);
    QTest::newRow("4:3, 29.97 fps")
        << QSize(640, 480) << ntsc << QSize(720, 480) << QStringLiteral("8/9") << QSize(720, 480);
    QTest::newRow("portrait leaves the sides")
        << QSize(720, 1280) << pal << QSize(720, 576) << QStringLiteral("16/15") << QSize(304, 576);
    QTest::newRow("cinema leaves top and bottom")
        << QSize(1920, 800) << pal << QSize(720, 576) << QStringLiteral("64/45") << QSize(720, 426);
}

void TestPictureFit::aStudioFrameIsFilledAsFarAsItGoes()
{
    QFETCH(QSize, shown);
    QFETCH(Ratio, rate);
    QFETCH(QSize, frame);
    QFETCH(QString, aspect);
    QFETCH(QSize, picture);
    const FrameFit fit = fitIntoFrame(shown, rate, videoCodec(QStringLiteral("dvvideo")).frames);
    QCOMPARE(fit.frame.size, frame);
    QCOMPARE(fit.frame.pixelAspect.toText(), aspect);
    QCOMPARE(fit.picture, picture);
}

QTEST_GUILESS_MAIN(TestPictureFit)
#include "tst_picturefit.moc"
