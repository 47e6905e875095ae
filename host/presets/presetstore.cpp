#include "host/presets/presetstore.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>
#include <QVector>

namespace {

QString recentlyFile()
{
    return QStringLiteral("recently.json");
}

QString userPresetsFile()
{
    return QStringLiteral("formatCache.json");
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isList(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).isArray();
}

/*! Where a file's last good copy stands. */
QString backupOf(const QString &path)
{
    return path + QStringLiteral(".bak");
}

/*! False, with what was there before, when the copy can't be made. */
bool copyOver(const QString &from, const QString &to)
{
    QSaveFile file(to);
    return file.open(QIODevice::WriteOnly) && file.write(contentOf(from)) >= 0 && file.commit();
}

} // namespace

PresetStore::PresetStore(const QString &folder)
    : m_folder(folder.isEmpty()
                   ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                   : QDir(folder).absolutePath())
{}

QString PresetStore::lock(int patience)
{
    QDir().mkpath(m_folder);
    m_lock = std::make_unique<QLockFile>(filePath(QStringLiteral("vexconvert.lock")));
    // A program that runs keeps its lock however long it runs; one that died has none.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(patience)) {
        return {};
    }
    const QString error = m_lock->error() == QLockFile::LockFailedError
                              ? tr("another program is writing the presets in %1; try again when "
                                   "it is done")
                              : tr("can't write into the configuration folder %1; name another "
                                   "one");
    m_lock.reset();
    return error.arg(QDir::toNativeSeparators(m_folder));
}

QStringList PresetStore::repair()
{
    QStringList lines;
    for (const QString &name : {recentlyFile(), userPresetsFile()}) {
        const QString path = filePath(name);
        if (!QFile::exists(path) || isList(contentOf(path))) {
            continue;
        }
        const QString damaged = path + QStringLiteral(".damaged");
        QFile::remove(damaged);
        QFile::rename(path, damaged);
        const bool hasGoodCopy = isList(contentOf(backupOf(path)));
        if (hasGoodCopy) {
            copyOver(backupOf(path), path);
        }
        lines << (hasGoodCopy ? tr("%1 was damaged; its last good copy is in its place, and the "
                                   "damaged file beside it as %2")
                              : tr("%1 was damaged and there is no good copy of it; it is kept as "
                                   "%2"))
                     .arg(QDir::toNativeSeparators(path), QFileInfo(damaged).fileName());
    }
    return lines;
}

QString PresetStore::open(Access access)
{
    constexpr int patience = 5000;
    const QString error = access == ReadWrite && m_lock == nullptr ? lock(patience) : QString();
    formats().init(m_folder);
    return error.isEmpty() ? damage() : error;
}

QString PresetStore::save()
{
    struct Part
    {
        QString path;
        QVariantList content;
    };
    const QVector<Part> parts = {
        {filePath(recentlyFile()), formats().recentlyFormatsModel()->toVariantListForSave()},
        {filePath(userPresetsFile()), formats().formatListModel()->toVariantListForSave()},
    };
    const QString unreadable = damage();
    if (!unreadable.isEmpty()) {
        return unreadable;
    }
    for (const Part &part : parts) {
        if (isList(contentOf(part.path)) && !copyOver(part.path, backupOf(part.path))) {
            return tr("can't keep a copy of %1; free some space on its disk").arg(part.path);
        }
    }
    formats().uninit();
    for (const Part &part : parts) {
        const QByteArray expected = QJsonDocument::fromVariant(part.content).toJson();
        if (contentOf(part.path) != expected) {
            copyOver(backupOf(part.path), part.path);
            return tr("can't write %1, which is as before; check its disk and its permissions")
                .arg(part.path);
        }
    }
    return {};
}

FormatsProxy &PresetStore::formats() const
{
    return *FormatsProxy::getInstance();
}

FoundPreset PresetStore::find(const QString &id) const
{
    const QString recently = QStringLiteral("recently");
    const QVariantMap place = formats().getTagAndClassById(id);
    FoundPreset preset;
    preset.className = place.value(QStringLiteral("class")).toString();
    preset.tag = place.isEmpty() ? recently : place.value(QStringLiteral("tag")).toString();
    preset.map = formats().getFormat(preset.tag, preset.className, id);
    preset.allAudioTracks = preset.map.value(QStringLiteral("supportMultiTrack")).toBool() ||
                            formats().isSupportMultiTrack(id);

    const FormatDetailModel *list =
        formats().formatListModel()->formatDetailModel(preset.className);
    FormatDetailModelData record;
    preset.isUserDefined =
        list != nullptr && list->getModelInfoById(id, record) && record.userDefine;
    return preset;
}

QString PresetStore::filePath(const QString &name) const
{
    return QDir(m_folder).absoluteFilePath(name);
}

QString PresetStore::damage() const
{
    for (const QString &name : {recentlyFile(), userPresetsFile()}) {
        QFile file(filePath(name));
        if (!file.exists()) {
            continue;
        }
        const bool isOpen = file.open(QIODevice::ReadOnly);
        const QByteArray content = file.readAll();
        if (!isOpen || (!content.isEmpty() && !isList(content))) {
            return tr("%1 is damaged and can't be read; mend it or move it away")
                .arg(file.fileName());
        }
    }
    return {};
}
