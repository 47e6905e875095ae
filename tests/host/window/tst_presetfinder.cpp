#include "host/window/presetfinder.h"

#include "tests/host/window/pagetest.h"

#include <QAbstractItemModelTester>

/*! What is found for a page, over the built-in catalogue. */
class TestPresetFinder : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutASearchWhatTheUserHasAndUsesIsListed();
    void moreIsListedOnlyWhenItIsAskedFor();
    void filtersLeaveOutTheOthers_data();
    void filtersLeaveOutTheOthers();
    void aRowSaysWhyItWasFound();
    void nothingFoundIsExplained();
    void whatTheSelectedFileCannotBecomeHasAReasonAndANearestPreset();
    void aStarMovesNoRow();
    void aStarSetWhileTheIndexIsBuiltRanksThePreset();
    void aDeletedPresetIsNoLongerListed();

private:
    static QVariant at(const PresetFinder &finder, int row, const char *role);
    static QStringList all(const PresetFinder &finder, const char *role);
};

QVariant TestPresetFinder::at(const PresetFinder &finder, int row, const char *role)
{
    return finder.data(finder.index(row, 0), finder.roleNames().key(role));
}

QStringList TestPresetFinder::all(const PresetFinder &finder, const char *role)
{
    QStringList values;
    for (int row = 0; row < finder.rowCount(); ++row) {
        values << at(finder, row, role).toString();
    }
    return values;
}

void TestPresetFinder::withoutASearchWhatTheUserHasAndUsesIsListed()
{
    const FoundPreset base = *m_store->find(mp4);
    const QString own =
        m_store->own().add(base.className, base.map, QStringLiteral("Mine"), valuesOf(base.map));
    m_presets->setFavorite(flac, true);
    m_presets->noteUse(flac);
    m_presets->noteUse(aac);
    PresetFinder finder(*m_store, *m_presets);
    QAbstractItemModelTester tester(&finder, QAbstractItemModelTester::FailureReportingMode::Fatal);
    finder.open(m_converter.get());
    QCOMPARE(all(finder, "presetId"), (QStringList{flac, aac, own}));
    QCOMPARE(all(finder, "group"),
             (QStringList{QStringLiteral("Favorites"), QStringLiteral("Recently used"),
                          QStringLiteral("My presets")}));
    QCOMPARE(at(finder, 2, "isOwn"), QVariant(true));
    QCOMPARE(at(finder, 0, "isFavorite"), QVariant(true));
    m_store->own().remove(base.className, own);
    m_presets->setFavorite(flac, false);
}

void TestPresetFinder::moreIsListedOnlyWhenItIsAskedFor()
{
    PresetFinder finder(*m_store, *m_presets);
    finder.search({}, QStringLiteral("video"), {}, {});
    QCOMPARE(finder.rowCount(), PresetFinder::batch);
    QVERIFY(finder.count() > 2 * PresetFinder::batch);
    const QStringList first = all(finder, "presetId");
    while (finder.canFetchMore({})) {
        finder.fetchMore({});
    }
    QCOMPARE(finder.rowCount(), finder.count());
    QCOMPARE(all(finder, "presetId").mid(0, PresetFinder::batch), first);
    QStringList distinct = all(finder, "presetId");
    QCOMPARE(distinct.removeDuplicates(), 0);
}

void TestPresetFinder::filtersLeaveOutTheOthers_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *kind, const char *codec, const char *size,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(kind) << QString::fromLatin1(codec)
                            << QString::fromLatin1(size) << QString::fromLatin1(expected);
    };
    row("kind", "audio", "", "", "FLAC");
    row("tag of a format", "device", "", "", "Apple");
    row("codec", "", "HEVC", "", "HEVC MP4");
    row("size", "device", "", "4K", "Apple");
}

void TestPresetFinder::filtersLeaveOutTheOthers()
{
    QFETCH(QString, kind);
    QFETCH(QString, codec);
    QFETCH(QString, size);
    QFETCH(QString, expected);
    PresetFinder finder(*m_store, *m_presets);
    finder.search({}, {}, {}, QStringLiteral("1080"));
    const int ofAll = int(m_store->ids().size());
    finder.search({}, kind, codec, size);
    while (finder.canFetchMore({})) {
        finder.fetchMore({});
    }
    QVERIFY(all(finder, "format").contains(expected));
    QVERIFY(finder.count() < ofAll);
    for (int row = 0; row < finder.rowCount(); ++row) {
        const FoundPreset preset = *m_store->find(finder.idAt(row));
        const QString details = at(finder, row, "details").toString();
        QVERIFY2(kind != QLatin1String("device") || preset.tag == kind, qPrintable(details));
        QVERIFY2(kind != QLatin1String("audio") || !preset.map.contains(QStringLiteral("video")),
                 qPrintable(details));
        QVERIFY2(details.contains(codec.toLower()), qPrintable(details));
        QVERIFY2(size.isEmpty() || details.contains(QStringLiteral("2160")), qPrintable(details));
    }
}

void TestPresetFinder::aRowSaysWhyItWasFound()
{
    PresetFinder finder(*m_store, *m_presets);
    finder.search(QStringLiteral("hevc small"), {}, {}, {});
    QCOMPARE(at(finder, 0, "format").toString(), QStringLiteral("HEVC MP4"));
    // The format's title says the first word.
    QCOMPARE(at(finder, 0, "why").toString(), QStringLiteral("good for “small”"));
    QVERIFY(at(finder, 0, "details").toString().startsWith(QStringLiteral(".mp4  ·  hevc  ·  ")));
}

void TestPresetFinder::nothingFoundIsExplained()
{
    PresetFinder finder(*m_store, *m_presets);
    finder.search(QStringLiteral("iphone xyzzy"), {}, {}, {});
    QCOMPARE(finder.remark(), QStringLiteral("No preset is known for “xyzzy”."));
    finder.search(QStringLiteral("flac"), {}, QStringLiteral("HEVC"), {});
    QCOMPARE(finder.remark(),
             QStringLiteral("No preset has all of this; leave out a word or a filter."));
    finder.search(QStringLiteral("flac"), {}, {}, {});
    QCOMPARE(finder.remark(), QString());
}

void TestPresetFinder::whatTheSelectedFileCannotBecomeHasAReasonAndANearestPreset()
{
    const int id = addReady(*m_converter, song());
    PresetFinder finder(*m_store, *m_presets);
    finder.open(m_converter.get());
    QSignalSpy encoders(&finder, &PresetFinder::dataChanged);
    finder.search(QStringLiteral("mkv"), {}, {}, {});
    QTRY_VERIFY_WITH_TIMEOUT(!encoders.isEmpty(), patience);
    QCOMPARE(finder.problemWith(mkv), QString());
    QCOMPARE(finder.problemWith(mp3), QString());

    m_converter->selection()->set(id);
    finder.open(m_converter.get());
    QVERIFY(!finder.problemWith(mkv).isEmpty());
    QCOMPARE(finder.problemWith(mp3), QString());
    // Nothing for video suits a song: what was used last comes first.
    m_presets->noteUse(aac);
    QCOMPARE(finder.nearestTo(mkv), aac);
}

void TestPresetFinder::aStarMovesNoRow()
{
    PresetFinder finder(*m_store, *m_presets);
    finder.search(QStringLiteral("flac"), {}, {}, {});
    const QStringList before = all(finder, "presetId");
    QSignalSpy changed(&finder, &PresetFinder::dataChanged);
    const QString last = before.constLast();
    m_presets->setFavorite(last, true);
    QCOMPARE(all(finder, "presetId"), before);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(at(finder, before.size() - 1, "isFavorite"), QVariant(true));
    // The next search lists it first.
    finder.search(QStringLiteral("flac"), {}, {}, {});
    QCOMPARE(finder.idAt(0), last);
    m_presets->setFavorite(last, false);
}

void TestPresetFinder::aStarSetWhileTheIndexIsBuiltRanksThePreset()
{
    PresetFinder finder(*m_store, *m_presets, nullptr, 1);
    finder.search(QStringLiteral("flac"), {}, {}, {});
    QCOMPARE(finder.rowCount(), 0); // that takes several parts
    const QString last = QStringLiteral("Audio_FLAC_002");
    m_presets->setFavorite(last, true);
    QTRY_VERIFY(finder.rowCount() > 1);
    QCOMPARE(finder.idAt(0), last);
    m_presets->setFavorite(last, false);
}

void TestPresetFinder::aDeletedPresetIsNoLongerListed()
{
    const FoundPreset base = *m_store->find(mp4);
    const QString own = m_store->own().add(base.className, base.map, QStringLiteral("Xylophone"),
                                           valuesOf(base.map));
    PresetFinder finder(*m_store, *m_presets);
    QAbstractItemModelTester tester(&finder, QAbstractItemModelTester::FailureReportingMode::Fatal);
    finder.search(QStringLiteral("xylophone"), {}, {}, {});
    QCOMPARE(finder.rowOf(own), 0);
    m_store->own().remove(base.className, own);
    QTRY_COMPARE(finder.rowCount(), 0);
}

QTEST_MAIN(TestPresetFinder)
#include "tst_presetfinder.moc"
