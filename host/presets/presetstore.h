#ifndef PRESETS_PRESETSTORE_H
#define PRESETS_PRESETSTORE_H

#include "host/convert/outputsettings.h"
#include "host/error.h"
#include "host/files/workfolder.h"
#include "host/presets/folderlock.h"
#include "host/presets/userfile.h"

#include <QCoreApplication>
#include <QString>
#include <QVariantMap>

#include <optional>

class FormatsProxy;

/*! A preset with the place where it was found. */
struct FoundPreset
{
    QString tag; //!< "recently" for one that only the recently-used list still has
    QString className;
    QVariantMap map; //!< as FormatDetailModelData::toVarMap() makes it
    bool isUserDefined = false;

    /*! What it asks of a conversion. */
    [[nodiscard]] OutputSettings outputSettings() const;
};

/*!
 * The library of presets, opened on the user's configuration folder and saved there so that the
 * user's files survive whatever goes wrong.
 *
 * The library writes over its files, where a crash or a full disk would leave half of them. So it
 * works on copies in a folder of its own, and only what it wrote whole takes the place of the
 * user's file, in one step.
 */
class PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(PresetStore)
    Q_DISABLE_COPY(PresetStore)

public:
    using Tell = FolderLock::Tell;
    enum Access { ReadOnly, ReadWrite };

    /*!
     * An empty \a folder is the platform's configuration folder of this program. \a tell gets a
     * line for each thing that the user ought to know: what was put right, and for whom it waits.
     */
    PresetStore(FormatsProxy &formats, const QString &folder, const Tell &tell = {});

    /*!
     * Makes the folder where it is missing and keeps other processes from writing there as long as
     * this store lives; see FolderLock::lock(). open() does it for ReadWrite, without waiting,
     * where it hasn't been done.
     */
    [[nodiscard]] Result<> lock(int patience);
    /*!
     * Loads the catalogue and the user's files, after putting right what a crash left of them. A
     * file that is damaged without a good copy is a failure, or \a hopeless puts it aside. The
     * catalogue is loaded in any case. To be called once for a facade.
     */
    [[nodiscard]] Result<> open(Access access,
                                UserFile::Hopeless hopeless = UserFile::StaysInPlace);
    /*! Writes the user's files. A file that a failure names is as before. */
    [[nodiscard]] Result<> save();

    /*! The path of a file in the configuration folder. */
    [[nodiscard]] QString filePath(const QString &name) const;
    [[nodiscard]] FormatsProxy &formats() const { return m_formats; }
    /*! The catalogue's or the user's preset with this id, else the recently-used one. */
    [[nodiscard]] std::optional<FoundPreset> find(const QString &id) const;

private:
    Result<> openToRead() const;
    Result<> openToWrite(UserFile::Hopeless hopeless);
    Result<> tellNote(const Result<QString> &note) const;
    Result<> putRight(UserFile::Hopeless hopeless) const;
    Result<> copyIntoWorkFolder();

    FormatsProxy &m_formats;
    const QString m_folder;
    const Tell m_tell;
    const UserFile m_userPresets;
    const UserFile m_recently;
    FolderLock m_lock;
    std::optional<WorkFolder> m_work; //!< what the library reads and writes; none: read in place
    Result<> m_opened;                //!< a failure: nothing is saved
};

#endif
