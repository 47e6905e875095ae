#include "host/window/sizesampler.h"

#include "tests/host/window/pagetest.h"

#include <QWindow>

/*! When samples tell rows the likely sizes of their results. */
class TestSizeSampler : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void afterAPauseARowTellsTheLikelySize();
    void keysPutASampleOff();
    void aRunStopsASample();
    void aRemovedRowStopsItsSample();
    void anotherFormatBeginsAnew();
    void whatIsKnownIsNotSampledAgain();
    void whatTellsNothingIsNotSampledAgain();
    void aHiddenWindowStopsSamples();
    void nothingIsSampledWhileAnAnswerIsAwaited();
    void withoutThePreferenceNothingIsSampled();
    void aFileThatIsGoneIsNotSampled();
    void aConvertedFileIsNotSampled();
    void rowsInSightComeFirst();
    void theEditorsFilesAreSampledToo();

private:
    /*! A song whose AAC is sampled; a long one takes long. */
    int addSong(const char *name, int seconds = 1);
    QString size(int id) const;
    void watch(int pause = 0);
    /*! Waits until the pause is over, if it is none. */
    static void rest();

    std::unique_ptr<QWindow> m_window;
    std::unique_ptr<SizeSampler> m_sampler;
    QVector<int> m_begun;
};

void TestSizeSampler::init()
{
    PageTest::init();
    m_settings->setConverterGlobalId(aac);
    m_window = std::make_unique<QWindow>();
    m_window->show();
    m_begun.clear();
}

void TestSizeSampler::cleanup()
{
    m_sampler.reset();
    m_window.reset();
    m_settings->setSampling(true);
    PageTest::cleanup();
}

int TestSizeSampler::addSong(const char *name, int seconds)
{
    const QString path = m_files->filePath(QString::fromLatin1(name));
    [&] {
        QVERIFY(
            MediaClips::make(path, QStringLiteral("-f lavfi -i sine=duration=%1").arg(seconds)));
    }();
    return addReady(*m_converter, QUrl::fromLocalFile(path));
}

QString TestSizeSampler::size(int id) const
{
    return m_converter->outlook(id, {}, 0, 0, {}, 0).size;
}

void TestSizeSampler::watch(int pause)
{
    m_sampler = std::make_unique<SizeSampler>(QVector<Page *>{m_converter.get(), m_editor.get()},
                                              *m_window, *m_settings, pause);
    connect(m_sampler.get(), &SizeSampler::began, this, [this](int id) { m_begun << id; });
}

void TestSizeSampler::rest()
{
    for (int turns = 0; turns < 3; ++turns) {
        QTest::qWait(0);
    }
}

void TestSizeSampler::afterAPauseARowTellsTheLikelySize()
{
    const int id = addSong("song.wav");
    QTRY_VERIFY_WITH_TIMEOUT(size(id).startsWith(QStringLiteral("at most ")), patience);
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(size(id).startsWith(QStringLiteral("about ")), patience);
    QCOMPARE(m_begun, QVector<int>{id});
}

void TestSizeSampler::keysPutASampleOff()
{
    addSong("song.wav");
    constexpr int pause = 2000;
    watch(pause);
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < pause * 5 / 4) {
        QTest::keyClick(m_window.get(), Qt::Key_Tab);
        QTest::qWait(1);
    }
    QCOMPARE(m_begun, QVector<int>());
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 1, patience);
}

void TestSizeSampler::aRunStopsASample()
{
    const int id = addSong("long.wav", 3000);
    addSong("other.wav"); // isn't sampled meanwhile, either
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(m_sampler->isSampling(), patience);
    m_converter->convert(id);
    QVERIFY(!m_sampler->isSampling());
    rest();
    QCOMPARE(m_begun.size(), 1);
    m_converter->cancelAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
}

void TestSizeSampler::aRemovedRowStopsItsSample()
{
    const int id = addSong("long.wav", 3000);
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(m_sampler->isSampling(), patience);
    m_converter->remove(id);
    QVERIFY(!m_sampler->isSampling());
}

void TestSizeSampler::anotherFormatBeginsAnew()
{
    const int id = addSong("song.wav");
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(m_sampler->isSampling(), patience);
    m_converter->useFormat(id, flac);
    QVERIFY(!m_sampler->isSampling());
    QCOMPARE(size(id), QString());
    QTRY_VERIFY_WITH_TIMEOUT(size(id).startsWith(QStringLiteral("about ")), patience);
    QCOMPARE(m_begun, (QVector<int>{id, id}));
}

void TestSizeSampler::whatIsKnownIsNotSampledAgain()
{
    const int id = addSong("song.wav");
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(size(id).startsWith(QStringLiteral("about ")), patience);
    const QString known = size(id);
    m_converter->useFormat(id, flac);
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 2, patience);
    QTRY_VERIFY_WITH_TIMEOUT(!m_sampler->isSampling(), patience);
    m_converter->useFormat(id, aac);
    QCOMPARE(size(id), known);
    const int other = addSong("other.wav");
    QTRY_COMPARE_WITH_TIMEOUT(m_begun, (QVector<int>{id, id, other}), patience);
}

void TestSizeSampler::whatTellsNothingIsNotSampledAgain()
{
    const int id = addSong("song.wav");
    QFile song(m_files->filePath(QStringLiteral("song.wav")));
    QVERIFY(song.open(QIODevice::WriteOnly));
    song.write("no song any longer");
    song.close();
    watch();
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 1, patience);
    const int other = addSong("other.wav");
    QTRY_COMPARE_WITH_TIMEOUT(m_begun, (QVector<int>{id, other}), patience);
    QVERIFY(size(id).startsWith(QStringLiteral("at most ")));
}

void TestSizeSampler::aHiddenWindowStopsSamples()
{
    addSong("long.wav", 3000);
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(m_sampler->isSampling(), patience);
    m_window->hide();
    QVERIFY(!m_sampler->isSampling());
    rest();
    QCOMPARE(m_begun.size(), 1);
    m_window->showMinimized();
    rest();
    QCOMPARE(m_begun.size(), 1);
    m_window->showNormal();
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 2, patience);
}

void TestSizeSampler::nothingIsSampledWhileAnAnswerIsAwaited()
{
    addSong("song.wav");
    m_window->setProperty("isAsking", true);
    watch();
    rest();
    QCOMPARE(m_begun.size(), 0);
    m_window->setProperty("isAsking", false);
    QTest::keyClick(m_window.get(), Qt::Key_Escape); // what the user closes it with
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 1, patience);
}

void TestSizeSampler::withoutThePreferenceNothingIsSampled()
{
    addSong("long.wav", 3000);
    watch();
    QTRY_VERIFY_WITH_TIMEOUT(m_sampler->isSampling(), patience);
    m_settings->setSampling(false);
    QVERIFY(!m_sampler->isSampling());
    rest();
    QCOMPARE(m_begun.size(), 1);
    QVERIFY(!WindowSettings(m_config.filePath(QStringLiteral("vexconvert.ini"))).isSampling());
    m_settings->setSampling(true);
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 2, patience);
}

void TestSizeSampler::aFileThatIsGoneIsNotSampled()
{
    addSong("song.wav");
    const int other = addSong("other.wav");
    QVERIFY(QFile::remove(m_files->filePath(QStringLiteral("song.wav"))));
    watch();
    QTRY_COMPARE_WITH_TIMEOUT(m_begun, QVector<int>{other}, patience);
}

void TestSizeSampler::aConvertedFileIsNotSampled()
{
    const int id = addSong("song.wav");
    m_converter->convert(id);
    QTRY_COMPARE_WITH_TIMEOUT(task(*m_converter, id).state, Task::Converted, patience);
    const int other = addSong("other.wav");
    watch();
    QTRY_COMPARE_WITH_TIMEOUT(m_begun, QVector<int>{other}, patience);
}

void TestSizeSampler::rowsInSightComeFirst()
{
    QVector<int> ids;
    for (const char *name : {"a.wav", "b.wav", "c.wav"}) {
        ids << addSong(name);
    }
    m_converter->setProperty("firstInSight", 1);
    watch();
    QTRY_COMPARE_WITH_TIMEOUT(m_begun, (QVector<int>{ids.at(1), ids.at(2)}), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!m_sampler->isSampling(), patience);
    m_converter->setProperty("firstInSight", 0);
    QTRY_COMPARE_WITH_TIMEOUT(m_begun.size(), 3, patience);
}

void TestSizeSampler::theEditorsFilesAreSampledToo()
{
    m_settings->setEditorGlobalId(aac);
    const int here = addSong("song.wav");
    const int there = addReady(*m_editor, song());
    m_window->setProperty("currentPage", 1);
    watch();
    QTRY_COMPARE_WITH_TIMEOUT(m_begun, (QVector<int>{there, here}), patience);
}

QTEST_MAIN(TestSizeSampler)
#include "tst_sizesampler.moc"
