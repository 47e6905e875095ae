#include "host/window/sampleoffer.h"

#include "tests/host/window/pagetest.h"

#include <QDesktopServices>

/*! What the window says and plays while ten seconds are tried. */
class TestSampleOffer : public PageTest
{
    Q_OBJECT

public Q_SLOTS:
    void play(const QUrl &url) { m_played << url.fileName(); }

private Q_SLOTS:
    void init();
    void cleanup();

    void theSampleIsPlayedAndOfferedAgain();
    void aTrialThatIsStoppedPlaysNothing();
    void whatFailsIsSaid();

private:
    bool isOffered(const QString &text) { return m_converter->offer()->text().startsWith(text); }

    QStringList m_played;
};

void TestSampleOffer::init()
{
    PageTest::init();
    m_played.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "play");
}

void TestSampleOffer::cleanup()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    PageTest::cleanup();
}

void TestSampleOffer::theSampleIsPlayedAndOfferedAgain()
{
    m_converter->trySample(addReady(*m_converter, song()));
    Offer &offer = *m_converter->offer();
    QVERIFY(isOffered(QStringLiteral("Trying 10 seconds of song.wav")));
    QCOMPARE(offer.action(), QStringLiteral("Stop"));
    QTRY_VERIFY_WITH_TIMEOUT(isOffered(QStringLiteral("All of song.wav would be about ")),
                             patience);
    QCOMPARE(m_played.size(), 1);
    QCOMPARE(offer.action(), QStringLiteral("Play again"));
    offer.take();
    QCOMPARE(m_played.size(), 2);
    QCOMPARE(m_played.at(1), m_played.at(0));
}

void TestSampleOffer::aTrialThatIsStoppedPlaysNothing()
{
    const int stopped = addReady(*m_converter, song());
    const int tried = addReady(*m_converter, song(QStringLiteral("other.wav")));
    m_converter->trySample(stopped);
    m_converter->offer()->take();
    QVERIFY(!isOffered(QStringLiteral("Trying")));
    m_converter->trySample(tried);
    QTRY_VERIFY_WITH_TIMEOUT(isOffered(QStringLiteral("All of other.wav would be")), patience);
    QCOMPARE(m_played.size(), 1);
}

void TestSampleOffer::whatFailsIsSaid()
{
    const QUrl source = song();
    const int id = addReady(*m_converter, source);
    QVERIFY(QFile::remove(source.toLocalFile()));
    QSignalSpy noticed(m_converter.get(), &Page::noticed);
    m_converter->trySample(id);
    QTRY_COMPARE_WITH_TIMEOUT(noticed.count(), 1, patience);
    const QString line = noticed.constFirst().constFirst().toString();
    QVERIFY2(line.startsWith(QStringLiteral("song.wav: ")), qPrintable(line));
    QCOMPARE(m_converter->offer()->text(), QString());
    QCOMPARE(m_played, QStringList());
}

QTEST_MAIN(TestSampleOffer)
#include "tst_sampleoffer.moc"
