#include "tests/formats/proxy/facadetest.h"

class TestFormatsProxyRecently : public FacadeTest
{
    Q_OBJECT

private Q_SLOTS:
    void thePresetPickedLastStandsFirst();
    void theEleventhPresetDropsTheOldest();
    void aPresetPickedAgainMovesToTheTop();
    void aPresetPickedAgainMovesEvenInAFullList();
    void aPresetPickedAgainIsRefreshed();
    void aPickFromTheListItselfMovesToTheTop_data();
    void aPickFromTheListItselfMovesToTheTop();
    void theTagOfTheListIsComparedExactly();
    void anUnknownPresetIsNotAFailure_data();
    void anUnknownPresetIsNotAFailure();
    void anOverlongListKeepsItsLength();
    void anOverlongListKeepsItsLengthWhenAPresetMoves();
    void onlyTheFirstOfEqualEntriesMoves();
    void anEntryIsAUserDefinedFullCopy();
    void anEntryDoesNotFollowItsPreset();
    void anEntryRaisesTheHighestUserDefinedId();
    void aMoveIsARemovalAndAnInsertionAtTheHead();
    void anEntryIsRemovedById();
    void removingAnUnknownIdKeepsTheList();
    void onlyTheFirstOfEqualEntriesIsRemoved();
    void theListKnowsItsIds();

private:
    FormatDetailModel &recently() { return *m_facade->recentlyFormatsModel(); }

    bool pick(const QString &id)
    {
        return m_facade->add2Recently(QStringLiteral("video"), QStringLiteral("MP4"), id);
    }

    // A format MP4 with the presets p0 to p11, and a recently-used list of the first of them.
    FormatDetailModel &pickPresets(int count)
    {
        FormatDetailModel &presets = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
        for (int i = 0; i < 12; ++i) {
            presets.addModeInfo(presetWithId(QStringLiteral("p%1").arg(i)));
        }
        for (int i = 0; i < count; ++i) {
            pick(QStringLiteral("p%1").arg(i));
        }
        return presets;
    }

    void fillDirectly(const QStringList &listedIds)
    {
        for (const QString &id : listedIds) {
            recently().addModeInfo(presetWithId(id));
        }
    }
};

void TestFormatsProxyRecently::thePresetPickedLastStandsFirst()
{
    pickPresets(0);
    QVERIFY(pick(QStringLiteral("p3")));
    QVERIFY(pick(QStringLiteral("p1")));
    QCOMPARE(idsOf(recently()), words("p1 p3"));
}

void TestFormatsProxyRecently::theEleventhPresetDropsTheOldest()
{
    pickPresets(10);
    QCOMPARE(idsOf(recently()), words("p9 p8 p7 p6 p5 p4 p3 p2 p1 p0"));
    QVERIFY(pick(QStringLiteral("p10")));
    QCOMPARE(idsOf(recently()), words("p10 p9 p8 p7 p6 p5 p4 p3 p2 p1"));
    QCOMPARE(recently().count(), 10);
}

void TestFormatsProxyRecently::aPresetPickedAgainMovesToTheTop()
{
    pickPresets(8);
    QCOMPARE(recently().getId(5), QStringLiteral("p2"));
    QVERIFY(pick(QStringLiteral("p2")));
    QCOMPARE(idsOf(recently()), words("p2 p7 p6 p5 p4 p3 p1 p0"));
}

void TestFormatsProxyRecently::aPresetPickedAgainMovesEvenInAFullList()
{
    pickPresets(10);
    QVERIFY(pick(QStringLiteral("p0")));
    QCOMPARE(idsOf(recently()), words("p0 p9 p8 p7 p6 p5 p4 p3 p2 p1"));
}

void TestFormatsProxyRecently::aPresetPickedAgainIsRefreshed()
{
    FormatDetailModel &presets = pickPresets(2);
    Preset changed = presetWithId(QStringLiteral("p0"));
    changed.title = QStringLiteral("new");
    presets.updateModeInfo(0, changed);

    QVERIFY(pick(QStringLiteral("p0")));
    QCOMPARE(presetAt(recently(), 0).title, QStringLiteral("new"));
}

void TestFormatsProxyRecently::aPickFromTheListItselfMovesToTheTop_data()
{
    QTest::addColumn<QString>("className");
    QTest::newRow("its own class") << QStringLiteral("MP4");
    QTest::newRow("an unknown class") << QStringLiteral("nowhere");
    QTest::newRow("no class") << QString();
}

void TestFormatsProxyRecently::aPickFromTheListItselfMovesToTheTop()
{
    QFETCH(const QString, className);
    FormatDetailModel &presets = pickPresets(3);
    Preset changed = presetWithId(QStringLiteral("p0"));
    changed.title = QStringLiteral("new");
    presets.updateModeInfo(0, changed);

    QVERIFY(m_facade->add2Recently(QStringLiteral("recently"), className, QStringLiteral("p0")));
    QCOMPARE(idsOf(recently()), words("p0 p2 p1"));
    // The list's own copy moved, not the format's preset.
    QCOMPARE(presetAt(recently(), 0).title, QString());
}

void TestFormatsProxyRecently::theTagOfTheListIsComparedExactly()
{
    pickPresets(2);
    QVERIFY(m_facade->add2Recently(QStringLiteral("Recently"), QStringLiteral("MP4"),
                                   QStringLiteral("p5")));
    QCOMPARE(idsOf(recently()), words("p5 p1 p0"));
}

void TestFormatsProxyRecently::anUnknownPresetIsNotAFailure_data()
{
    QTest::addColumn<QString>("tagName");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("id");
    const QString video = QStringLiteral("video");
    const QString list = QStringLiteral("recently");
    const QString mp4 = QStringLiteral("MP4");
    QTest::newRow("unknown class") << video << QStringLiteral("AVI") << QStringLiteral("p10");
    QTest::newRow("class in another case")
        << video << QStringLiteral("mp4") << QStringLiteral("p10");
    QTest::newRow("unknown id") << video << mp4 << QStringLiteral("p99");
    QTest::newRow("id in another case") << video << mp4 << QStringLiteral("P10");
    QTest::newRow("not in the list itself") << list << mp4 << QStringLiteral("p10");
}

void TestFormatsProxyRecently::anUnknownPresetIsNotAFailure()
{
    QFETCH(const QString, tagName);
    QFETCH(const QString, className);
    QFETCH(const QString, id);
    pickPresets(10);
    QSignalSpy changed(&recently(), &FormatDetailModel::countChanged);

    QVERIFY(m_facade->add2Recently(tagName, className, id));
    QCOMPARE(idsOf(recently()), words("p9 p8 p7 p6 p5 p4 p3 p2 p1 p0"));
    QCOMPARE(changed.count(), 0);
}

void TestFormatsProxyRecently::anOverlongListKeepsItsLength()
{
    pickPresets(0);
    fillDirectly(words("a b c d e f g h i j k l"));
    QVERIFY(pick(QStringLiteral("p0")));
    QCOMPARE(idsOf(recently()), words("p0 a b c d e f g h i j k"));
}

void TestFormatsProxyRecently::anOverlongListKeepsItsLengthWhenAPresetMoves()
{
    pickPresets(0);
    fillDirectly(words("a b c d e f g h i j k p0"));
    QVERIFY(pick(QStringLiteral("p0")));
    QCOMPARE(idsOf(recently()), words("p0 a b c d e f g h i j k"));
}

void TestFormatsProxyRecently::onlyTheFirstOfEqualEntriesMoves()
{
    pickPresets(0);
    fillDirectly(words("a p0 b p0"));
    QVERIFY(pick(QStringLiteral("p0")));
    QCOMPARE(idsOf(recently()), words("p0 a b p0"));
}

void TestFormatsProxyRecently::anEntryIsAUserDefinedFullCopy()
{
    Preset preset = samplePreset();
    preset.userDefine = false;
    FormatDetailModel &presets = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    presets.addModeInfo(preset);

    QVERIFY(pick(preset.id));
    QCOMPARE(fieldsOf(presetAt(presets, 0)), fieldsOf(preset));
    preset.userDefine = true;
    QCOMPARE(fieldsOf(presetAt(recently(), 0)), fieldsOf(preset));
    QCOMPARE(recently().userDefineCount(), 1);
}

void TestFormatsProxyRecently::anEntryDoesNotFollowItsPreset()
{
    FormatDetailModel &presets = pickPresets(1);
    Preset changed = presetWithId(QStringLiteral("p0"));
    changed.title = QStringLiteral("new");
    presets.updateModeInfo(0, changed);
    QCOMPARE(presetAt(recently(), 0).title, QString());

    presets.clearModeInfo();
    QCOMPARE(idsOf(recently()), words("p0"));
}

// As entries are marked user-defined, one with a numeric id counts as a user's preset with that id.
void TestFormatsProxyRecently::anEntryRaisesTheHighestUserDefinedId()
{
    FormatDetailModel &presets = addFormat(QStringLiteral("MP4"), QStringLiteral("video"));
    presets.addModeInfo(presetWithId(QStringLiteral("2000")));
    QCOMPARE(FormatDetailModel::s_userDefineId, 1000);
    QVERIFY(pick(QStringLiteral("2000")));
    QCOMPARE(FormatDetailModel::s_userDefineId, 2000);
}

void TestFormatsProxyRecently::aMoveIsARemovalAndAnInsertionAtTheHead()
{
    pickPresets(4);
    QSignalSpy removed(&recently(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(&recently(), &QAbstractItemModel::rowsInserted);
    QSignalSpy counted(&recently(), &FormatDetailModel::countChanged);

    QVERIFY(pick(QStringLiteral("p1")));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.first().mid(1), (QVariantList{2, 2}));
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.first().mid(1), (QVariantList{0, 0}));
    QCOMPARE(counted.count(), 2);
    QCOMPARE(counted.at(0), QVariantList{3});
    QCOMPARE(counted.at(1), QVariantList{4});
}

void TestFormatsProxyRecently::anEntryIsRemovedById()
{
    FormatDetailModel &presets = pickPresets(3);
    QVERIFY(m_facade->delFromRecently(QStringLiteral("p1")));
    QCOMPARE(idsOf(recently()), words("p2 p0"));
    QVERIFY(presets.containId(QStringLiteral("p1")));
}

void TestFormatsProxyRecently::removingAnUnknownIdKeepsTheList()
{
    pickPresets(3);
    QVERIFY(!m_facade->delFromRecently(QStringLiteral("p5")));
    QVERIFY(!m_facade->delFromRecently(QString()));
    QCOMPARE(idsOf(recently()), words("p2 p1 p0"));
}

void TestFormatsProxyRecently::onlyTheFirstOfEqualEntriesIsRemoved()
{
    fillDirectly(words("a b a"));
    QVERIFY(m_facade->delFromRecently(QStringLiteral("a")));
    QCOMPARE(idsOf(recently()), words("b a"));
}

void TestFormatsProxyRecently::theListKnowsItsIds()
{
    pickPresets(1);
    QVERIFY(m_facade->isFormatInRecently(QStringLiteral("p0")));
    QVERIFY(!m_facade->isFormatInRecently(QStringLiteral("P0")));
    QVERIFY(!m_facade->isFormatInRecently(QStringLiteral("p1")));
    QVERIFY(m_facade->delFromRecently(QStringLiteral("p0")));
    QVERIFY(!m_facade->isFormatInRecently(QStringLiteral("p0")));
}

QTEST_GUILESS_MAIN(TestFormatsProxyRecently)
#include "tst_formatsproxy_recently.moc"
