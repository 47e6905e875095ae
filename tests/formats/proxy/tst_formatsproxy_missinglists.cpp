#include "formats/proxy/formatsproxyprivate.h"
#include "tests/formats/proxy/facadetest.h"

namespace {

// An explicit instantiation can name a private member, so the facade needs no friends for tests.
template <auto member>
struct Insight
{
    friend FormatsProxyPrivate &insideOf(FormatsProxy &facade) { return *(facade.*member); }
};
template struct Insight<&FormatsProxy::d>;
FormatsProxyPrivate &insideOf(FormatsProxy &facade);

const QString video = QStringLiteral("video");
const QString recently = QStringLiteral("recently");
const QString mp4Class = QStringLiteral("MP4");
const QString source = QStringLiteral("video_mp4_source");
const QString hd = QStringLiteral("video_mp4_720p");

} // namespace

/*! The facade without its recently-used list, its format list or both. */
class TestFormatsProxyMissingLists : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsAddedToAMissingRecentlyUsedList_data();
    void nothingIsAddedToAMissingRecentlyUsedList();
    void aMissingRecentlyUsedListHoldsNothing();
    void aPresetIsDeletedWithoutARecentlyUsedList();
    void theCatalogueAnswersWithoutARecentlyUsedList();
    void noPresetIsFoundInAMissingCatalogue();
    void userPresetsOfAMissingCatalogueAreThoseOfAnUnknownClass();
    void nothingFitsInAMissingCatalogue();
    void theUsualBitratesAreOfferedWithoutACatalogue();
    void theRecentlyUsedListAnswersWithoutACatalogue();
    void theAccessorsHandOutWhatThereIs();
    void onlyTheListsThatExistAreSaved_data();
    void onlyTheListsThatExistAreSaved();
    void onlyTheListsThatExistAreLoaded_data();
    void onlyTheListsThatExistAreLoaded();

private:
    void dropRecents() { insideOf(*m_facade).recentlyModel = nullptr; }
    void dropCatalogue() { insideOf(*m_facade).formatListModel = nullptr; }

    /*! Fills both lists: the catalogue with samples, the recently-used one with a preset of it. */
    void fill()
    {
        initOverSamples(m_folder.path());
        QVERIFY(m_facade->add2Recently(video, mp4Class, hd));
        QCOMPARE(m_facade->recentlyFormatsModel()->rowCount(), 1);
    }

    static void addListRows()
    {
        QTest::addColumn<bool>("hasRecents");
        QTest::addColumn<bool>("hasCatalogue");
        QTest::newRow("both") << true << true;
        QTest::newRow("no recently-used list") << false << true;
        QTest::newRow("no format list") << true << false;
        QTest::newRow("none") << false << false;
    }

    const QTemporaryDir m_folder;
};

void TestFormatsProxyMissingLists::nothingIsAddedToAMissingRecentlyUsedList_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("id");
    QTest::newRow("a preset") << video << mp4Class << source;
    QTest::newRow("an unknown preset") << video << mp4Class << QStringLiteral("gone");
    QTest::newRow("an unknown class") << video << QStringLiteral("gone") << source;
    QTest::newRow("of the list itself") << recently << QString() << hd;
}

void TestFormatsProxyMissingLists::nothingIsAddedToAMissingRecentlyUsedList()
{
    QFETCH(const QString, tag);
    QFETCH(const QString, className);
    QFETCH(const QString, id);
    fill();
    dropRecents();
    QVERIFY(!m_facade->add2Recently(tag, className, id));
}

void TestFormatsProxyMissingLists::aMissingRecentlyUsedListHoldsNothing()
{
    fill();
    dropRecents();
    QVERIFY(!m_facade->isFormatInRecently(hd));
    QVERIFY(!m_facade->delFromRecently(hd));
    QCOMPARE(m_facade->getFormat(recently, QString(), hd), QVariantMap());
}

void TestFormatsProxyMissingLists::aPresetIsDeletedWithoutARecentlyUsedList()
{
    fill();
    dropRecents();
    QVERIFY(m_facade->delUserDefineFormat(video, mp4Class, hd));
    QCOMPARE(idsOf(mp4()), QStringList(source));
    QVERIFY(!m_facade->delUserDefineFormat(video, mp4Class, hd));
}

void TestFormatsProxyMissingLists::theCatalogueAnswersWithoutARecentlyUsedList()
{
    fill();
    dropRecents();
    QCOMPARE(titleOf(m_facade->getFormat(hd)), QStringLiteral("HD 720p"));
    QVERIFY(m_facade->isVideoFormat(source));
    QCOMPARE(m_facade->addUserDefineFormat(video, mp4Class, source, {}), QStringLiteral("1001"));
    QCOMPARE(m_facade->getUserDefineCount(video, mp4Class), 1);
}

void TestFormatsProxyMissingLists::noPresetIsFoundInAMissingCatalogue()
{
    fill();
    dropCatalogue();
    QCOMPARE(m_facade->getTagAndClassById(source), QVariantMap());
    QCOMPARE(m_facade->getTagName(source), QString());
    QCOMPARE(m_facade->getClassIconById(source), QString());
    QCOMPARE(m_facade->getFormat(source), QVariantMap());
    QCOMPARE(m_facade->getFormat(video, mp4Class, source), QVariantMap());
    QVERIFY(!m_facade->isAudioFormat(QStringLiteral("audio_yinpin_source")));
    QVERIFY(!m_facade->isVideoFormat(source));
    QVERIFY(!m_facade->isSupportMultiTrack(source));
    QCOMPARE(m_facade->getUserDefineCount(video, mp4Class), -1);
}

void TestFormatsProxyMissingLists::userPresetsOfAMissingCatalogueAreThoseOfAnUnknownClass()
{
    fill();
    dropCatalogue();
    QCOMPARE(m_facade->addUserDefineFormat(video, mp4Class, source, {}), QString());
    QVERIFY(m_facade->changeUserDefineFormat(mp4Class, source, {}));
    QVERIFY(!m_facade->delUserDefineFormat(video, mp4Class, hd));
    QVERIFY(m_facade->isFormatInRecently(hd));
}

void TestFormatsProxyMissingLists::nothingFitsInAMissingCatalogue()
{
    fill();
    dropCatalogue();
    QVERIFY(!m_facade->getSupportFormat(mp4Class));
    QVERIFY(!m_facade->isVideoType(mp4Class));
    const QString kbps = QStringLiteral("128");
    QCOMPARE(m_facade->getFitAudioFormatByBitrate(mp4Class, kbps), QVariantMap());
    QCOMPARE(m_facade->getFitVideoFormatByName(mp4Class, QStringLiteral("HD 720p"), kbps),
             QVariantMap());
    for (const QString &type : {video, QStringLiteral("audio"), QStringLiteral("image")}) {
        QCOMPARE(m_facade->getConverterParameters(type, mp4Class, kbps, true), QVariantMap());
    }
}

void TestFormatsProxyMissingLists::theUsualBitratesAreOfferedWithoutACatalogue()
{
    fill();
    dropCatalogue();
    QCOMPARE(m_facade->getSupportAudioLisrfromType(mp4Class),
             (QVariantList{QStringLiteral("320"), QStringLiteral("256"), QStringLiteral("128")}));
}

void TestFormatsProxyMissingLists::theRecentlyUsedListAnswersWithoutACatalogue()
{
    fill();
    dropCatalogue();
    QVERIFY(m_facade->isFormatInRecently(hd));
    QCOMPARE(titleOf(m_facade->getFormat(recently, QString(), hd)), QStringLiteral("HD 720p"));
    QVERIFY(m_facade->add2Recently(recently, QString(), hd));
    QVERIFY(m_facade->add2Recently(video, mp4Class, source));
    QCOMPARE(idsOf(*m_facade->recentlyFormatsModel()), QStringList(hd));
    QVERIFY(m_facade->delFromRecently(hd));
}

void TestFormatsProxyMissingLists::theAccessorsHandOutWhatThereIs()
{
    dropRecents();
    dropCatalogue();
    QVERIFY(!m_facade->recentlyFormatsModel());
    QVERIFY(!m_facade->formatListModel());
    QVERIFY(m_facade->formatListModelProxy());
}

void TestFormatsProxyMissingLists::onlyTheListsThatExistAreSaved_data()
{
    addListRows();
}

void TestFormatsProxyMissingLists::onlyTheListsThatExistAreSaved()
{
    QFETCH(const bool, hasRecents);
    QFETCH(const bool, hasCatalogue);
    const QTemporaryDir folder;
    initOverSamples(folder.path());
    writeFile(recentlyFile(folder), "old");
    writeFile(userPresetsFile(folder), "old");
    if (!hasRecents) {
        dropRecents();
    }
    if (!hasCatalogue) {
        dropCatalogue();
    }
    m_facade->uninit();
    QCOMPARE(readFile(recentlyFile(folder)), QByteArray(hasRecents ? "[\n]\n" : "old"));
    QCOMPARE(readFile(userPresetsFile(folder)), QByteArray(hasCatalogue ? "[\n]\n" : "old"));
}

void TestFormatsProxyMissingLists::onlyTheListsThatExistAreLoaded_data()
{
    addListRows();
}

// The parser of a list that exists logs that the file is missing.
void TestFormatsProxyMissingLists::onlyTheListsThatExistAreLoaded()
{
    QFETCH(const bool, hasRecents);
    QFETCH(const bool, hasCatalogue);
    FormatListModel *formats = m_facade->formatListModel();
    const QTemporaryDir folder;
    FakeCatalogue::served() = sampleCatalogue();
    if (!hasRecents) {
        dropRecents();
    }
    if (!hasCatalogue) {
        dropCatalogue();
    }
    m_facade->init(folder.path());
    QCOMPARE(m_log->takeAll().size(), int(hasRecents) + int(hasCatalogue));
    QCOMPARE(formats->rowCount(), hasCatalogue ? 3 : 0);
    QCOMPARE(m_facade->formatTags().size(), 5);
}

QTEST_GUILESS_MAIN(TestFormatsProxyMissingLists)
#include "tst_formatsproxy_missinglists.moc"
