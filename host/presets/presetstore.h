#ifndef PRESETS_PRESETSTORE_H
#define PRESETS_PRESETSTORE_H

#include "host/files/workfolder.h"
#include "host/presets/folderlock.h"
#include "host/presets/userfile.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>

class FormatsProxy;

/*! A preset with the place where it was found. */
struct FoundPreset
{
    QString tag; //!< "recently" for one that only the recently-used list still has
    QString className;
    QVariantMap map; //!< as FormatDetailModelData::toVarMap() makes it; empty: not found
    bool isUserDefined = false;
    bool allAudioTracks = false;
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
    enum Access { ReadOnly, ReadWrite };

    /*! What open() has to tell. */
    struct Opening
    {
        QStringList notes; //!< a line for each thing that was put right
        QString error;     //!< why the user's files can't be used, or an empty text
    };

    /*! An empty \a folder is the platform's configuration folder of this program. */
    explicit PresetStore(const QString &folder);

    /*!
     * Makes the folder where it is missing and keeps other processes from writing there as long as
     * this store lives; see FolderLock::lock(). open() does it for ReadWrite, without waiting,
     * where it hasn't been done.
     */
    [[nodiscard]] QString lock(int patience, const FolderLock::Tell &tellWaiting = {});
    /*!
     * Loads the catalogue and the user's files, after putting right what a crash left of them. A
     * file that is damaged without a good copy is an error, or \a hopeless puts it aside. The
     * catalogue is loaded in any case. To be called once in a process.
     */
    [[nodiscard]] Opening open(Access access, UserFile::Hopeless hopeless = UserFile::StaysInPlace);
    /*! Writes the user's files. Returns why that failed, or an empty text; a file that it names is
     *  as before. */
    [[nodiscard]] QString save();

    /*! The path of a file in the configuration folder. */
    [[nodiscard]] QString filePath(const QString &name) const;
    [[nodiscard]] FormatsProxy &formats() const;
    /*! The catalogue's or the user's preset with this id, else the recently-used one. */
    [[nodiscard]] FoundPreset find(const QString &id) const;

private:
    Opening openToRead() const;
    Opening openToWrite(UserFile::Hopeless hopeless);
    Opening putRight(UserFile::Hopeless hopeless) const;
    QString copyIntoWorkFolder();
    QString workPath(const UserFile &file) const;

    const QString m_folder;
    const UserFile m_userPresets;
    const UserFile m_recently;
    FolderLock m_lock;
    std::unique_ptr<WorkFolder>
        m_work;        //!< what the library reads and writes; null: nothing to save
    QString m_refusal; //!< why nothing is saved
};

#endif
