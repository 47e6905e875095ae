#include "formats/proxy/formatsproxy.h"
#include "host/presets/presetstore.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! The store over the built-in catalogue and a folder of the test's own. */
class TestPresetStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("VEX_EXPORT_CATALOGUE", ""); }
    void init();

    void usedPresetsAreSaved();
    void aRemovedFolderIsRecreated();
    void aFailedSaveCanBeRetried();
    void theErrorSaysWhyCopyingFails();

private:
    QString config() const { return m_folder->filePath(QStringLiteral("config")); }
    QString recently() const { return config() + QStringLiteral("/recently.json"); }
    void use(const QString &id) const
    {
        const std::optional<FoundPreset> preset = m_store->find(id);
        QVERIFY(preset);
        m_store->formats().add2Recently(preset->tag, preset->className, id);
    }

    std::optional<QTemporaryDir> m_folder;
    std::optional<FormatsProxy> m_formats;
    std::optional<PresetStore> m_store;
};

void TestPresetStore::init()
{
    m_store.reset();
    m_formats.emplace();
    m_folder.emplace();
    m_store.emplace(*m_formats, config());
}

void TestPresetStore::usedPresetsAreSaved()
{
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    use(QStringLiteral("Video_MKV_001"));
    QVERIFY(!contentOf(recently()).contains("Video_MKV_001"));
    QVERIFY(m_store->save());
    QVERIFY(contentOf(recently()).contains("Video_MKV_001"));
}

void TestPresetStore::aRemovedFolderIsRecreated()
{
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    use(QStringLiteral("Video_MKV_001"));
    QVERIFY(QDir(config()).removeRecursively());
    QVERIFY(m_store->save());
    QVERIFY(contentOf(recently()).contains("Video_MKV_001"));
}

void TestPresetStore::aFailedSaveCanBeRetried()
{
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    use(QStringLiteral("Video_MKV_001"));
    QVERIFY(QDir().mkdir(recently()));
    const Result<> saved = m_store->save();
    QVERIFY(!saved);
    QCOMPARE(
        saved.error().text,
        QStringLiteral("%1 is no file; move it away").arg(QDir::toNativeSeparators(recently())));
    QVERIFY(QDir().rmdir(recently()));
    use(QStringLiteral("Audio_MP3_002"));
    QVERIFY(m_store->save());
    QVERIFY(contentOf(recently()).contains("Video_MKV_001"));
    QVERIFY(contentOf(recently()).contains("Audio_MP3_002"));
}

void TestPresetStore::theErrorSaysWhyCopyingFails()
{
    QVERIFY(m_store->lock(0));
    QVERIFY(QDir(config()).removeRecursively());
    const Result<> opened = m_store->open(PresetStore::ReadWrite);
    QVERIFY(!opened);
    QCOMPARE(opened.error().text,
             QStringLiteral("can't write into the configuration folder %1 (No such file or "
                            "directory); check its disk and its permissions")
                 .arg(QDir::toNativeSeparators(config())));
    QCOMPARE(m_store->save().error().text, opened.error().text);
}

QTEST_GUILESS_MAIN(TestPresetStore)
#include "tst_presetstore.moc"
