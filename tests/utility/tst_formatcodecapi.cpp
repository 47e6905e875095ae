#include <formatcodecapi.h>

#include <QtTest>

#include <cstdio>

#include <sys/stat.h>

namespace {

using Files = QMap<QString, QByteArray>;

const QString variable = QStringLiteral("VEX_EXPORT_CATALOGUE");
const QString serve = QStringLiteral("--serve");

// One line per group: category, name and the ids of its presets.
QByteArray servedCatalogue()
{
    FormatCodecApi *const api = FormatCodecApi::getInstance();
    QString text;
    for (const QVariant &category : api->getExportCategoryLists()) {
        for (const QVariant &group : api->getExportGroupLists(category.toString())) {
            const QVariantMap map = group.toMap();
            text += map.value(QStringLiteral("category")).toString() + QLatin1Char(' ') +
                    map.value(QStringLiteral("name")).toString();
            for (const QVariant &preset : api->getExportGroupContents(map)) {
                text += QLatin1Char(' ') + preset.toMap().value(QStringLiteral("id")).toString();
            }
            text += QLatin1Char('\n');
        }
    }
    return text.toUtf8();
}

struct Served
{
    QByteArray catalogue;
    QByteArray standardError;
};

// What a new process with the variable set serves; this process has its instance already.
Served servedWith(const QString &value, const QString &workingDirectory = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(variable, value);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(workingDirectory);
    process.start(QCoreApplication::applicationFilePath(), {serve});
    process.waitForFinished();
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return {"the process failed", process.readAllStandardError()};
    }
    return {process.readAllStandardOutput(), process.readAllStandardError()};
}

void write(const QDir &folder, const Files &files)
{
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        QFile file(folder.filePath(it.key()));
        QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(*it) == it->size(),
                 qPrintable(file.errorString()));
    }
}

QByteArray catalogue(const QByteArray &category, const QByteArray &name, const QByteArray &id)
{
    return R"({ "category": ")" + category + R"(", "groups": [{ "name": ")" + name + R"(",
        "extension": "x",
        "audioOptions": { "encoderList": ["aac"], "channelList": [2], "sampleRateList": [0],
                          "bitrateKbpsList": [0] },
        "audioParam": { "encoder": "aac", "channel": 2, "sampleRate": 0, "bitrateKbps": 0 },
        "presets": [{ "id": ")" +
           id + R"(", "title": "T" }] }] })";
}

QVariantMap groupOf(const QString &category, const QString &name)
{
    for (const QVariant &group : FormatCodecApi::getInstance()->getExportGroupLists(category)) {
        if (group.toMap().value(QStringLiteral("name")) == name) {
            return group.toMap();
        }
    }
    return {};
}

} // namespace

class TestFormatCodecApi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereIsOneInstance();
    void builtInCategoriesComeInTheOrderOfTheScreens();
    void unknownCategoriesHaveNoGroups_data();
    void unknownCategoriesHaveNoGroups();
    void deliveredGroupsHavePresets();
    void groupsAreFoundByCategoryAndName();
    void unknownGroupsHaveNoPresets_data();
    void unknownGroupsHaveNoPresets();
    void everyCallDeliversTheSameData();
    void theDefaultPresetKeepsTheSource();
    void theVariableIsReadOnlyOnce();
    void anEmptyVariableMeansTheBuiltInCatalogue();
    void aFileIsServedInsteadOfTheBuiltInCatalogue();
    void aRelativePathStartsAtTheWorkingDirectory();
    void aFolderIsServedInTheOrderOfItsFileNames();
    void aCategoryCanSpanSeveralFiles();
    void theFilesOfTheBuiltInCatalogueServeItToo();
    void whatCannotBeServedIsReportedInOneLine_data();
    void whatCannotBeServedIsReportedInOneLine();
    void validPresetsAreServedDespiteMistakes_data();
    void validPresetsAreServedDespiteMistakes();
    void pathsThatAreNotFilesAreReported_data();
    void pathsThatAreNotFilesAreReported();
    void whatMayNotBeReadIsReported_data();
    void whatMayNotBeReadIsReported();
};

void TestFormatCodecApi::thereIsOneInstance()
{
    QVERIFY(FormatCodecApi::getInstance());
    QCOMPARE(FormatCodecApi::getInstance(), FormatCodecApi::getInstance());
}

void TestFormatCodecApi::builtInCategoriesComeInTheOrderOfTheScreens()
{
    QCOMPARE(FormatCodecApi::getInstance()->getExportCategoryLists(),
             QVariantList({QStringLiteral("Video"), QStringLiteral("Audio"),
                           QStringLiteral("Device"), QStringLiteral("SocialVideo")}));
}

void TestFormatCodecApi::unknownCategoriesHaveNoGroups_data()
{
    QTest::addColumn<QString>("category");
    QTest::newRow("empty") << QString();
    QTest::newRow("unknown") << QStringLiteral("Images");
    QTest::newRow("other case") << QStringLiteral("video");
    QTest::newRow("name of a group") << QStringLiteral("MP4");
}

void TestFormatCodecApi::unknownCategoriesHaveNoGroups()
{
    QFETCH(QString, category);
    QCOMPARE(FormatCodecApi::getInstance()->getExportGroupLists(category), QVariantList());
}

void TestFormatCodecApi::deliveredGroupsHavePresets()
{
    FormatCodecApi *const api = FormatCodecApi::getInstance();
    for (const QVariant &category : api->getExportCategoryLists()) {
        const QVariantList groups = api->getExportGroupLists(category.toString());
        QVERIFY(!groups.isEmpty());
        for (const QVariant &group : groups) {
            QCOMPARE(group.toMap().value(QStringLiteral("category")), category);
            QVERIFY(!api->getExportGroupContents(group.toMap()).isEmpty());
        }
    }
}

void TestFormatCodecApi::groupsAreFoundByCategoryAndName()
{
    QVariantMap group = groupOf(QStringLiteral("Video"), QStringLiteral("MP4"));
    const QVariantList presets = FormatCodecApi::getInstance()->getExportGroupContents(group);
    QVERIFY(!presets.isEmpty());
    group.remove(QStringLiteral("icon"));
    group.insert(QStringLiteral("added by a lookup"), QVariant());
    QCOMPARE(FormatCodecApi::getInstance()->getExportGroupContents(group), presets);
}

void TestFormatCodecApi::unknownGroupsHaveNoPresets_data()
{
    const QString category = QStringLiteral("category");
    const QString name = QStringLiteral("name");
    QTest::addColumn<QVariantMap>("group");
    QTest::newRow("empty map") << QVariantMap();
    QTest::newRow("name without category") << QVariantMap{{name, QStringLiteral("MP4")}};
    QTest::newRow("category without name") << QVariantMap{{category, QStringLiteral("Video")}};
    QTest::newRow("name of another category")
        << QVariantMap{{category, QStringLiteral("Audio")}, {name, QStringLiteral("MP4")}};
    QTest::newRow("other case") << QVariantMap{{category, QStringLiteral("Video")},
                                               {name, QStringLiteral("mp4")}};
    QTest::newRow("values that are not strings")
        << QVariantMap{{category, QVariantList()}, {name, QVariantMap()}};
}

void TestFormatCodecApi::unknownGroupsHaveNoPresets()
{
    QFETCH(QVariantMap, group);
    QCOMPARE(FormatCodecApi::getInstance()->getExportGroupContents(group), QVariantList());
}

void TestFormatCodecApi::everyCallDeliversTheSameData()
{
    FormatCodecApi *const api = FormatCodecApi::getInstance();
    const QVariantMap group = groupOf(QStringLiteral("Video"), QStringLiteral("MP4"));
    QVERIFY(api->getExportCategoryLists().isSharedWith(api->getExportCategoryLists()));
    QVERIFY(api->getExportGroupLists(QStringLiteral("Video"))
                .isSharedWith(api->getExportGroupLists(QStringLiteral("Video"))));
    QVERIFY(api->getExportGroupContents(group).isSharedWith(api->getExportGroupContents(group)));
}

void TestFormatCodecApi::theDefaultPresetKeepsTheSource()
{
    const QVariantMap preset =
        FormatCodecApi::getInstance()
            ->getExportGroupContents(groupOf(QStringLiteral("Video"), QStringLiteral("MP4")))
            .value(0)
            .toMap();
    QCOMPARE(preset.value(QStringLiteral("id")), QVariant(QStringLiteral("Video_MP4_001")));
    QCOMPARE(preset.value(QStringLiteral("title")), QVariant(QStringLiteral("Same as source")));
    QCOMPARE(preset.value(QStringLiteral("extension")), QVariant(QStringLiteral("mp4")));
    QCOMPARE(preset.value(QStringLiteral("videoParam")).toMap(),
             (QVariantMap{{QStringLiteral("encoder"), QStringLiteral("0")},
                          {QStringLiteral("resolution"), QStringLiteral("0")},
                          {QStringLiteral("frameRate"), 0},
                          {QStringLiteral("bitrateKbps"), 0}}));
    QCOMPARE(preset.value(QStringLiteral("audioParam")).toMap(),
             (QVariantMap{{QStringLiteral("encoder"), QStringLiteral("0")},
                          {QStringLiteral("channel"), 0},
                          {QStringLiteral("sampleRate"), 0},
                          {QStringLiteral("bitrateKbps"), 0}}));
}

void TestFormatCodecApi::theVariableIsReadOnlyOnce()
{
    const QByteArray before = servedCatalogue();
    qputenv(qPrintable(variable), "/nowhere");
    const QByteArray after = servedCatalogue();
    qunsetenv(qPrintable(variable));
    QCOMPARE(after, before);
}

void TestFormatCodecApi::anEmptyVariableMeansTheBuiltInCatalogue()
{
    const Served served = servedWith(QString());
    QCOMPARE(served.standardError, QByteArray());
    QCOMPARE(served.catalogue, servedCatalogue());
}

void TestFormatCodecApi::aFileIsServedInsteadOfTheBuiltInCatalogue()
{
    const QTemporaryDir folder;
    write(folder.path(), {{QStringLiteral("größe.cat"), catalogue("Mine", "ÄÖ", "1")}});
    const Served served = servedWith(folder.filePath(QStringLiteral("größe.cat")));
    QCOMPARE(served.standardError, QByteArray());
    QCOMPARE(served.catalogue, QByteArray("Mine ÄÖ 1\n"));
}

void TestFormatCodecApi::aRelativePathStartsAtTheWorkingDirectory()
{
    const QTemporaryDir folder;
    write(folder.path(), {{QStringLiteral("own.json"), catalogue("Mine", "A", "1")}});
    QCOMPARE(servedWith(QStringLiteral("own.json"), folder.path()).catalogue,
             QByteArray("Mine A 1\n"));
    QCOMPARE(servedWith(QStringLiteral("."), folder.path()).catalogue, QByteArray("Mine A 1\n"));
}

void TestFormatCodecApi::aFolderIsServedInTheOrderOfItsFileNames()
{
    const QTemporaryDir folder;
    write(folder.path(), {{QStringLiteral("b.json"), catalogue("B", "G", "2")},
                          {QStringLiteral("a.json"), catalogue("C", "G", "1")},
                          {QStringLiteral("c.json"), catalogue("A", "G", "3")},
                          {QStringLiteral("d.schema.json"), "a schema"},
                          {QStringLiteral("notes.txt"), "no catalogue"}});
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.json")));
    const Served served = servedWith(folder.path());
    QCOMPARE(served.standardError, QByteArray());
    QCOMPARE(served.catalogue, QByteArray("C G 1\nB G 2\nA G 3\n"));
}

void TestFormatCodecApi::aCategoryCanSpanSeveralFiles()
{
    const QTemporaryDir folder;
    write(folder.path(), {{QStringLiteral("1.json"), catalogue("Video", "MP4", "1")},
                          {QStringLiteral("2.json"), catalogue("Audio", "MP3", "2")},
                          {QStringLiteral("3.json"), catalogue("Video", "MKV", "3")}});
    QCOMPARE(servedWith(folder.path()).catalogue,
             QByteArray("Video MP4 1\nVideo MKV 3\nAudio MP3 2\n"));
}

// So a copy of the folder can be the start of a custom catalogue.
void TestFormatCodecApi::theFilesOfTheBuiltInCatalogueServeItToo()
{
    const Served served = servedWith(QStringLiteral(VEX_CATALOGUE_FOLDER));
    QCOMPARE(served.standardError, QByteArray());
    QCOMPARE(served.catalogue, servedCatalogue());
}

void TestFormatCodecApi::whatCannotBeServedIsReportedInOneLine_data()
{
    // "@" stands for the temporary folder.
    QTest::addColumn<Files>("files");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");

    const QString own = QStringLiteral("own.json");
    QTest::newRow("missing path") << Files() << QStringLiteral("@/gone")
                                  << QStringLiteral(
                                         "@/gone: cannot be read: No such file or directory");
    QTest::newRow("path through a file")
        << Files{{own, "{}"}} << QStringLiteral("@/own.json/deeper")
        << QStringLiteral("@/own.json/deeper: cannot be read: Not a directory");
    QTest::newRow("reading fails")
        << Files() << QStringLiteral("/proc/self/mem")
        << QStringLiteral("/proc/self/mem: cannot be read: Input/output error");
    QTest::newRow("empty folder") << Files() << QStringLiteral("@")
                                  << QStringLiteral("@: the folder has no *.json file");
    QTest::newRow("folder without JSON")
        << Files{{QStringLiteral("notes.txt"), "{}"}} << QStringLiteral("@")
        << QStringLiteral("@: the folder has no *.json file");
    QTest::newRow("empty file") << Files{{own, ""}} << QStringLiteral("@/own.json")
                                << QStringLiteral("@/own.json:1:1: the file is empty");
    QTest::newRow("not JSON") << Files{{own, "MP4"}} << QStringLiteral("@/own.json")
                              << QStringLiteral("@/own.json:1:1: illegal value");
    QTest::newRow("wrong shape")
        << Files{{own, R"({ "category": "Video", "groups": [{}] })"}}
        << QStringLiteral("@/own.json")
        << QStringLiteral(
               "@/own.json: groups[0].name: must be a string but is missing (and 1 more)");
    QTest::newRow("no group") << Files{{own, R"({ "category": "Video", "groups": [] })"}}
                              << QStringLiteral("@/own.json")
                              << QStringLiteral("@/own.json: has no presets");
    QTest::newRow("all files of a folder")
        << Files{{QStringLiteral("1.json"), "{}"}, {QStringLiteral("2.json"), "[]"}}
        << QStringLiteral("@")
        << QStringLiteral("@/1.json: category: must be a string but is missing (and 2 more)");
    QTest::newRow("line break in the path")
        << Files() << QStringLiteral("@/a\nb")
        << QStringLiteral("@/a b: cannot be read: No such file or directory");
    QTest::newRow("letters beyond ASCII in the path")
        << Files() << QStringLiteral("@/größe")
        << QStringLiteral("@/größe: cannot be read: No such file or directory");
    QTest::newRow("percent sign in the path")
        << Files() << QStringLiteral("@/%1%2")
        << QStringLiteral("@/%1%2: cannot be read: No such file or directory");
}

void TestFormatCodecApi::whatCannotBeServedIsReportedInOneLine()
{
    QFETCH(Files, files);
    QFETCH(QString, path);
    QFETCH(QString, error);

    const QTemporaryDir folder;
    write(folder.path(), files);
    path.replace(QLatin1Char('@'), folder.path());
    error.replace(QLatin1Char('@'), folder.path());

    const Served served = servedWith(path);
    QCOMPARE(QString::fromUtf8(served.standardError),
             QStringLiteral("VEX_EXPORT_CATALOGUE: ") + error +
                 QStringLiteral("; the built-in catalogue is used\n"));
    QCOMPARE(served.catalogue, servedCatalogue());
}

void TestFormatCodecApi::validPresetsAreServedDespiteMistakes_data()
{
    QTest::addColumn<Files>("files");
    QTest::addColumn<QString>("report");

    const QString one = QStringLiteral("1.json");
    const QString two = QStringLiteral("2.json");
    const QByteArray right = catalogue("Video", "MP4", "1");
    QTest::newRow("a file that is not JSON")
        << Files{{one, "MP4"}, {two, right}}
        << QStringLiteral("@/1.json:1:1: illegal value; the rest is used\n");
    QTest::newRow("mistakes of several files")
        << Files{{one, right}, {two, "[]"}, {QStringLiteral("3.json"), ""}}
        << QStringLiteral("@/2.json: the file must hold an object but holds a list (and 1 more); "
                          "the rest is used\n");
    QTest::newRow("an id twice")
        << Files{{one, right}, {two, catalogue("Video", "MKV", "1")}}
        << QStringLiteral("@/2.json: groups[0].presets[0].id: \"1\" is already the id of another "
                          "preset; the rest is used\n");
    QTest::newRow("unknown keys are served")
        << Files{{one, QByteArray(right).replace(R"("title")", R"("note": "n", "title")")}}
        << QString();
}

void TestFormatCodecApi::validPresetsAreServedDespiteMistakes()
{
    QFETCH(Files, files);
    QFETCH(QString, report);

    const QTemporaryDir folder;
    write(folder.path(), files);
    report.replace(QLatin1Char('@'), folder.path());
    const Served served = servedWith(folder.path());
    QCOMPARE(served.catalogue, QByteArray("Video MP4 1\n"));
    QCOMPARE(QString::fromUtf8(served.standardError),
             report.isEmpty() ? report : QStringLiteral("VEX_EXPORT_CATALOGUE: ") + report);
}

void TestFormatCodecApi::pathsThatAreNotFilesAreReported_data()
{
    QTest::addColumn<bool>("isPipe");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a pipe") << true << QStringLiteral("is neither a file nor a folder");
    QTest::newRow("a link to nothing")
        << false << QStringLiteral("cannot be read: No such file or directory");
}

void TestFormatCodecApi::pathsThatAreNotFilesAreReported()
{
    QFETCH(bool, isPipe);
    QFETCH(QString, reason);

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("own.json"));
    if (isPipe) {
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    } else {
        QVERIFY(QFile::link(QStringLiteral("/gone"), path));
    }
    for (const QString &named : {path, folder.path()}) {
        const Served served = servedWith(named);
        QCOMPARE(QString::fromUtf8(served.standardError),
                 QStringLiteral("VEX_EXPORT_CATALOGUE: %1: %2; the built-in catalogue is used\n")
                     .arg(path, reason));
    }
}

void TestFormatCodecApi::whatMayNotBeReadIsReported_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("file") << QStringLiteral("locked/own.json")
                          << QStringLiteral("cannot be read: Permission denied");
    QTest::newRow("folder") << QStringLiteral("locked")
                            << QStringLiteral("the folder cannot be read");
}

void TestFormatCodecApi::whatMayNotBeReadIsReported()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);

    const QTemporaryDir folder;
    const QString locked = folder.filePath(QStringLiteral("locked"));
    QVERIFY(QDir().mkdir(locked));
    write(locked, {{QStringLiteral("own.json"), catalogue("Mine", "A", "1")}});
    const QFile::Permissions previous = QFile::permissions(locked);
    QVERIFY(QFile::setPermissions(locked, {}));
    const bool isLocked = !QFileInfo(locked).isReadable();
    path = folder.filePath(path);
    const Served served = servedWith(path);
    QVERIFY(QFile::setPermissions(locked, previous));

    if (!isLocked) {
        QSKIP("this user may read everything");
    }
    QCOMPARE(QString::fromUtf8(served.standardError),
             QStringLiteral("VEX_EXPORT_CATALOGUE: %1: %2; the built-in catalogue is used\n")
                 .arg(path, reason));
    QCOMPARE(served.catalogue, servedCatalogue());
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (application.arguments().mid(1) == QStringList{serve}) {
        const QByteArray served = servedCatalogue();
        const size_t size = size_t(served.size());
        return std::fwrite(served.constData(), 1, size, stdout) == size ? 0 : 1;
    }
    qunsetenv(qPrintable(variable));
    TestFormatCodecApi test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_formatcodecapi.moc"
