#include "host/queue/plannedjob.h"

#include <QFileInfo>
#include <QtTest>

class TestPlannedJob : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineHoldsTheWholeJob();
    void namesOfAnyBytesSurvive();
    void theTargetIsFixed();
    void anInvalidLineIsRefused_data();
    void anInvalidLineIsRefused();

private:
    static PlannedJob job()
    {
        PlannedJob made;
        made.source = QStringLiteral("/in/clip.mkv");
        made.target = QStringLiteral("/out/clip.a (2).mp4");
        made.preset = {{QStringLiteral("extension"), QStringLiteral("mp4")},
                       {QStringLiteral("video"),
                        QVariantMap{{QStringLiteral("encoder"), QStringLiteral("h264")},
                                    {QStringLiteral("resolution"), QStringLiteral("1280x720")}}}};
        made.settings = OutputSettings::fromPreset(made.preset);
        made.settings.start = 1.5;
        made.settings.end = 9;
        made.settings.stillSeconds = 5;
        made.settings.targetBytes = 25e6;
        made.settings.averagesBitrate = true;
        made.settings.burnedSubtitles = 2;
        made.settings.audioTracks = {TrackChoice::OfLanguage, QStringLiteral("de")};
        made.settings.subtitles = {TrackChoice::None};
        made.keepDates = true;
        made.cost = 12345;
        return made;
    }
};

void TestPlannedJob::aLineHoldsTheWholeJob()
{
    const PlannedJob written = job();
    const QByteArray line = written.toLine();
    QVERIFY(!line.contains('\n'));
    const Result<PlannedJob> read = PlannedJob::fromLine(line);
    QVERIFY(read);
    QCOMPARE(read->source, written.source);
    QCOMPARE(read->target, written.target);
    QVERIFY(read->settings == written.settings);
    QCOMPARE(read->settings.box, QSize(1280, 720));
    QCOMPARE(read->keepDates, true);
    QCOMPARE(read->cost, 12345.);
}

void TestPlannedJob::namesOfAnyBytesSurvive()
{
    PlannedJob odd = job();
    // A lone surrogate stands for a byte that is no UTF-8.
    odd.source = QStringLiteral("/in/\"\n\u202e") + QChar(0xdc80) + QStringLiteral(".mkv");
    QCOMPARE(PlannedJob::fromLine(odd.toLine())->source, odd.source);
}

void TestPlannedJob::theTargetIsFixed()
{
    const ConversionJob conversion = job().conversion(OutputTarget::IfExists::Skip);
    OutputName name(conversion.source, conversion.target, conversion.settings.extension);
    QVERIFY(name.choose());
    QCOMPARE(name.path(), QStringLiteral("/out/clip.a (2).mp4"));
    QVERIFY(conversion.target.makesFolder);
    QCOMPARE(conversion.keepDates, true);
}

void TestPlannedJob::anInvalidLineIsRefused_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");
    const QByteArray whole = job().toLine();
    const auto with = [&whole](const char *before, const char *after) {
        return QByteArray(whole).replace(before, after);
    };
    QTest::newRow("cut off") << whole.left(whole.size() / 2) << QStringLiteral("is no whole job (");
    QTest::newRow("no JSON") << QByteArray("film.mp4") << QStringLiteral("is no whole job (");
    QTest::newRow("newer") << with("\"version\":1", "\"version\":2")
                           << QStringLiteral("is of a newer version of vexconvert (plan version 2, "
                                             "known is 1); update it on this machine");
    const QString lacking =
        QStringLiteral("lacks its version, source, target or preset; make the plan again");
    QTest::newRow("no version") << with("\"version\"", "\"edition\"") << lacking;
    QTest::newRow("no source") << with("\"source\"", "\"origin\"") << lacking;
    QTest::newRow("no target") << with("\"target\"", "\"aim\"") << lacking;
    QTest::newRow("no preset") << with("\"preset\"", "\"set\"") << lacking;
    const QString invalid =
        QStringLiteral("has an invalid value among its choices; make the plan again");
    QTest::newRow("negative start") << with("\"start\":1.5", "\"start\":-1") << invalid;
    QTest::newRow("track") << with("\"subtitles\":\"none\"", "\"subtitles\":\"0\"") << invalid;
    QTest::newRow("other extension")
        << with("clip.a (2).mp4", "clip.mkv")
        << QStringLiteral("names a result that doesn't end with \".mp4\"; make the plan again");
}

void TestPlannedJob::anInvalidLineIsRefused()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    const Result<PlannedJob> refused = PlannedJob::fromLine(line);
    QVERIFY(!refused);
    QVERIFY2(refused.error().text.startsWith(reason), qPrintable(refused.error().text));
}

QTEST_GUILESS_MAIN(TestPlannedJob)
#include "tst_plannedjob.moc"
