#include "host/presets/exchange/presetfile.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QJsonObject jsonOf(const PortablePresets &presets)
{
    QJsonArray list;
    for (const PortablePreset &preset : presets.presets) {
        QJsonObject values;
        for (auto value = preset.values.begin(); value != preset.values.end(); ++value) {
            values.insert(value.key(), *value);
        }
        QJsonObject findings;
        for (const Finding &finding : preset.findings) {
            const char *verdict = finding.verdict == Finding::Kept           ? "kept"
                                  : finding.verdict == Finding::Approximated ? "approximated"
                                                                             : "lost";
            findings.insert(finding.setting + QLatin1Char('=') + finding.value,
                            QLatin1String(verdict));
        }
        list.append(QJsonObject{{QStringLiteral("title"), preset.title},
                                {QStringLiteral("note"), preset.note},
                                {QStringLiteral("extension"), preset.extension},
                                {QStringLiteral("settings"), values},
                                {QStringLiteral("findings"), findings}});
    }
    QJsonArray refused;
    for (const RefusedPreset &each : presets.refused) {
        refused.append(each.title + QStringLiteral(": ") + each.reason);
    }
    return {{QStringLiteral("presets"), list}, {QStringLiteral("refused"), refused}};
}

QByteArray ownFile(const QByteArray &preset)
{
    return R"({"$schema": "presets.schema.json", "version": 1, "presets": [)" + preset + "]}";
}

} // namespace

/*! What is read from files of presets, our own and other programs'. */
class TestPresetFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherProgramsPresetsAreTranslated_data();
    void otherProgramsPresetsAreTranslated();
    void anExportedPresetReadsTheSame();
    void aWrongPresetIsRefusedAndTheOthersAreRead_data();
    void aWrongPresetIsRefusedAndTheOthersAreRead();
    void aFileOfAnotherKindFails_data();
    void aFileOfAnotherKindFails();
    void theSchemaDescribesAllSettings();
    void aHugeFileIsNotRead();
    void foldersThatNeverEndAreRefused();
    void optionsOfTheEncoderAreNeverPassedOn();
    void onlyAnIntervalOfKeyFramesThatCanBeHeldIsTaken_data();
    void onlyAnIntervalOfKeyFramesThatCanBeHeldIsTaken();
};

void TestPresetFile::otherProgramsPresetsAreTranslated_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");
    const QDir folder(QFINDTESTDATA("golden"));
    const QStringList inputs = folder.entryList({QStringLiteral("*.in.*")}, QDir::Files);
    QVERIFY(inputs.size() >= 9);
    for (const QString &input : inputs) {
        const QString name = input.section(QLatin1Char('.'), 0, 0);
        QTest::newRow(qPrintable(name))
            << folder.filePath(input) << folder.filePath(name + QStringLiteral(".out.json"));
    }
}

void TestPresetFile::otherProgramsPresetsAreTranslated()
{
    QFETCH(QString, input);
    QFETCH(QString, expected);
    const Result<PortablePresets> presets = readPresetFile(input);
    QVERIFY2(presets, qPrintable(presets ? QString() : presets.error().text));
    const QByteArray actual = QJsonDocument(jsonOf(*presets)).toJson();
    if (actual != contentOf(expected)) {
        const QString kept = QDir::current().filePath(QFileInfo(expected).fileName());
        QVERIFY(writeFile(kept, actual));
        QFAIL(qPrintable(QStringLiteral("%1 differs from %2").arg(kept, expected)));
    }
}

void TestPresetFile::anExportedPresetReadsTheSame()
{
    const PortablePreset preset = {QStringLiteral("Mine \"1\" ü"),
                                   QStringLiteral("two\nlines"),
                                   QStringLiteral("Video_MP4_005"),
                                   QStringLiteral("MP4"),
                                   QStringLiteral("mp4"),
                                   {{QStringLiteral("video-encoder"), QStringLiteral("h264")},
                                    {QStringLiteral("quality"), QStringLiteral("0.5")}}};
    const Result<PortablePresets> read =
        readPresets(presetFile({preset}), QStringLiteral("a file"));
    QVERIFY(read);
    QCOMPARE(read->presets.size(), 1);
    const PortablePreset &same = read->presets.constFirst();
    QCOMPARE(same.title, preset.title);
    QCOMPARE(same.note, preset.note);
    QCOMPARE(same.base, preset.base);
    QCOMPARE(same.format, preset.format);
    QCOMPARE(same.extension, preset.extension);
    QCOMPARE(same.values, preset.values);
}

void TestPresetFile::aWrongPresetIsRefusedAndTheOthersAreRead_data()
{
    QTest::addColumn<QByteArray>("preset");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *preset, const char *reason) {
        QTest::newRow(name) << QByteArray(preset) << QString::fromUtf8(reason);
    };
    row("no object", "5", "presets[0]: must be an object");
    row("an unknown key", R"({"title": "x", "path": "/etc"})", "x: \"path\" is not a known key");
    row("a number for a text", R"({"title": "x", "base": 5})", "x: \"base\" must be a text");
    row("an unknown setting", R"({"title": "x", "settings": {"vf": "movie=/etc/passwd"}})",
        "x: \"settings.vf\" is not a known key");
    row("a number for a value", R"({"title": "x", "settings": {"quality": 1}})",
        "x: \"settings.quality\" must be a text");
}

void TestPresetFile::aWrongPresetIsRefusedAndTheOthersAreRead()
{
    QFETCH(QByteArray, preset);
    QFETCH(QString, reason);
    const Result<PortablePresets> read =
        readPresets(ownFile(preset + R"(, {"title": "good"})"), QStringLiteral("a file"));
    QVERIFY(read);
    QCOMPARE(read->presets.size(), 1);
    QCOMPARE(read->refused.size(), 1);
    QCOMPARE(read->refused.constFirst().title + QStringLiteral(": ") +
                 read->refused.constFirst().reason,
             reason);
}

void TestPresetFile::aFileOfAnotherKindFails_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QByteArray("{\"presets\": [") << QStringLiteral("at byte");
    QTest::newRow("other JSON") << QByteArray("{\"a\": 1}") << QStringLiteral("no file of presets");
    QTest::newRow("another version")
        << QByteArray(R"({"version": 7, "presets": []})") << QStringLiteral("has the version 7");
    QTest::newRow("a text") << QByteArray("hello\n") << QStringLiteral("no file of presets");
    QTest::newRow("nothing") << QByteArray() << QStringLiteral("no file of presets");
}

void TestPresetFile::aFileOfAnotherKindFails()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const Result<PortablePresets> read = readPresets(content, QStringLiteral("a file"));
    QVERIFY(!read);
    QVERIFY2(read.error().text.contains(reason), qPrintable(read.error().text));
}

void TestPresetFile::theSchemaDescribesAllSettings()
{
    const QJsonValue schema =
        QJsonDocument::fromJson(contentOf(QStringLiteral(VEX_SCHEMA))).object();
    const QJsonObject described = schema[QStringLiteral("properties")][QStringLiteral("presets")]
                                        [QStringLiteral("items")][QStringLiteral("properties")]
                                        [QStringLiteral("settings")][QStringLiteral("properties")]
                                            .toObject();
    QStringList names = valueNames();
    names.sort();
    QCOMPARE(described.keys(), names);
}

void TestPresetFile::aHugeFileIsNotRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("huge.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(64LL * 1024 * 1024));
    const Result<PortablePresets> read = readPresetFile(path);
    QVERIFY(!read);
    QVERIFY2(read.error().text.contains(QStringLiteral("no more than")),
             qPrintable(read.error().text));
}

void TestPresetFile::foldersThatNeverEndAreRefused()
{
    QByteArray content = R"({"PresetList": [)";
    constexpr int depth = 40;
    for (int level = 0; level < depth; ++level) {
        content += R"({"Folder": true, "ChildrenArray": [)";
    }
    content += QByteArray("]}").repeated(depth) + "]}";
    const Result<PortablePresets> read = readPresets(content, QStringLiteral("a file"));
    QVERIFY(read);
    QCOMPARE(read->presets.size(), 0);
    QCOMPARE(read->refused.constFirst().reason, QStringLiteral("folders are nested too deeply"));
}

void TestPresetFile::optionsOfTheEncoderAreNeverPassedOn()
{
    const QByteArray content = R"({"PresetList": [{"PresetName": "x", "FileFormat": "av_mp4",
        "VideoEncoder": "x264 -f tee", "VideoPreset": "fast -i /etc/passwd", "VideoTune": "a:b",
        "VideoLevel": "4.0;rm", "VideoProfile": "../main", "VideoFramerate": "30",
        "VideoOptionExtra": "stats=/tmp/x:log-file=/tmp/y",
        "AudioList": [{"AudioEncoder": "aac\n-y"}]}]})";
    const Result<PortablePresets> read = readPresets(content, QStringLiteral("a file"));
    QVERIFY(read);
    const PresetValues values = read->presets.constFirst().values;
    QCOMPARE(values.value(QStringLiteral("video-encoder")), QStringLiteral("h264"));
    QCOMPARE(values.value(QStringLiteral("audio-encoder")), QStringLiteral("0"));
    for (const QString &value : values) {
        QVERIFY2(!value.contains(QLatin1Char('/')) && !value.contains(QLatin1Char(' ')),
                 qPrintable(value));
    }
}

void TestPresetFile::onlyAnIntervalOfKeyFramesThatCanBeHeldIsTaken_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("taken");
    for (const char *value : {"1", "30", "999"}) {
        QTest::newRow(value) << QString::fromLatin1(value) << QString::fromLatin1(value);
    }
    for (const char *value : {"0", "-1", "1000", "30.5", "infinite", ""}) {
        QTest::newRow(value) << QString::fromLatin1(value) << QString();
    }
}

void TestPresetFile::onlyAnIntervalOfKeyFramesThatCanBeHeldIsTaken()
{
    QFETCH(QString, given);
    QFETCH(QString, taken);
    const QByteArray content = R"({"PresetList": [{"PresetName": "x", "FileFormat": "av_mp4",
        "VideoEncoder": "x264", "VideoOptionExtra": "keyint=)" +
                               given.toUtf8() + R"("}]})";
    const Result<PortablePresets> read = readPresets(content, QStringLiteral("a file"));
    QVERIFY(read);
    const PortablePreset &preset = read->presets.constFirst();
    QCOMPARE(preset.values.value(QStringLiteral("key-frame-interval")), taken);
    const auto finding =
        std::find_if(preset.findings.begin(), preset.findings.end(), [](const Finding &each) {
            return each.setting == QLatin1String("VideoOptionExtra/keyint");
        });
    QVERIFY(finding != preset.findings.end());
    QCOMPARE(finding->verdict, taken.isEmpty() ? Finding::Lost : Finding::Kept);
}

QTEST_GUILESS_MAIN(TestPresetFile)
#include "tst_presetfile.moc"
