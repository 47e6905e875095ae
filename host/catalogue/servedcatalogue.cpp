#include "host/catalogue/servedcatalogue.h"

#include "host/catalogue/editedcatalogue.h"
#include "host/files/workfolder.h"
#include "utility/cataloguefiles.h"
#include "utility/formatcodecapi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr qint64 largestFile = 8000000;

CatalogueSource readOverlay(const QString &path)
{
    CatalogueSource source{path, {}};
    const QFileInfo info(path);
    QFile file(path);
    // Opening a pipe would block.
    if (!info.isFile()) {
        source.unreadable = QStringLiteral("is no file; remove it");
    } else if (info.size() > largestFile) {
        source.unreadable = QStringLiteral("is larger than 8 MB; split it");
    } else if (!file.open(QIODevice::ReadOnly)) {
        source.unreadable =
            QStringLiteral("can't be read (%1); check its permissions").arg(file.errorString());
    } else {
        source.json = file.read(largestFile);
    }
    return source;
}

QByteArray fileOf(const ExportCatalogue &catalogue, const QString &category)
{
    QJsonArray groups;
    const QVariantList all = catalogue.groups.value(category);
    for (const QVariant &group : all) {
        QJsonObject json = QJsonObject::fromVariantMap(group.toMap());
        json.remove(QStringLiteral("category"));
        QJsonArray presets;
        const QVariantList maps =
            catalogue.presets.value({category, json.value(QStringLiteral("name")).toString()});
        for (const QVariant &preset : maps) {
            presets.append(presetToJson(preset.toMap()));
        }
        json.insert(QStringLiteral("presets"), presets);
        groups.append(json);
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("category"), category},
                                     {QStringLiteral("groups"), groups}})
        .toJson(QJsonDocument::Compact);
}

/*! Sets the variable that names the catalogue, as long as this exists. */
class CatalogueVariable
{
    Q_DISABLE_COPY(CatalogueVariable)

public:
    explicit CatalogueVariable(const QString &path) { qputenv(m_name, QFile::encodeName(path)); }
    ~CatalogueVariable() { m_isSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }

private:
    const char *const m_name = "VEX_EXPORT_CATALOGUE";
    const bool m_isSet = qEnvironmentVariableIsSet(m_name);
    const QByteArray m_before = qgetenv(m_name);
};

/*! The first mistake that leaves something out, and how many more there are; empty without one. */
QString leftOut(const QVector<CatalogueMistake> &mistakes)
{
    QStringList texts;
    for (const CatalogueMistake &mistake : mistakes) {
        if (!mistake.isServed) {
            texts << mistake.text();
        }
    }
    if (texts.isEmpty()) {
        return {};
    }
    const QString first = ServedCatalogue::tr("%1; left out").arg(texts.constFirst());
    return texts.size() == 1
               ? first
               : ServedCatalogue::tr("%1, and %2 more; \"vexconvert check-catalogue\" lists all")
                     .arg(first)
                     .arg(texts.size() - 1);
}

} // namespace

ServedCatalogue::ServedCatalogue(const QString &configFolder)
{
    const QDir folder(configFolder + QStringLiteral("/catalogues"));
    const QStringList names =
        folder.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::System, QDir::Name);
    for (const QString &name : names) {
        if (!name.endsWith(QLatin1String(".schema.json"))) {
            m_files << folder.filePath(name);
        }
    }
}

OverlaidCatalogue ServedCatalogue::read(const QString &path) const
{
    QVector<CatalogueSource> overlays;
    for (const QString &file : m_files) {
        overlays.append(readOverlay(file));
    }
    return withOverlays(readCatalogueAt(path), overlays);
}

PresetAliases ServedCatalogue::serve(const std::function<void(const QString &)> &report) const
{
    if (!hasOverlays()) {
        return {};
    }
    const QString own = ownCataloguePath();
    const OverlaidCatalogue catalogue = read(own.isEmpty() ? builtInCataloguePath() : own);
    const QString mistakes = leftOut(catalogue.result.mistakes);
    if (!mistakes.isEmpty() && report) {
        report(mistakes);
    }
    const Result<> served = serve(catalogue.result.catalogue);
    if (!served && report) {
        report(served.error().text);
    }
    return served ? catalogue.aliases : PresetAliases();
}

Result<> ServedCatalogue::serve(const ExportCatalogue &catalogue)
{
    if (catalogue.presets.isEmpty()) {
        return failed(tr("the overlays leave no preset, and aren't used; hide fewer"));
    }
    const auto refused = [](const QString &reason) {
        return failed(tr("the overlays of the catalogue aren't used, as the temporary folder can't "
                         "be written (%1); check its disk and its permissions")
                          .arg(reason));
    };
    const Result<WorkFolder> folder = WorkFolder::make();
    if (!folder) {
        return refused(folder.error().text);
    }
    for (int i = 0; i < catalogue.categories.size(); ++i) {
        // They are read in the order of their names.
        QFile file(folder->filePath(QStringLiteral("%1.json").arg(i, 6, 10, QLatin1Char('0'))));
        const QByteArray json = fileOf(catalogue, catalogue.categories.at(i).toString());
        if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size() || !file.flush()) {
            return refused(file.errorString());
        }
    }
    const CatalogueVariable variable(folder->path());
    FormatCodecApi::getInstance();
    return {};
}
