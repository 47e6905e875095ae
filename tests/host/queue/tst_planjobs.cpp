#include "host/queue/planjobs.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

/*! Reading plans. */
class TestPlanJobs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobsAreNumberedByTheirLines();
    void aJobIsReadAgainByItsPlace();
    void relativePathsAreMadeAbsolute();
    void jobsWithAResultAreLeftOut();
    void aLineThatIsNoWholeJobIsNamed_data();
    void aLineThatIsNoWholeJobIsNamed();
    void aPlanThatCantBeReadIsNamed();
    void aPlanWithoutJobsIsNamed();

private:
    [[nodiscard]] static QByteArray line(const QByteArray &name)
    {
        return "{\"version\":1,\"source\":\"" + name + ".wav\",\"target\":\"" + name +
               ".mp3\",\"preset\":{\"id\":\"Audio_MP3_001\",\"extension\":\"mp3\"}}\n";
    }
    [[nodiscard]] bool open(PlanJobs &plan, const QByteArray &lines) const
    {
        return writeFile(path(), lines) && plan.open(path());
    }
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("jobs.jsonl")); }

    const QTemporaryDir m_folder;
};

void TestPlanJobs::jobsAreNumberedByTheirLines()
{
    PlanJobs plan;
    QVERIFY(open(plan, line("/a") + "\n" + line("/b")));
    QStringList jobs;
    QVERIFY(plan.each([&jobs](const JobPlace &place, const PlannedJob &job) {
        jobs << QStringLiteral("%1 %2 %3").arg(place.index).arg(job.source, job.target);
    }));
    QCOMPARE(jobs,
             QStringList({QStringLiteral("1 /a.wav /a.mp3"), QStringLiteral("3 /b.wav /b.mp3")}));
}

void TestPlanJobs::aJobIsReadAgainByItsPlace()
{
    PlanJobs plan;
    QVERIFY(open(plan, line("/a") + line("/b") + line("/c")));
    const auto places = plan.undone();
    QVERIFY(places);
    QCOMPARE(places->size(), 3);
    QCOMPARE(plan.at(places->at(2))->source, QStringLiteral("/c.wav"));
    QCOMPARE(plan.at(places->at(0))->source, QStringLiteral("/a.wav"));
}

void TestPlanJobs::relativePathsAreMadeAbsolute()
{
    PlanJobs plan;
    QVERIFY(open(plan, line("a")));
    const auto job = plan.at({1, 0});
    QVERIFY(job);
    QCOMPARE(job->source, QDir::current().absoluteFilePath(QStringLiteral("a.wav")));
    QCOMPARE(job->target, QDir::current().absoluteFilePath(QStringLiteral("a.mp3")));
}

void TestPlanJobs::jobsWithAResultAreLeftOut()
{
    const QByteArray folder = QFile::encodeName(m_folder.path());
    QVERIFY(writeFile(m_folder.filePath(QStringLiteral("b.mp3"))));
    PlanJobs plan;
    QVERIFY(open(plan, line(folder + "/a") + line(folder + "/b") + line(folder + "/c")));
    const auto places = plan.undone();
    QVERIFY(places);
    QCOMPARE(places->size(), 2);
    QCOMPARE(places->at(0).index, 1);
    QCOMPARE(places->at(1).index, 3);
}

void TestPlanJobs::aLineThatIsNoWholeJobIsNamed_data()
{
    QTest::addColumn<QByteArray>("last");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("cut off") << line("/b").left(40) << "is no whole job";
    QTest::newRow("of a newer version")
        << line("/b").replace("\"version\":1", "\"version\":2") << "is of a newer version";
    QTest::newRow("without a target") << line("/b").replace("target", "aim") << "lacks its";
}

void TestPlanJobs::aLineThatIsNoWholeJobIsNamed()
{
    QFETCH(QByteArray, last);
    QFETCH(QString, complaint);

    PlanJobs plan;
    QVERIFY(open(plan, line("/a") + last));
    const auto places = plan.undone();
    QVERIFY(!places);
    QVERIFY2(places.error().text.startsWith(path() + QStringLiteral(": line 2 ") + complaint),
             qPrintable(places.error().text));
}

void TestPlanJobs::aPlanThatCantBeReadIsNamed()
{
    PlanJobs plan;
    const Result<> opened = plan.open(m_folder.filePath(QStringLiteral("nowhere.jsonl")));
    QVERIFY(!opened);
    QVERIFY2(opened.error().text.contains(QStringLiteral("nowhere.jsonl (No such file")),
             qPrintable(opened.error().text));
}

void TestPlanJobs::aPlanWithoutJobsIsNamed()
{
    PlanJobs plan;
    QVERIFY(open(plan, "\n"));
    const auto places = plan.undone();
    QVERIFY(!places);
    QVERIFY2(places.error().text.contains(path() + QStringLiteral(" has no jobs")),
             qPrintable(places.error().text));
}

QTEST_GUILESS_MAIN(TestPlanJobs)
#include "tst_planjobs.moc"
