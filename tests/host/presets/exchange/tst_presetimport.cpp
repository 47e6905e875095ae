#include "formats/proxy/formatsproxy.h"
#include "host/presets/exchange/presetfile.h"
#include "host/presets/exchange/presetimport.h"
#include "host/presets/presetstore.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

/*! What becomes of the presets of a file, over the built-in catalogue. */
class TestPresetImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("VEX_EXPORT_CATALOGUE", ""); }
    void init();

    void anExportedPresetIsTheSameOnAnotherMachine();
    void aTitleInUseIsAConflict();
    void anEqualPresetIsTheSame();
    void oneRefusedPresetKeepsAllOut();
    void aPresetIsRefusedForAReason_data();
    void aPresetIsRefusedForAReason();
    void anUnknownBaseIsReplacedByOneOfItsFormat();
    void aConversionUsesWhatIsImported();
    void allPresetsOfHandBrakeAreImported();

private:
    QVector<PlannedImport> plan(const PortablePreset &preset)
    {
        return planImport(*m_store, {{preset}, {}});
    }
    QStringList imported(const PortablePreset &preset, OnConflict onConflict)
    {
        return importPresets(*m_store, plan(preset), onConflict).value_or(QStringList());
    }

    std::optional<QTemporaryDir> m_folder;
    std::optional<FormatsProxy> m_formats;
    std::optional<PresetStore> m_store;
    const PortablePreset m_preset = {QStringLiteral("Mine"),
                                     QStringLiteral("for the train"),
                                     QStringLiteral("Video_MP4_005"),
                                     QStringLiteral("MP4"),
                                     QStringLiteral("mp4"),
                                     {{QStringLiteral("video-encoder"), QStringLiteral("h264")},
                                      {QStringLiteral("frame-rate"), QStringLiteral("12.5")},
                                      {QStringLiteral("quality"), QStringLiteral("0.5")}}};
};

void TestPresetImport::init()
{
    m_store.reset();
    m_formats.emplace();
    m_folder.emplace();
    m_store.emplace(*m_formats, m_folder->filePath(QStringLiteral("config")));
    QVERIFY(m_store->open(PresetStore::ReadWrite));
}

void TestPresetImport::anExportedPresetIsTheSameOnAnotherMachine()
{
    const QString id = imported(m_preset, OnConflict::KeepBoth).value(0);
    const std::optional<FoundPreset> first = m_store->find(id);
    QVERIFY(first);
    const Result<PortablePreset> exported = portable(*m_store, id);
    QVERIFY(exported);
    const QByteArray file = presetFile({*exported});

    init();
    const Result<PortablePresets> read = readPresets(file, QStringLiteral("a file"));
    QVERIFY(read);
    const QString other = imported(read->presets.constFirst(), OnConflict::KeepBoth).value(0);
    const std::optional<FoundPreset> second = m_store->find(other);
    QVERIFY(second);
    QCOMPARE(valuesOf(second->map), valuesOf(first->map));
    QVERIFY(second->outputSettings() == first->outputSettings());
    QCOMPARE(second->map.value(QStringLiteral("title")), first->map.value(QStringLiteral("title")));
    QCOMPARE(m_store->notes().of(other).text, QStringLiteral("for the train"));
    QCOMPARE(m_store->notes().of(other).base, QStringLiteral("Video_MP4_005"));
}

void TestPresetImport::aTitleInUseIsAConflict()
{
    const QString first = imported(m_preset, OnConflict::KeepBoth).value(0);
    PortablePreset changed = m_preset;
    changed.values.insert(QStringLiteral("frame-rate"), QStringLiteral("25"));
    QCOMPARE(plan(changed).constFirst().state, PlannedImport::Conflict);
    QCOMPARE(plan(changed).constFirst().existing, first);

    QCOMPARE(imported(changed, OnConflict::Skip), QStringList());
    const QString second = imported(changed, OnConflict::KeepBoth).value(0);
    QCOMPARE(m_store->find(second)->map.value(QStringLiteral("title")).toString(),
             QStringLiteral("Mine (2)"));
    changed.values.insert(QStringLiteral("frame-rate"), QStringLiteral("30"));
    QCOMPARE(imported(changed, OnConflict::Replace), QStringList{first});
    QCOMPARE(valuesOf(m_store->find(first)->map).value(QStringLiteral("frame-rate")),
             QStringLiteral("30"));
}

void TestPresetImport::anEqualPresetIsTheSame()
{
    const QString id = imported(m_preset, OnConflict::KeepBoth).value(0);
    QCOMPARE(plan(m_preset).constFirst().state, PlannedImport::Same);
    QCOMPARE(plan(m_preset).constFirst().existing, id);
    QCOMPARE(imported(m_preset, OnConflict::KeepBoth), QStringList());
}

void TestPresetImport::oneRefusedPresetKeepsAllOut()
{
    PortablePreset wrong = m_preset;
    wrong.values.insert(QStringLiteral("frame-rate"), QStringLiteral("9999"));
    const QVector<PlannedImport> both = planImport(*m_store, {{wrong, m_preset}, {}});
    QCOMPARE(both.constLast().state, PlannedImport::Refused);
    const Result<QStringList> ids = importPresets(*m_store, both, OnConflict::KeepBoth);
    QVERIFY(!ids);
    QVERIFY(ids.error().text.contains(QStringLiteral("1 of 2 presets are refused")));
    QCOMPARE(m_store->own().all().size(), 0);
}

void TestPresetImport::aPresetIsRefusedForAReason_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *setting, const char *value, const char *reason) {
        QTest::addRow("%s %s", setting, value)
            << QString::fromUtf8(setting) << QString::fromUtf8(value) << QString::fromUtf8(reason);
    };
    row("frame-rate", "9999", "the preset's video.frameRate is 9999");
    row("resolution", "100000x5", "video.resolution");
    row("video-bitrate", "-5", "video.bitrate");
    row("video-encoder", "x -f tee", "no encoder has a name like");
    row("video-encoder", "theora", "theora can't be written into .mp4 files");
    row("audio-encoder", "wmav2", "wmav2 can't be written into .mp4 files");
    row("quality", "99", "isn't possible for quality");
    row("h264-speed", "fast:log-file=x", "isn't possible for h264-speed");
    row("h264-level", "9", "isn't possible for h264-level");
}

void TestPresetImport::aPresetIsRefusedForAReason()
{
    QFETCH(QString, setting);
    QFETCH(QString, value);
    QFETCH(QString, reason);
    PortablePreset preset = m_preset;
    preset.values.insert(setting, value);
    const PlannedImport planned = plan(preset).constFirst();
    QCOMPARE(planned.state, PlannedImport::Refused);
    QVERIFY2(planned.reason.contains(reason), qPrintable(planned.reason));
}

void TestPresetImport::anUnknownBaseIsReplacedByOneOfItsFormat()
{
    PortablePreset preset = m_preset;
    preset.base = QStringLiteral("Video_MP4_999");
    const PlannedImport planned = plan(preset).constFirst();
    QCOMPARE(planned.state, PlannedImport::New);
    QCOMPARE(planned.className, QStringLiteral("MP4"));
    QVERIFY2(planned.reason.contains(QStringLiteral("Video_MP4_999 isn't in this catalogue")),
             qPrintable(planned.reason));
}

void TestPresetImport::aConversionUsesWhatIsImported()
{
    PortablePreset preset = m_preset;
    preset.values = {{QStringLiteral("video-encoder"), QStringLiteral("h264")},
                     {QStringLiteral("video-bitrate"), QStringLiteral("900")},
                     {QStringLiteral("rate-mode"), QStringLiteral("average")},
                     {QStringLiteral("quality"), QStringLiteral("-0.5")},
                     {QStringLiteral("h264-level"), QStringLiteral("4.1")},
                     {QStringLiteral("h264-speed"), QStringLiteral("slow")},
                     {QStringLiteral("h264-tune"), QStringLiteral("film")}};
    const QString id = imported(preset, OnConflict::KeepBoth).value(0);
    const OutputSettings settings = m_store->find(id)->outputSettings();
    QCOMPARE(settings.videoKbps, 900.0);
    QVERIFY(settings.averagesBitrate);
    QVERIFY(settings.mustEncode);
    QCOMPARE(settings.quality, -0.5);
    QCOMPARE(settings.level, QStringLiteral("4.1"));
    QCOMPARE(settings.speed, QStringLiteral("slow"));
    QCOMPARE(settings.tune, QStringLiteral("film"));
}

void TestPresetImport::allPresetsOfHandBrakeAreImported()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("HandBrakeCLI"));
    if (program.isEmpty()) {
        QSKIP("HandBrakeCLI is not installed");
    }
    const auto outputOf = [&program](const QStringList &arguments) {
        QProcess process;
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(program, arguments);
        process.waitForFinished();
        return qMakePair(process.readAllStandardOutput(), process.readAllStandardError());
    };
    QStringList names;
    const QString list = QString::fromUtf8(outputOf({QStringLiteral("--preset-list")}).second);
    for (const QString &line : list.split(QLatin1Char('\n'))) {
        const QString indent = QStringLiteral("    ");
        if (line.startsWith(indent) && !line.startsWith(indent + QLatin1Char(' '))) {
            names << line.trimmed();
        }
    }
    QVERIFY(names.size() >= 90);
    PortablePresets all;
    for (const QString &name : qAsConst(names)) {
        const QByteArray file =
            outputOf({QStringLiteral("-Z"), name, QStringLiteral("--preset-export"), name}).first;
        const Result<PortablePresets> read = readPresets(file, name);
        QVERIFY2(read, qPrintable(name));
        QCOMPARE(read->presets.size(), 1);
        QVERIFY(!read->presets.constFirst().findings.isEmpty());
        for (const Finding &finding : read->presets.constFirst().findings) {
            QVERIFY2(finding.text != QLatin1String("isn't known"), qPrintable(finding.setting));
        }
        all.presets += read->presets;
    }
    const QVector<PlannedImport> planned = planImport(*m_store, all);
    const Result<QStringList> ids = importPresets(*m_store, planned, OnConflict::KeepBoth);
    QVERIFY2(ids, qPrintable(ids ? QString() : ids.error().text + planned.constLast().reason));
    QCOMPARE(ids->size(), names.size());
}

QTEST_GUILESS_MAIN(TestPresetImport)
#include "tst_presetimport.moc"
