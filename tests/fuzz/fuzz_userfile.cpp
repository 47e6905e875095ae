#include "host/presets/userfile.h"
#include "tests/fuzz/fuzzing.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

namespace {

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

bool isList(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).isArray();
}

bool hasFileWith(const QDir &folder, const QByteArray &content)
{
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly) && file.readAll() == content) {
            return true;
        }
    }
    return false;
}

} // namespace

/*! The first line is a preset file, the second its backup; both in memory. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir place(QStringLiteral("/dev/shm/fuzz-XXXXXX"));
    const QDir folder(place.path());
    for (const QString &name : folder.entryList(QDir::Files)) {
        require(QFile::remove(folder.filePath(name)));
    }
    const QList<QByteArray> parts = inputBytes(data, size).split('\n');
    const QByteArray own = parts.value(0);
    const QByteArray copy = parts.value(1);
    const UserFile file(folder.filePath(QStringLiteral("formatCache.json")));
    put(file.path(), own);
    put(file.copyPath(), copy);

    // The previous contents are still there, or beside the file.
    const Result<QString> note = file.recover(UserFile::LeaveInPlace);
    require(note.has_value() == (isList(own) || isList(copy)));
    require(!note || note->isEmpty() == isList(own));
    require(own.isEmpty() || hasFileWith(folder, own));
    require(file.recover(UserFile::MoveAside).has_value());
    // Only a damaged copy can be left of presets that were lost earlier.
    require(file.check().has_value() || (!copy.isEmpty() && !isList(copy)));
    require(own.isEmpty() || hasFileWith(folder, own));

    const QJsonArray presets = QJsonDocument::fromJson(own).array();
    const QJsonArray unusable = unusableFormats(presets);
    require(unusable.size() <= presets.size());
    require(file.keepUnusable(unusable).has_value());
    require(file.replace("[]").has_value());
    require(file.content()->json == "[]");
    return 0;
}
