#include "host/catalogue/servedcatalogue.h"

#include "tests/support/testfiles.h"
#include "utility/cataloguefiles.h"
#include "utility/formatcodecapi.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>
#include <sys/stat.h>

/*! The overlays in a configuration folder. */
class TestServedCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        QVERIFY(m_folder->isValid());
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("catalogues")));
    }

    void overlaysAreReadInTheOrderOfTheirNames();
    void otherFilesAreNoOverlays();
    void aFileThatCannotBeReadIsNamed();
    void hidingEverythingIsRefused();
    void theLibraryServesTheCatalogueWithTheOverlays();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(QStringLiteral("catalogues/") + name);
    }
    QStringList mistakes() const
    {
        QStringList lines;
        const OverlaidCatalogue read =
            ServedCatalogue(m_folder->path()).read(builtInCataloguePath());
        for (const CatalogueMistake &mistake : read.result.mistakes) {
            lines << mistake.text().remove(m_folder->path() + QStringLiteral("/catalogues/"));
        }
        return lines;
    }

    std::optional<QTemporaryDir> m_folder;
};

void TestServedCatalogue::overlaysAreReadInTheOrderOfTheirNames()
{
    QVERIFY(writeFile(path(QStringLiteral("b.json")), R"({ "b": 1 })"));
    QVERIFY(writeFile(path(QStringLiteral("a.json")), R"({ "a": 1 })"));
    QCOMPARE(mistakes(), QStringList({QStringLiteral("a.json: a: is not a known key"),
                                      QStringLiteral("b.json: b: is not a known key")}));
}

void TestServedCatalogue::otherFilesAreNoOverlays()
{
    QVERIFY(!ServedCatalogue(m_folder->filePath(QStringLiteral("missing"))).hasOverlays());
    QVERIFY(writeFile(path(QStringLiteral("overlay.schema.json")), "x"));
    QVERIFY(writeFile(path(QStringLiteral("notes.txt")), "x"));
    QVERIFY(!ServedCatalogue(m_folder->path()).hasOverlays());
    QCOMPARE(mistakes(), QStringList());
}

void TestServedCatalogue::aFileThatCannotBeReadIsNamed()
{
    QCOMPARE(::mkfifo(qPrintable(path(QStringLiteral("a.json"))), 0600), 0);
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), path(QStringLiteral("b.json"))));
    QFile large(path(QStringLiteral("c.json")));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(8000001));
    QVERIFY(writeFile(path(QStringLiteral("d.json"))));
    QCOMPARE(mistakes(), QStringList({QStringLiteral("a.json: is no file; remove it"),
                                      QStringLiteral("b.json: is no file; remove it"),
                                      QStringLiteral("c.json: is larger than 8 MB; split it"),
                                      QStringLiteral("d.json:1:1: the file is empty")}));
}

void TestServedCatalogue::hidingEverythingIsRefused()
{
    const Result<> served = ServedCatalogue::serve(ExportCatalogue());
    QVERIFY(!served);
    QCOMPARE(served.error().text,
             QStringLiteral("the overlays leave no preset, and aren't used; hide fewer"));
}

/*! The library asks for the catalogue once in a process, so this is the only test that serves. */
void TestServedCatalogue::theLibraryServesTheCatalogueWithTheOverlays()
{
    QVERIFY(writeFile(
        path(QStringLiteral("a.json")),
        R"({ "hide": { "formats": ["MP4", 1, 2] }, "aliases": { "OLD": "Video_MKV_001" } })"));
    const char variable[] = "VEX_EXPORT_CATALOGUE";
    qputenv(variable, "");
    const QTemporaryDir temporary;
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));
    QStringList reported;
    const PresetAliases aliases =
        ServedCatalogue(m_folder->path()).serve([&reported](const QString &line) {
            reported << line;
        });
    QCOMPARE(reported, QStringList(path(QStringLiteral(
                           "a.json: hide.formats[1]: must be a string; left out, and 1 more; "
                           "\"vexconvert check-catalogue\" lists all"))));
    QCOMPARE(aliases, (PresetAliases{{QStringLiteral("OLD"), QStringLiteral("Video_MKV_001")}}));
    QVERIFY(qEnvironmentVariableIsSet(variable) && qgetenv(variable).isEmpty());
    QVERIFY(QDir(temporary.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));

    const ExportCatalogue builtIn = readCatalogueAt(builtInCataloguePath()).catalogue;
    FormatCodecApi &served = *FormatCodecApi::getInstance();
    QCOMPARE(served.getExportCategoryLists(), builtIn.categories);
    int presets = 0;
    for (const QVariant &category : builtIn.categories) {
        QVariantList groups = builtIn.groups.value(category.toString());
        if (category == QLatin1String("Video")) {
            groups.removeFirst();
        }
        QCOMPARE(served.getExportGroupLists(category.toString()), groups);
        for (const QVariant &group : qAsConst(groups)) {
            const QVariantList contents = served.getExportGroupContents(group.toMap());
            QCOMPARE(contents, builtIn.presets.value(
                                   {category.toString(),
                                    group.toMap().value(QStringLiteral("name")).toString()}));
            presets += contents.size();
        }
    }
    QVERIFY(presets > 400);
}

QTEST_GUILESS_MAIN(TestServedCatalogue)
#include "tst_servedcatalogue.moc"
