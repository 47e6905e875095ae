#include "host/window/presetexchange.h"

#include "tests/host/window/pagetest.h"

#include <QFile>

/*! Presets in files, as the window brings them in and writes them. */
class TestPresetExchange : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyFilesOfPresetsAreTakenOutOfADrop();
    void nothingIsImportedBeforeTheUserSaysSo();
    void whatIsAlreadyThereIsSaid();
    void aFileThatIsNoneOfPresetsIsRefusedWithItsReason();

private:
    /*! Exports a preset of the user's called "Mine", and deletes it. */
    QString exported();
    QStringList own() const { return m_store->own().all().keys(); }
    static QVariantMap firstOf(const QSignalSpy &previews)
    {
        return previews.constLast()
            .constFirst()
            .toMap()
            .value(QStringLiteral("presets"))
            .toList()
            .constFirst()
            .toMap();
    }
};

QString TestPresetExchange::exported()
{
    const FoundPreset base = *m_store->find(mp4);
    const QString id =
        m_store->own().add(base.className, base.map, QStringLiteral("Mine"), valuesOf(base.map));
    const QString path = m_files->filePath(QStringLiteral("mine.json"));
    PresetExchange exchange(*m_store, *m_presets);
    QSignalSpy told(&exchange, &PresetExchange::told);
    exchange.exportPresets({id}, path);
    m_store->own().remove(base.className, id);
    return told.size() == 1 ? path : QString();
}

void TestPresetExchange::onlyFilesOfPresetsAreTakenOutOfADrop()
{
    const QUrl film = QUrl::fromLocalFile(m_files->filePath(QStringLiteral("film.mkv")));
    const QUrl presets = QUrl::fromLocalFile(exported());
    PresetExchange exchange(*m_store, *m_presets);
    QSignalSpy previews(&exchange, &PresetExchange::previewed);
    QCOMPARE(exchange.takePresetFiles({film}), QList<QUrl>{film});
    QCOMPARE(previews.size(), 0);
    QCOMPARE(exchange.takePresetFiles({presets, film}), QList<QUrl>{film});
    QCOMPARE(previews.size(), 1);
}

void TestPresetExchange::nothingIsImportedBeforeTheUserSaysSo()
{
    const QString path = exported();
    PresetExchange exchange(*m_store, *m_presets);
    QSignalSpy previews(&exchange, &PresetExchange::previewed);
    QSignalSpy imported(&exchange, &PresetExchange::imported);
    exchange.preview({path});
    QCOMPARE(firstOf(previews).value(QStringLiteral("state")), QVariant(QStringLiteral("new")));
    QCOMPARE(own(), QStringList());
    exchange.importPresets(PresetExchange::KeepBoth);
    QCOMPARE(imported.size(), 1);
    QCOMPARE(own().size(), 1);
    QCOMPARE(m_store->own().all().first().title(), QStringLiteral("Mine"));
    // What was imported isn't imported again.
    exchange.importPresets(PresetExchange::KeepBoth);
    QCOMPARE(own().size(), 1);
    m_store->own().remove(QStringLiteral("MP4"), own().constFirst());
}

void TestPresetExchange::whatIsAlreadyThereIsSaid()
{
    const QString path = exported();
    PresetExchange exchange(*m_store, *m_presets);
    QSignalSpy previews(&exchange, &PresetExchange::previewed);
    exchange.preview({path});
    exchange.importPresets(PresetExchange::KeepBoth);
    exchange.preview({path});
    QCOMPARE(firstOf(previews).value(QStringLiteral("state")), QVariant(QStringLiteral("same")));
    QCOMPARE(previews.constLast().constFirst().toMap().value(QStringLiteral("importable")),
             QVariant(0));
    m_store->own().remove(QStringLiteral("MP4"), own().constFirst());
}

void TestPresetExchange::aFileThatIsNoneOfPresetsIsRefusedWithItsReason()
{
    const QString path = m_files->filePath(QStringLiteral("other.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{\"weather\": 3}") > 0);
    file.close();
    PresetExchange exchange(*m_store, *m_presets);
    QSignalSpy previews(&exchange, &PresetExchange::previewed);
    exchange.preview({path});
    const QVariantMap refused = firstOf(previews);
    QCOMPARE(refused.value(QStringLiteral("state")), QVariant(QStringLiteral("refused")));
    QCOMPARE(refused.value(QStringLiteral("title")), QVariant(QStringLiteral("other.json")));
    QVERIFY(!refused.value(QStringLiteral("reason")).toString().isEmpty());
}

QTEST_MAIN(TestPresetExchange)
#include "tst_presetexchange.moc"
