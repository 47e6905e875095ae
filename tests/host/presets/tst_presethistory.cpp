#include "formats/proxy/formatsproxy.h"
#include "host/presets/presetstore.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! Undoing what was done to the user's presets, over the built-in catalogue. */
class TestPresetHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("VEX_EXPORT_CATALOGUE", ""); }
    void init();

    void aDeletedPresetComesBackWholeAfterARestart();
    void aChangeIsUndone();
    void anAddedPresetIsRemoved();
    void stepsAreUndoneInTurn();
    void onlyTheLastStepsAreKept();
    void aStepThatWasNeverSavedIsDropped();
    void whatAnotherProgramChangedIsNotUndone();
    void aDamagedHistoryIsReportedAndKept();
    void presetsOfTheWindowHaveABase();
    void aRemovedFolderIsMadeAgain();

private:
    QString file(const char *name) const
    {
        return m_folder->filePath(QStringLiteral("config/") + QLatin1String(name));
    }
    void restart()
    {
        m_store.reset();
        m_formats.emplace();
        m_store.emplace(*m_formats, m_folder->filePath(QStringLiteral("config")),
                        [this](const QString &line) { m_reports << line; });
        QVERIFY(m_store->open(PresetStore::ReadWrite));
    }
    QString add(const QString &title)
    {
        const std::optional<FoundPreset> base = m_store->find(QStringLiteral("Video_MP4_005"));
        PresetValues values = valuesOf(base->map);
        values.insert(QStringLiteral("quality"), QStringLiteral("0.5"));
        const QString id = m_store->own().add(base->className, base->map, title, values);
        return m_store->save() ? id : QString();
    }
    QString titleOf(const QString &id) const
    {
        const std::optional<FoundPreset> preset = m_store->find(id);
        return preset ? preset->map.value(QStringLiteral("title")).toString() : QString();
    }
    bool undo()
    {
        const Result<PresetHistory::Step> step = m_store->undo();
        m_error = step ? QString() : step.error().text;
        return step && m_store->save();
    }

    const QString m_format = QStringLiteral("MP4");
    std::optional<QTemporaryDir> m_folder;
    std::optional<FormatsProxy> m_formats;
    std::optional<PresetStore> m_store;
    QStringList m_reports;
    QString m_error;
};

void TestPresetHistory::init()
{
    FormatDetailModel::s_userDefineId = 1000;
    m_folder.emplace();
    m_reports.clear();
    restart();
}

void TestPresetHistory::aDeletedPresetComesBackWholeAfterARestart()
{
    const QString first = add(QStringLiteral("First"));
    const QString second = add(QStringLiteral("Second"));
    PresetNote note = m_store->notes().of(first);
    note.text = QStringLiteral("for the train");
    m_store->notes().set(first, note);
    QVERIFY(m_store->save());
    const OwnPreset before = m_store->own().all().value(first);
    m_store->own().remove(m_format, first);
    QVERIFY(m_store->save());
    restart();
    QCOMPARE(m_store->own().idsOf(m_format), QStringList{second});

    QVERIFY(undo());
    QCOMPARE(m_store->own().idsOf(m_format), (QStringList{first, second}));
    restart();
    QVERIFY(m_store->own().all().value(first).isSameAs(before));
    QCOMPARE(m_store->notes().of(first).text, QStringLiteral("for the train"));
    QCOMPARE(m_store->own().idsOf(m_format), (QStringList{first, second}));
}

void TestPresetHistory::aChangeIsUndone()
{
    const QString id = add(QStringLiteral("First"));
    PresetValues values = valuesOf(m_store->find(id)->map);
    values.insert(QStringLiteral("frame-rate"), QStringLiteral("25"));
    m_store->own().change(m_format, id, QStringLiteral("Changed"), values);
    QVERIFY(m_store->save());
    restart();
    QVERIFY(undo());
    QCOMPARE(titleOf(id), QStringLiteral("First"));
    QCOMPARE(valuesOf(m_store->find(id)->map).value(QStringLiteral("frame-rate")),
             QStringLiteral("0"));
}

void TestPresetHistory::anAddedPresetIsRemoved()
{
    const QString id = add(QStringLiteral("First"));
    QVERIFY(undo());
    QVERIFY(!m_store->find(id));
    QVERIFY(!undo());
    QCOMPARE(m_error, QStringLiteral("there is nothing to undo"));
}

void TestPresetHistory::stepsAreUndoneInTurn()
{
    const QString id = add(QStringLiteral("One"));
    for (const char *title : {"Two", "Three"}) {
        m_store->own().change(m_format, id, QLatin1String(title), valuesOf(m_store->find(id)->map));
        QVERIFY(m_store->save());
    }
    QVERIFY(undo());
    QCOMPARE(titleOf(id), QStringLiteral("Two"));
    restart();
    QVERIFY(undo());
    QCOMPARE(titleOf(id), QStringLiteral("One"));
}

void TestPresetHistory::onlyTheLastStepsAreKept()
{
    const QString id = add(QStringLiteral("0"));
    for (int number = 1; number <= PresetHistory::mostSteps + 5; ++number) {
        m_store->own().change(m_format, id, QString::number(number),
                              valuesOf(m_store->find(id)->map));
        QVERIFY(m_store->save());
    }
    restart();
    QCOMPARE(m_store->history().steps().size(), PresetHistory::mostSteps);
    while (undo()) {
    }
    QCOMPARE(titleOf(id), QStringLiteral("5"));
}

void TestPresetHistory::aStepThatWasNeverSavedIsDropped()
{
    const QString id = add(QStringLiteral("First"));
    const QByteArray saved = contentOf(file("formatCache.json"));
    m_store->own().remove(m_format, id);
    QVERIFY(m_store->save());
    // The history was written, and then the disk was full.
    QVERIFY(writeFile(file("formatCache.json"), saved));
    restart();
    QVERIFY(undo());
    QVERIFY(!m_store->find(id));
}

void TestPresetHistory::whatAnotherProgramChangedIsNotUndone()
{
    const QString id = add(QStringLiteral("First"));
    m_store->own().change(m_format, id, QStringLiteral("Second"), valuesOf(m_store->find(id)->map));
    QVERIFY(m_store->save());
    const QByteArray saved = contentOf(file("formatCache.json"));
    QVERIFY(writeFile(file("formatCache.json"), QByteArray(saved).replace("Second", "Theirs")));
    restart();
    QVERIFY(!undo());
    QVERIFY2(m_error.contains(QStringLiteral("another program has changed these presets")),
             qPrintable(m_error));
    QCOMPARE(titleOf(id), QStringLiteral("Theirs"));
}

void TestPresetHistory::aDamagedHistoryIsReportedAndKept()
{
    QVERIFY(writeFile(file("presethistory.json"), "{\"version\": 1, \"entries\": ["));
    restart();
    QCOMPARE(m_reports.size(), 1);
    QVERIFY2(m_reports.constFirst().contains(QStringLiteral("presethistory.json isn't used")),
             qPrintable(m_reports.constFirst()));
    QVERIFY(!add(QStringLiteral("First")).isEmpty());
    QCOMPARE(contentOf(file("presethistory.json.damaged")),
             QByteArray("{\"version\": 1, \"entries\": ["));
    restart();
    QCOMPARE(m_reports.size(), 1);
    QCOMPARE(m_store->history().steps().size(), 1);
}

void TestPresetHistory::presetsOfTheWindowHaveABase()
{
    // The window knows only the library's operations.
    const std::optional<FoundPreset> base = m_store->find(QStringLiteral("Video_MP4_005"));
    const QString id = m_store->formats().addUserDefineFormat(
        base->tag, base->className, QStringLiteral("Video_MP4_005"),
        {{QStringLiteral("title"), QStringLiteral("Mine")},
         {QStringLiteral("videoEncoder"), QStringLiteral("h264")}});
    QVERIFY(m_store->save());
    restart();
    QCOMPARE(m_store->notes().of(id).base, QStringLiteral("Video_MP4_005"));
    QCOMPARE(m_store->history().steps().size(), 1);
    QVERIFY(undo());
    QVERIFY(!m_store->find(id));
}

void TestPresetHistory::aRemovedFolderIsMadeAgain()
{
    QVERIFY(QDir(m_folder->filePath(QStringLiteral("config"))).removeRecursively());
    const QString id = add(QStringLiteral("First"));
    QVERIFY(!id.isEmpty());
    restart();
    QCOMPARE(titleOf(id), QStringLiteral("First"));
    QVERIFY(undo());
}

QTEST_GUILESS_MAIN(TestPresetHistory)
#include "tst_presethistory.moc"
