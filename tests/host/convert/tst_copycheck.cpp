#include "host/convert/copycheck.h"
#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

/*! When a copy is as good as its source, and what is tried where it isn't. */
class TestCopyCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCopyBeginsWithTheFramesOfItsSource_data();
    void aCopyBeginsWithTheFramesOfItsSource();
    void aCopyLastsAsLongAsItsSource_data();
    void aCopyLastsAsLongAsItsSource();
    void soundIsEncodedBeforeThePicture();
};

void TestCopyCheck::aCopyBeginsWithTheFramesOfItsSource_data()
{
    QTest::addColumn<QByteArray>("copy");
    QTest::addColumn<bool>("isAlike");
    QTest::newRow("the same") << QByteArray("#format\n0, 0, 0, 1, 9, aa\n0, 40, 40, 1, 9, bb\n")
                              << true;
    QTest::newRow("within what nobody notices")
        << QByteArray("0, 0, 21, 1, 9, aa\n0, 40, 61, 1, 9, bb\n") << true;
    QTest::newRow("late") << QByteArray("0, 0, 80, 1, 9, aa\n0, 40, 120, 1, 9, bb\n") << false;
    QTest::newRow("another order")
        << QByteArray("0, 0, 0, 1, 9, bb\n0, 40, 40, 1, 9, aa\n") << false;
    QTest::newRow("another picture")
        << QByteArray("0, 0, 0, 1, 9, cc\n0, 40, 40, 1, 9, bb\n") << false;
    QTest::newRow("fewer at the end of the second") << QByteArray("0, 0, 0, 1, 9, aa\n") << true;
    QTest::newRow("none") << QByteArray() << false;
}

void TestCopyCheck::aCopyBeginsWithTheFramesOfItsSource()
{
    QFETCH(QByteArray, copy);
    QFETCH(bool, isAlike);
    const QByteArray source = "#format\n0, 0, 0, 1, 9, aa\n0, 40, 40, 1, 9, bb\n";
    QCOMPARE(beginsAlike(source, copy), isAlike);
    QVERIFY(beginsAlike("#no frame in this second\n", copy));
}

void TestCopyCheck::aCopyLastsAsLongAsItsSource_data()
{
    QTest::addColumn<double>("video");
    QTest::addColumn<double>("audio");
    QTest::addColumn<double>("file");
    QTest::addColumn<QString>("lasting");
    QTest::newRow("both") << 4.0 << 5.1 << 5.1 << QStringLiteral("va");
    QTest::newRow("longer picture") << 4.7 << 5.0 << 5.0 << QStringLiteral("a");
    QTest::newRow("shorter sound") << 4.0 << 4.0 << 4.0 << QStringLiteral("v");
    QTest::newRow("unknown") << 0.0 << 0.0 << 0.0 << QStringLiteral("va");
    QTest::newRow("a longer file") << 0.0 << 0.0 << 5.7 << QString();
}

void TestCopyCheck::aCopyLastsAsLongAsItsSource()
{
    QFETCH(double, video);
    QFETCH(double, audio);
    QFETCH(double, file);
    QFETCH(QString, lasting);
    const auto lastingFor = [](double videoSeconds, double audioSeconds, double seconds) {
        return facts(film(), [=](MediaFacts &f) {
            f.videoTracks[0].duration = videoSeconds;
            f.audioTracks[0].duration = audioSeconds;
            f.duration = seconds;
        });
    };
    const MediaFacts source = lastingFor(4, 5, 5);
    const MediaFacts result = lastingFor(video, audio, file);
    const Copies found = copiesThatLast({true, true}, source, result, 5);
    QCOMPARE(found.video, lasting.contains(QLatin1Char('v')));
    QCOMPARE(found.audio, lasting.contains(QLatin1Char('a')));

    const MediaFacts guessed =
        facts(source, [](MediaFacts &f) { f.container = QStringLiteral("mpegts"); });
    const Copies unjudged = copiesThatLast({true, true}, guessed, result, 5);
    QVERIFY(unjudged.video && unjudged.audio);
}

void TestCopyCheck::soundIsEncodedBeforeThePicture()
{
    Copies tried{true, true};
    const Copies first = tried;
    tried = fewerCopies(first, tried);
    QVERIFY(tried.video && !tried.audio);
    tried = fewerCopies(first, tried);
    QVERIFY(!tried.video && tried.audio);
    tried = fewerCopies(first, tried);
    QVERIFY(!tried.video && !tried.audio);
    QVERIFY(!fewerCopies({true, false}, {true, false}).audio);
}

QTEST_GUILESS_MAIN(TestCopyCheck)
#include "tst_copycheck.moc"
