#include "host/window/sampletrial.h"

#include "tests/host/window/pagetest.h"

/*! Samples of real files. */
class TestSampleTrial : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSampleIsTenSecondsAndTellsTheSizeOfTheWhole();
    void theSourcesFolderStaysAsItIs();
};

void TestSampleTrial::aSampleIsTenSecondsAndTellsTheSizeOfTheWhole()
{
    ConversionJob job;
    job.source = m_files->filePath(QStringLiteral("long.wav"));
    QVERIFY(MediaClips::make(job.source, QStringLiteral("-f lavfi -i sine=duration=40")));
    job.settings = m_store->find(mp3)->outputSettings();
    SampleTrial trial;
    QString target;
    double wholeBytes = 0;
    double duration = 0;
    connect(&trial, &SampleTrial::finished, this, [&](const Result<ConversionOutcome> &outcome) {
        target = outcome ? outcome->target : outcome.error().text;
        wholeBytes = outcome ? outcome->wholeBytes : 0;
        duration = outcome ? outcome->facts.duration : 0;
    });
    trial.start(job);
    QTRY_VERIFY_WITH_TIMEOUT(!target.isEmpty(), patience);
    QVERIFY2(std::abs(duration - 10) < 0.2, qPrintable(target));
    const double bytes = double(QFileInfo(target).size());
    QVERIFY(std::abs(wholeBytes / bytes - 4) < 0.2);
}

void TestSampleTrial::theSourcesFolderStaysAsItIs()
{
    const int id = addReady(*m_converter, song());
    const QStringList before = QDir(m_files->path()).entryList(QDir::AllEntries | QDir::Hidden);
    m_converter->trySample(id);
    QTRY_VERIFY_WITH_TIMEOUT(
        m_converter->offer()->text().startsWith(QStringLiteral("All of song.wav would be")),
        patience);
    QCOMPARE(QDir(m_files->path()).entryList(QDir::AllEntries | QDir::Hidden), before);
    QCOMPARE(task(*m_converter, id).state, Task::Ready);
}

QTEST_MAIN(TestSampleTrial)
#include "tst_sampletrial.moc"
