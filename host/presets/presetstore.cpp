#include "host/presets/presetstore.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QStandardPaths>

namespace {

using Content = UserFile::Content;

QString absoluteFolder(const QString &folder)
{
    return folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                            : QDir(folder).absolutePath();
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! False unless all of it can be read again: a full disk may take a part without an error. */
bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.write(content);
    file.close();
    return bytesOf(path) == content;
}

QJsonArray listIn(const UserFile &file)
{
    return QJsonDocument::fromJson(file.content().json).array();
}

void add(PresetStore::Opening &opening, const UserFile::Recovery &recovery)
{
    if (!recovery.note.isEmpty()) {
        opening.notes << recovery.note;
    }
    if (opening.error.isEmpty()) {
        opening.error = recovery.error;
    }
}

} // namespace

PresetStore::PresetStore(const QString &folder)
    : m_folder(absoluteFolder(folder))
    , m_userPresets(filePath(QStringLiteral("formatCache.json")))
    , m_recently(filePath(QStringLiteral("recently.json")))
{}

QString PresetStore::lock(int patience, const FolderLock::Tell &tellWaiting)
{
    return m_lock.lock(m_folder, patience, tellWaiting);
}

PresetStore::Opening PresetStore::open(Access access, UserFile::Hopeless hopeless)
{
    const Opening opening = access == ReadWrite ? openToWrite(hopeless) : openToRead();
    m_refusal = opening.error;
    // Without a folder of its own the library reads the user's, unless that holds what it mustn't.
    const bool isReadable = m_userPresets.content().state != Content::Refused &&
                            m_recently.content().state != Content::Refused;
    const QString nothing = QProcess::nullDevice();
    formats().init(m_work != nullptr ? m_work->path() : isReadable ? m_folder : nothing);
    return opening;
}

PresetStore::Opening PresetStore::openToRead() const
{
    Opening opening;
    for (const UserFile *file : {&m_userPresets, &m_recently}) {
        add(opening, {{}, file->complaint()});
    }
    FolderLock lock;
    if (opening.error.isEmpty() || !lock.lock(m_folder, 0).isEmpty()) {
        return opening;
    }
    return putRight(UserFile::StaysInPlace);
}

PresetStore::Opening PresetStore::openToWrite(UserFile::Hopeless hopeless)
{
    const QString unlocked = m_lock.isLocked() ? QString() : lock(0);
    if (!unlocked.isEmpty()) {
        return {{}, unlocked};
    }
    Opening opening = putRight(hopeless);
    add(opening, m_userPresets.keepUnusable(unusableFormats(listIn(m_userPresets))));
    add(opening, m_recently.keepUnusable(unusablePresets(listIn(m_recently))));
    if (opening.error.isEmpty()) {
        opening.error = copyIntoWorkFolder();
    }
    return opening;
}

PresetStore::Opening PresetStore::putRight(UserFile::Hopeless hopeless) const
{
    Opening opening;
    for (const UserFile *file : {&m_userPresets, &m_recently}) {
        add(opening, file->recover(hopeless));
    }
    return opening;
}

QString PresetStore::copyIntoWorkFolder()
{
    m_work = std::make_unique<WorkFolder>(m_folder);
    bool isCopied = m_work->isValid();
    for (const UserFile *file : {&m_userPresets, &m_recently}) {
        const Content content = file->content();
        isCopied =
            isCopied && (content.state != Content::Good || write(workPath(*file), content.json));
    }
    if (isCopied) {
        return {};
    }
    m_work.reset();
    return tr("can't write into the configuration folder %1; check its disk and its permissions")
        .arg(QDir::toNativeSeparators(m_folder));
}

QString PresetStore::workPath(const UserFile &file) const
{
    return m_work->filePath(QFileInfo(file.path()).fileName());
}

QString PresetStore::save()
{
    if (m_work == nullptr) {
        return m_refusal;
    }
    struct Part
    {
        const UserFile &file;
        QVariantList list;
    };
    const Part parts[] = {
        {m_userPresets, formats().formatListModel()->toVariantListForSave()},
        {m_recently, formats().recentlyFormatsModel()->toVariantListForSave()},
    };
    formats().uninit();
    for (const Part &part : parts) {
        const QByteArray written = bytesOf(workPath(part.file));
        const bool isWhole = written == QJsonDocument::fromVariant(part.list).toJson();
        const QString problem =
            isWhole ? part.file.replace(written)
                    : tr("can't write %1, which is as before; check its disk and its permissions")
                          .arg(QDir::toNativeSeparators(part.file.path()));
        if (!problem.isEmpty()) {
            return problem;
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
