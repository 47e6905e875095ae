#include "utility/cataloguefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QStringList catalogueFilesIn(const QDir &folder)
{
    QStringList files;
    const QStringList names =
        folder.entryList({QStringLiteral("*.json")}, QDir::Files | QDir::System, QDir::Name);
    for (const QString &name : names) {
        if (!name.endsWith(QLatin1String(".schema.json"))) {
            files.append(folder.filePath(name));
        }
    }
    return files;
}

CatalogueSource readSource(const QString &name)
{
    CatalogueSource source{name, {}};
    if (QFileInfo::exists(name) && !QFileInfo(name).isFile()) {
        // Opening a pipe would block.
        source.unreadable = QStringLiteral("is neither a file nor a folder");
        return source;
    }
    QFile file(name);
    if (file.open(QIODevice::ReadOnly)) {
        source.json = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        source.unreadable = QStringLiteral("cannot be read: %1").arg(file.errorString());
    }
    return source;
}

} // namespace

QString ownCataloguePath()
{
    return QFile::decodeName(qgetenv("VEX_EXPORT_CATALOGUE"));
}

QString builtInCataloguePath()
{
    Q_INIT_RESOURCE(catalogue); // a static library's resources need this call
    return QStringLiteral(":/morrow/catalogue");
}

CatalogueResult readCatalogueAt(const QString &path)
{
    QVector<CatalogueSource> sources;
    const QStringList files =
        QFileInfo(path).isDir() ? catalogueFilesIn(QDir(path)) : QStringList{path};
    for (const QString &name : files) {
        sources.append(readSource(name));
    }
    CatalogueResult result = readCatalogue(sources);
    if (files.isEmpty()) {
        result.mistakes.append({{path, {}},
                                QDir(path).isReadable()
                                    ? QStringLiteral("the folder has no *.json file")
                                    : QStringLiteral("the folder cannot be read")});
    } else if (result.mistakes.isEmpty() && result.presetPlaces.isEmpty()) {
        result.mistakes.append({{path, {}}, QStringLiteral("has no presets")});
    }
    return result;
}
