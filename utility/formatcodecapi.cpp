#include "utility/formatcodecapi.h"

#include "utility/cataloguereader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

CatalogueResult readCatalogueAt(const QString &path)
{
    QStringList files{path};
    if (QFileInfo(path).isDir()) {
        const QDir folder(path);
        files.clear();
        const QStringList names =
            folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            if (!name.endsWith(QLatin1String(".schema.json"))) {
                files.append(folder.filePath(name));
            }
        }
        if (files.isEmpty()) {
            const QString reason = folder.isReadable()
                                       ? QStringLiteral("the folder holds no *.json file")
                                       : QStringLiteral("the folder cannot be read");
            return {{}, QStringLiteral("%1: %2").arg(path, reason)};
        }
    }

    QVector<CatalogueSource> sources;
    for (const QString &name : qAsConst(files)) {
        QFile file(name);
        QByteArray json;
        if (file.open(QIODevice::ReadOnly)) {
            json = file.readAll();
        }
        if (file.error() != QFileDevice::NoError) {
            return {{}, QStringLiteral("%1: cannot be read: %2").arg(name, file.errorString())};
        }
        sources.append({name, json});
    }
    return readCatalogue(sources);
}

ExportCatalogue loadCatalogue()
{
    const QString path = QFile::decodeName(qgetenv("VEX_EXPORT_CATALOGUE"));
    if (!path.isEmpty()) {
        const CatalogueResult own = readCatalogueAt(path);
        if (own.error.isEmpty()) {
            return own.catalogue;
        }
        QString line = QStringLiteral("VEX_EXPORT_CATALOGUE: %1; the built-in catalogue is used")
                           .arg(own.error);
        line.replace(QLatin1Char('\n'), QLatin1Char(' ')); // names may hold line breaks
        // Not qWarning(): where no terminal is attached, Qt may log to the system's journal
        // instead.
        std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    }
    return readCatalogueAt(QStringLiteral(":/morrow/catalogue")).catalogue;
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
