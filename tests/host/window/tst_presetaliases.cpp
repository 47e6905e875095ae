#include "host/window/presets.h"

#include "formats/proxy/formatsproxy.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

/*! Presets that an overlay has moved, in the window. The library asks for the catalogue once in a
 *  process, so these tests have their own. */
class TestPresetAliases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theOldIdFindsThePresetByItsNewOne();
    void whatIsNotedAsUsedIsTheNewId();

private:
    const QString m_oldId = QStringLiteral("Audio_MP3_002");
    const QString m_newId = QStringLiteral("Audio_MP3_003");
    QTemporaryDir m_folder;
    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<Presets> m_presets;
};

void TestPresetAliases::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("catalogues")));
    QVERIFY(writeFile(m_folder.filePath(QStringLiteral("catalogues/1.json")),
                      R"({ "hide": { "presets": ["Audio_MP3_002"] },
                           "aliases": { "Audio_MP3_002": "Audio_MP3_003" } })"));
    m_store = std::make_unique<PresetStore>(*FormatsProxy::getInstance(), m_folder.path());
    QVERIFY(m_store->open(PresetStore::ReadWrite));
    m_presets = std::make_unique<Presets>(*m_store);
}

void TestPresetAliases::theOldIdFindsThePresetByItsNewOne()
{
    QVERIFY(!m_store->ids().contains(m_oldId));
    QCOMPARE(m_presets->usable(m_oldId, {}), m_newId);
    QVERIFY(!m_presets->caption(m_newId).isEmpty());
    QCOMPARE(m_presets->caption(m_oldId), m_presets->caption(m_newId));
    QVERIFY(!m_presets->icon(m_newId).isEmpty());
    QCOMPARE(m_presets->icon(m_oldId), m_presets->icon(m_newId));
}

void TestPresetAliases::whatIsNotedAsUsedIsTheNewId()
{
    m_presets->noteUse(m_oldId);
    m_presets->flush();
    const QByteArray kept = contentOf(m_folder.filePath(QStringLiteral("recently.json")));
    QVERIFY(kept.contains("Audio_MP3_003"));
    QVERIFY(!kept.contains("Audio_MP3_002"));
}

QTEST_GUILESS_MAIN(TestPresetAliases)
#include "tst_presetaliases.moc"
