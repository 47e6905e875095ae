#include "host/presets/presetstore.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/files/atomicwrite.h"
#ifdef VEX_READS_CATALOGUE
#include "host/catalogue/servedcatalogue.h"
#endif

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QQueue>
#include <QStandardPaths>

#include <utility>

namespace {

using Content = UserFile::Content;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString copyIn(const WorkFolder &work, const UserFile &file)
{
    return work.filePath(QFileInfo(file.path()).fileName());
}

QJsonArray listIn(const UserFile &file)
{
    const Result<Content> content = file.content();
    return content ? QJsonDocument::fromJson(content->json).array() : QJsonArray();
}

/*! The first error of the two. */
Result<> firstError(const Result<> &one, const Result<> &other)
{
    return one ? other : one;
}

QStringList idsIn(const FormatDetailModel &presets)
{
    QStringList ids;
    for (int row = 0; row < presets.rowCount(); ++row) {
        ids << presets.getId(row);
    }
    return ids;
}

} // namespace

OutputSettings FoundPreset::outputSettings() const
{
    return OutputSettings::fromPreset(map);
}

PresetStore::PresetStore(FormatsProxy &formats, const QString &folder, const Report &report)
    : m_formats(formats)
    , m_folder(folderAt(folder))
    , m_report(report)
    , m_userPresets(filePath(QStringLiteral("formatCache.json")))
    , m_recently(filePath(QStringLiteral("recently.json")))
    , m_notesFile(filePath(QStringLiteral("presetnotes.json")))
    , m_historyFile(filePath(QStringLiteral("presethistory.json")))
{}

QString PresetStore::folderAt(const QString &folder)
{
    return folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                            : QDir(folder).absolutePath();
}

Result<> PresetStore::lock(int patience)
{
    return m_lock.lock(m_folder, patience, m_report);
}

Result<> PresetStore::open(Access access, UserFile::Unrecoverable unrecoverable)
{
#ifdef VEX_READS_CATALOGUE
    m_aliases = ServedCatalogue(m_folder).serve(m_report);
#endif
    m_opened = access == ReadWrite ? openToWrite(unrecoverable) : openToRead();
    // The library would block on a pipe, and read a file of any size.
    const bool isReadable = m_userPresets.content() && m_recently.content();
    const QString nothing = QProcess::nullDevice();
    m_formats.init(m_work ? m_work->path() : isReadable ? m_folder : nothing);
    readLists();
    return m_opened;
}

/*! A list that can't be read is reported, and hurts nothing else. */
void PresetStore::readLists()
{
    const auto entriesIn = [this](const ConfigList &file) {
        const Result<QJsonArray> entries = file.read();
        if (!entries && m_report) {
            m_report(entries.error().text);
        }
        return entries.value_or(QJsonArray());
    };
    m_notes.read(entriesIn(m_notesFile));
    followAliases();
    m_history.read(entriesIn(m_historyFile));
    matchNotes();
    m_saved = own().all();
}

/*! What the user's lists say of presets that moved is said of where they are now. */
void PresetStore::followAliases()
{
    if (m_aliases.isEmpty()) {
        return;
    }
    m_notes.renameBases([this](const QString &id) { return idNow(id); });
    FormatDetailModel &recent = *m_formats.recentlyFormatsModel();
    for (int row = recent.rowCount() - 1; row >= 0; --row) {
        const QString now = idNow(recent.getId(row));
        if (now == recent.getId(row)) {
            continue;
        }
        FormatDetailModelData record;
        const FormatDetailModel *list = m_formats.formatListModel()->formatDetailModel(
            m_formats.getTagAndClassById(now).value(QStringLiteral("class")).toString());
        if (!recent.isExist(now) && list->getModelInfoById(now, record)) {
            record.userDefine = true; // the library saves no others
            recent.updateModeInfo(row, record);
        } else {
            recent.delModeInfo(row);
        }
    }
}

/*! Lets each of the user's presets have a note, and nothing else: an id may be given again. */
void PresetStore::matchNotes()
{
    const QMap<QString, OwnPreset> all = own().all();
    m_notes.keepOnly(all.keys());
    for (auto preset = all.begin(); preset != all.end(); ++preset) {
        const QString className = preset->format.value(QLatin1String("title")).toString();
        const FormatDetailModel *list = m_formats.formatListModel()->formatDetailModel(className);
        FormatDetailModelData record;
        if (!m_notes.has(preset.key()) && list->getModelInfoById(preset.key(), record)) {
            m_notes.set(preset.key(), PresetNote::about(likelyBase(record, *list)));
        }
    }
}

Result<> PresetStore::openToRead() const
{
    const Result<> checked = firstError(m_userPresets.check(), m_recently.check());
    FolderLock lock;
    return checked || !lock.lock(m_folder, 0) ? checked : repair(UserFile::LeaveInPlace);
}

Result<> PresetStore::openToWrite(UserFile::Unrecoverable unrecoverable)
{
    Result<> locked = m_lock.isLocked() ? Result<>() : lock(0);
    if (!locked) {
        return locked;
    }
    return repair(unrecoverable)
        .and_then([this] {
            return reportNote(m_userPresets.keepUnusable(unusableFormats(listIn(m_userPresets))));
        })
        .and_then([this] {
            return reportNote(m_recently.keepUnusable(unusablePresets(listIn(m_recently))));
        })
        .and_then([this] { return copyIntoWorkFolder(); });
}

Result<> PresetStore::reportNote(const Result<QString> &note) const
{
    if (!note) {
        return failed(note);
    }
    if (m_report && !note->isEmpty()) {
        m_report(*note);
    }
    return {};
}

Result<> PresetStore::repair(UserFile::Unrecoverable unrecoverable) const
{
    // Both, even if the first fails.
    const Result<> userPresets = reportNote(m_userPresets.recover(unrecoverable));
    const Result<> recently = reportNote(m_recently.recover(unrecoverable));
    return firstError(userPresets, recently);
}

Result<> PresetStore::copyIntoWorkFolder()
{
    const auto refused = [this](const Error &reason) {
        return failed(tr("can't write into the configuration folder %1 (%2); check its disk and "
                         "its permissions")
                          .arg(QDir::toNativeSeparators(m_folder), reason.text));
    };
    Result<WorkFolder> work = WorkFolder::make(m_folder);
    if (!work) {
        return refused(work.error());
    }
    for (const UserFile *file : {&m_userPresets, &m_recently}) {
        const Result<Content> content = file->content();
        if (!content) {
            return failed(content);
        }
        if (content->state != Content::Good) {
            continue;
        }
        const Result<> written = writeAtomically(copyIn(*work, *file), content->json, {});
        if (!written) {
            return refused(written.error());
        }
    }
    m_work = std::move(*work);
    return {};
}

Result<> PresetStore::save()
{
    if (!m_work) {
        return m_opened;
    }
    // The library writes only there, even after the user has removed the configuration folder.
    m_work->restore();
    // A step must not be gone before it is undone, nor a preset before its step is there.
    return m_isUndone ? saveLibrary().and_then([this] { return saveLists(); })
                      : saveLists().and_then([this] { return saveLibrary(); });
}

Result<> PresetStore::saveLists()
{
    matchNotes();
    const QMap<QString, OwnPreset> now = own().all();
    PresetHistory history = m_history;
    history.note(m_saved, now, QDateTime::currentDateTimeUtc());
    const bool isChanged = m_isUndone || history.steps().size() != m_history.steps().size() ||
                           history.toJson() != m_history.toJson();
    if (!isChanged) {
        return {};
    }
    return m_notesFile.write(m_notes.toJson())
        .and_then([&] { return m_historyFile.write(history.toJson()); })
        .map([&] {
            m_history = history;
            m_saved = now;
            m_isUndone = false;
        });
}

Result<> PresetStore::saveLibrary()
{
    struct Part
    {
        const UserFile &file;
        QVariantList list;
    };
    const Part parts[] = {
        {m_userPresets, m_formats.formatListModel()->toVariantListForSave()},
        {m_recently, m_formats.recentlyFormatsModel()->toVariantListForSave()},
    };
    m_formats.uninit();
    for (const Part &part : parts) {
        const QByteArray written = bytesOf(copyIn(*m_work, part.file));
        if (written != QJsonDocument::fromVariant(part.list).toJson()) {
            return failed(
                tr("can't write %1, which is as before; check its disk and its permissions")
                    .arg(QDir::toNativeSeparators(part.file.path())));
        }
        Result<> replaced = part.file.replace(written);
        if (!replaced) {
            return replaced;
        }
    }
    return {};
}

Result<PresetHistory::Step> PresetStore::undo()
{
    OwnPresets presets = own();
    return m_history.undo(presets).map([this, &presets](const PresetHistory::Step &step) {
        m_saved = presets.all();
        m_isUndone = true;
        return step;
    });
}

QStringList PresetStore::ids() const
{
    const FormatListModel &formats = *m_formats.formatListModel();
    QStringList ids;
    for (int row = 0; row < formats.rowCount(); ++row) {
        ids << idsOf(formats.getTitle(row));
    }
    return ids;
}

QStringList PresetStore::idsOf(const QString &className) const
{
    const FormatDetailModel *presets = m_formats.formatListModel()->formatDetailModel(className);
    return presets == nullptr ? QStringList() : idsIn(*presets);
}

QStringList PresetStore::recentIds() const
{
    return idsIn(*m_formats.recentlyFormatsModel());
}

QStringList PresetStore::firstIds() const
{
    const FormatListModel &formats = *m_formats.formatListModel();
    QStringList ids;
    for (int row = 0; row < formats.rowCount(); ++row) {
        const FormatDetailModel *presets = formats.formatDetailModel(formats.getTitle(row));
        if (presets != nullptr && presets->rowCount() > 0) {
            ids << presets->getId(0);
        }
    }
    return ids;
}

QString PresetStore::idNow(const QString &id) const
{
    return m_formats.getTagAndClassById(id).isEmpty() ? m_aliases.value(id, id) : id;
}

std::optional<FoundPreset> PresetStore::find(const QString &wanted) const
{
    const QString id = idNow(wanted);
    const QString recently = QStringLiteral("recently");
    const QVariantMap place = m_formats.getTagAndClassById(id);
    FoundPreset preset;
    preset.className = place.value(QStringLiteral("class")).toString();
    preset.tag = place.isEmpty() ? recently : place.value(QStringLiteral("tag")).toString();
    preset.map = m_formats.getFormat(preset.tag, preset.className, id);
    if (preset.map.isEmpty()) {
        return std::nullopt;
    }

    const FormatDetailModel *list =
        m_formats.formatListModel()->formatDetailModel(preset.className);
    FormatDetailModelData record;
    preset.isUserDefined =
        list != nullptr && list->getModelInfoById(id, record) && record.userDefine;
    return preset;
}

QString PresetStore::filePath(const QString &name) const
{
    return QDir(m_folder).absoluteFilePath(name);
}
