#include "utility/formatcodecapi.h"

#include "utility/cataloguefiles.h"

#include <cstdio>

namespace {

void complain(const QString &complaint)
{
    // Not qWarning(): without a terminal, Qt may log to the system's journal instead.
    std::fprintf(stderr, "VEX_EXPORT_CATALOGUE: %s\n", complaint.toUtf8().constData());
}

/*! The first mistake that leaves something out, and how many more there are; empty without one. */
QString leftOut(const QVector<CatalogueMistake> &mistakes)
{
    QStringList texts;
    for (const CatalogueMistake &mistake : mistakes) {
        if (!mistake.isServed) {
            texts.append(mistake.text());
        }
    }
    if (texts.size() < 2) {
        return texts.value(0);
    }
    return QStringLiteral("%1 (and %2 more)").arg(texts.first(), QString::number(texts.size() - 1));
}

ExportCatalogue loadCatalogue()
{
    const QString path = ownCataloguePath();
    if (!path.isEmpty()) {
        const CatalogueResult own = readCatalogueAt(path);
        const QString complaint = leftOut(own.mistakes);
        const bool isServed = !own.presetPlaces.isEmpty();
        if (!complaint.isEmpty()) {
            complain(complaint + (isServed ? QStringLiteral("; the rest is used")
                                           : QStringLiteral("; the built-in catalogue is used")));
        }
        if (isServed) {
            return own.catalogue;
        }
    }
    return readCatalogueAt(builtInCataloguePath()).catalogue;
}

} // namespace

FormatCodecApi::FormatCodecApi()
    : m_catalogue(std::make_unique<const ExportCatalogue>(loadCatalogue()))
{}

FormatCodecApi::~FormatCodecApi() = default;

FormatCodecApi *FormatCodecApi::getInstance()
{
    static FormatCodecApi instance;
    return &instance;
}

QList<QVariant> FormatCodecApi::getExportCategoryLists()
{
    return m_catalogue->categories;
}

QList<QVariant> FormatCodecApi::getExportGroupLists(const QString &category)
{
    return m_catalogue->groups.value(category);
}

QList<QVariant> FormatCodecApi::getExportGroupContents(const QMap<QString, QVariant> &group)
{
    return m_catalogue->presets.value({group.value(QStringLiteral("category")).toString(),
                                       group.value(QStringLiteral("name")).toString()});
}
