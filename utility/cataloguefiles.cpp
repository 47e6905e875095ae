#include "utility/cataloguefiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QStringList catalogueFilesIn(const QDir &folder)
{
    QStringList files;
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (!name.endsWith(QLatin1String(".schema.json"))) {
            files.append(folder.filePath(name));
        }
    }
    return files;
}

} // namespace

QString ownCataloguePath()
{
    return QFile::decodeName(qgetenv("VEX_EXPORT_CATALOGUE"));
}

QString builtInCataloguePath()
{
    return QStringLiteral(":/morrow/catalogue");
}

CatalogueResult readCatalogueAt(const QString &path)
{
    QStringList files{path};
    QVector<CatalogueMistake> unread;
    if (QFileInfo(path).isDir()) {
        files = catalogueFilesIn(QDir(path));
        if (files.isEmpty()) {
            unread.append({{path, {}},
                           QDir(path).isReadable()
                               ? QStringLiteral("the folder holds no *.json file")
                               : QStringLiteral("the folder cannot be read")});
        }
    }

    QVector<CatalogueSource> sources;
    for (const QString &name : qAsConst(files)) {
        QFile file(name);
        QByteArray json;
        if (file.open(QIODevice::ReadOnly)) {
            json = file.readAll();
        }
        if (file.error() == QFileDevice::NoError) {
            sources.append({name, json});
        } else {
            unread.append(
                {{name, {}}, QStringLiteral("cannot be read: %1").arg(file.errorString())});
        }
    }
    CatalogueResult result = readCatalogue(sources);
    result.mistakes = unread + result.mistakes;
    return result;
}
