#ifndef PRESETS_PRESETSTORE_H
#define PRESETS_PRESETSTORE_H

#include "host/convert/outputsettings.h"
#include "host/error.h"
#include "host/files/workfolder.h"
#include "host/presets/configlist.h"
#include "host/presets/folderlock.h"
#include "host/presets/ownpresets.h"
#include "host/presets/presethistory.h"
#include "host/presets/presetnotes.h"
#include "host/presets/userfile.h"

#include <QCoreApplication>
#include <QString>
#include <QVariantMap>

#include <optional>

class FormatsProxy;

/*! A preset and where it was found. */
struct FoundPreset
{
    QString tag; //!< "recently" if only the recently used list still has it
    QString className;
    QVariantMap map; //!< as FormatDetailModelData::toVarMap() makes it
    bool isUserDefined = false;

    /*! The settings of a conversion with this preset. */
    [[nodiscard]] OutputSettings outputSettings() const;
};

/*!
 * Opens the preset library on the user's configuration folder, and saves so that the user's files
 * survive whatever goes wrong.
 *
 * The library overwrites its files, and a crash or a full disk would leave them incomplete. So it
 * works on copies in a folder of its own, and only a file that it wrote completely replaces the
 * user's, in one step.
 */
class PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(PresetStore)
    Q_DISABLE_COPY(PresetStore)

public:
    using Report = FolderLock::Report;
    enum Access { ReadOnly, ReadWrite };

    /*!
     * An empty \a folder means the platform's configuration folder of this program. \a report gets
     * lines for the user: what was repaired, and which process holds the lock.
     */
    PresetStore(FormatsProxy &formats, const QString &folder, const Report &report = {});

    /*! The absolute path of \a folder, or of the platform's for an empty one. */
    [[nodiscard]] static QString folderAt(const QString &folder);

    /*!
     * Keeps other processes from writing to the folder while this store exists; see
     * FolderLock::lock(). Without it, open() locks for ReadWrite, without waiting.
     */
    [[nodiscard]] Result<> lock(int patience);
    /*!
     * Loads the catalogue and the user's files, after repairing what a crash damaged. A damaged
     * file without a good copy is an error, or moved aside if \a unrecoverable says so. The
     * catalogue is loaded in any case. Call it once per FormatsProxy.
     */
    [[nodiscard]] Result<> open(Access access,
                                UserFile::Unrecoverable unrecoverable = UserFile::LeaveInPlace);
    /*! Writes the user's files. A file that an error names is unchanged. What has changed since the
     *  last time can be undone afterwards. */
    [[nodiscard]] Result<> save();

    /*! The user's presets, to be changed. */
    [[nodiscard]] OwnPresets own() { return {m_formats, m_notes}; }
    [[nodiscard]] PresetNotes &notes() { return m_notes; }
    [[nodiscard]] const PresetHistory &history() const { return m_history; }
    /*! Undoes what was saved last, and returns it; see PresetHistory::undo(). To be saved. */
    [[nodiscard]] Result<PresetHistory::Step> undo();

    /*! The path of a file in the configuration folder. */
    [[nodiscard]] QString filePath(const QString &name) const;
    [[nodiscard]] FormatsProxy &formats() const { return m_formats; }
    /*! The ids of all presets of the catalogue and of the user. */
    [[nodiscard]] QStringList ids() const;
    /*! Those of the format of this title. */
    [[nodiscard]] QStringList idsOf(const QString &className) const;
    /*! The first one of each format that has any. */
    [[nodiscard]] QStringList firstIds() const;
    /*! Those of the recently used list, the latest first; not all are of this catalogue. */
    [[nodiscard]] QStringList recentIds() const;
    /*! The id itself if a preset has it, else the one that the preset has now which had it once. */
    [[nodiscard]] QString idNow(const QString &id) const;
    /*! The preset with this id now of the catalogue or the user, else of the recently used list. */
    [[nodiscard]] std::optional<FoundPreset> find(const QString &id) const;

private:
    Result<> openToRead() const;
    Result<> openToWrite(UserFile::Unrecoverable unrecoverable);
    Result<> reportNote(const Result<QString> &note) const;
    Result<> repair(UserFile::Unrecoverable unrecoverable) const;
    Result<> copyIntoWorkFolder();
    void readLists();
    void followAliases();
    void matchNotes();
    Result<> saveLists();
    Result<> saveLibrary();

    FormatsProxy &m_formats;
    const QString m_folder;
    const Report m_report;
    const UserFile m_userPresets;
    const UserFile m_recently;
    const ConfigList m_notesFile;
    const ConfigList m_historyFile;
    FolderLock m_lock;
    QHash<QString, QString> m_aliases; //!< the ids that presets have now, by those they had
    std::optional<WorkFolder> m_work;  //!< what the library works on; none if opened in place
    Result<> m_opened;                 //!< if an error, nothing is saved
    PresetNotes m_notes;
    PresetHistory m_history;
    QMap<QString, OwnPreset> m_saved; //!< the user's presets as they were saved last
    bool m_isUndone = false;          //!< the history lacks a step that isn't saved as undone
};

#endif
