#ifndef PRESETS_USERFILE_H
#define PRESETS_USERFILE_H

#include "host/error.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonArray>
#include <QString>

/*!
 * One of the user's preset files: a JSON array that is complete at every moment, with a backup
 * beside it. Only the process that holds the folder's lock may do more than read.
 */
class UserFile
{
    Q_DECLARE_TR_FUNCTIONS(UserFile)

public:
    /*! What to do with a damaged file that has no good backup. */
    enum Unrecoverable { LeaveInPlace, MoveAside };

    struct Content
    {
        enum State {
            Missing,
            Good,
            Damaged //!< empty, truncated or not a JSON array
        };

        State state = Missing;
        QByteArray json = {};
    };

    /*! \a path is absolute; the file need not exist. */
    explicit UserFile(const QString &path)
        : m_path(path)
    {}

    [[nodiscard]] const QString &path() const { return m_path; }
    /*! "formatCache.json.bak" */
    [[nodiscard]] QString copyPath() const { return m_path + QStringLiteral(".bak"); }
    /*! Fails for anything that must not be read: a folder, a pipe, a file that is too large. */
    [[nodiscard]] Result<Content> content() const;
    /*! Fails if the file can't be used as it is; the error names the good backup, if any. */
    [[nodiscard]] Result<> check() const;

    /*!
     * Replaces a missing or damaged file by its good backup; the damaged file is kept under another
     * name. Returns one line that says what was done, or an empty text.
     */
    [[nodiscard]] Result<QString> recover(Unrecoverable unrecoverable) const;
    /*!
     * Replaces the file by \a json in one step, and updates the backup. What another program wrote
     * to the file since recover() is kept under another name. On failure the file is unchanged.
     */
    [[nodiscard]] Result<> replace(const QByteArray &json) const;
    /*!
     * Adds records that the library would drop to "formatCache.json.unusable", unless it already
     * contains them. Returns one line that says so, or an empty text.
     */
    [[nodiscard]] Result<QString> keepUnusable(const QJsonArray &records) const;

private:
    void keepCopy() const;

    QString m_path;
};

/*! The records of a preset file that the library would drop. */
[[nodiscard]] QJsonArray unusablePresets(const QJsonArray &presets);
[[nodiscard]] QJsonArray unusableFormats(const QJsonArray &formats);

#endif
