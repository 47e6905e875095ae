#include "host/convert/fileplan.h"

#include "tests/host/convert/plannedcommand.h"

using namespace PlannedCommand;

/*! What is known of a file before ffmpeg writes it. */
class TestFilePlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileLastsAsLongAsItsPartOfTheSource();
    void aPictureLastsAsLongAsItIsShown();
    void anAskedSizeTakesTwoPassesOverOneFile();
    void aSongHasNoPicture();
    void onlyAnAskedSizeHasAdvice();

private:
    static FilePlan planFor(const OutputSettings &settings, const MediaFacts &source = minute())
    {
        return {QStringLiteral("/in"), settings, source, usualEncoders()};
    }
    static MediaFacts minute()
    {
        return facts(film(), [](MediaFacts &f) { f.duration = 60; });
    }
};

void TestFilePlan::aFileLastsAsLongAsItsPartOfTheSource()
{
    FilePlan plan = planFor(video("mp4", "h264"));
    QCOMPARE(plan.duration(), 60.0);
    plan.settings.start = 10;
    plan.settings.end = 25;
    QCOMPARE(plan.duration(), 15.0);
}

void TestFilePlan::aPictureLastsAsLongAsItIsShown()
{
    FilePlan plan = planFor(video("mp4", "h264"), film());
    plan.source.container = QStringLiteral("png_pipe");
    plan.source.duration = 0.04;
    plan.settings.stillSeconds = 7;
    QCOMPARE(plan.duration(), 7.0);
}

void TestFilePlan::anAskedSizeTakesTwoPassesOverOneFile()
{
    FilePlan plan = planFor(video("mp4", "h264", "ac3"));
    const Result<QVector<ToolCall>> one = plan.calls(QStringLiteral("/out"));
    QVERIFY(one);
    QCOMPARE(one->size(), 1);
    plan.settings.targetBytes = 10e6;
    plan.settings.videoKbps = 1000;
    plan.settings.averagesBitrate = true;
    const Result<QVector<ToolCall>> two = plan.calls(QStringLiteral("/out"));
    QVERIFY(two);
    QCOMPARE(two->size(), 2);
    for (const ToolCall &call : *two) {
        QVERIFY(call.arguments.contains(QStringLiteral("/out.pass")));
    }
    QCOMPARE(two->at(1).arguments.constLast(), QStringLiteral("file:/out"));
}

void TestFilePlan::aSongHasNoPicture()
{
    QVERIFY(planFor(video("mp4", "h264")).picture());
    QVERIFY(!planFor(video("mp4", "h264"), song(QStringLiteral("flac"))).picture());
    QVERIFY(!planFor(audio("mp3", "mp3")).picture());
}

void TestFilePlan::onlyAnAskedSizeHasAdvice()
{
    FilePlan plan = planFor(video("mp4", "h264"));
    plan.settings.videoKbps = 100;
    QCOMPARE(plan.advice(), QString());
    plan.settings.targetBytes = 1e6;
    QVERIFY2(plan.advice().startsWith(QStringLiteral("has only 100 kbps for 1920x1080")),
             qPrintable(plan.advice()));
}

QTEST_GUILESS_MAIN(TestFilePlan)
#include "tst_fileplan.moc"
