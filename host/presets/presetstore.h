#ifndef PRESETS_PRESETSTORE_H
#define PRESETS_PRESETSTORE_H

#include <QCoreApplication>
#include <QLockFile>
#include <QString>
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
 */
class PresetStore
{
    Q_DECLARE_TR_FUNCTIONS(PresetStore)
    Q_DISABLE_COPY(PresetStore)

public:
    enum Access { ReadOnly, ReadWrite };

    /*! An empty \a folder is the platform's configuration folder of this program. */
    explicit PresetStore(const QString &folder);

    /*!
     * Makes the folder where it is missing and keeps other programs from writing there as long as
     * this store lives; waits up to \a patience ms for one that does. Returns why that can't be, or
     * an empty text. open() does it where it is needed and hasn't been done.
     */
    [[nodiscard]] QString lock(int patience);
    /*!
     * Before open(): puts the last good copy in the place of each of the user's files that is
     * truncated or no JSON, and keeps the damaged one beside it. Returns a line for each.
     */
    [[nodiscard]] QStringList repair();
    /*!
     * Loads the catalogue and the user's files; for ReadWrite makes the folder where it is missing
     * and keeps other programs from writing there. Returns why that can't be, or an empty text;
     * the catalogue is loaded in any case. To be called once in a process.
     */
    [[nodiscard]] QString open(Access access);
    /*! Writes the user's files. Returns why that failed, or an empty text; then they are as before.
     */
    [[nodiscard]] QString save();

    /*! The path of a file in the configuration folder. */
    [[nodiscard]] QString filePath(const QString &name) const;
    [[nodiscard]] FormatsProxy &formats() const;
    /*! The catalogue's or the user's preset with this id, else the recently-used one. */
    [[nodiscard]] FoundPreset find(const QString &id) const;

private:
    /*! One line about files that exist and can't be read; empty when all is well. */
    QString damage() const;

    const QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
};

#endif
