#ifndef PRESETS_USERFILE_H
#define PRESETS_USERFILE_H

#include "host/error.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonArray>
#include <QString>

/*!
 * One of the user's preset files: a JSON list, whole at every moment, with its last good copy
 * beside it. Everything but reading is for the one process that has the folder's lock.
 */
class UserFile
{
    Q_DECLARE_TR_FUNCTIONS(UserFile)

public:
    /*! What becomes of a file that is damaged and has no good copy. */
    enum Hopeless { StaysInPlace, IsPutAside };

    struct Content
    {
        enum State {
            Missing,
            Good,
            Damaged //!< empty, cut or no list: a crash or another program left it
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
    /*! Fails for what mustn't be read: a folder, a pipe, a file that is too large. */
    [[nodiscard]] Result<Content> content() const;
    /*! Fails where the file can't be used as it is, and names its good copy if there is one. */
    [[nodiscard]] Result<> check() const;

    /*!
     * Puts the last good copy in the place of a file that is missing or damaged, which is kept, and
     * removes what else a crash left. Gives one line that says what was done, or an empty text.
     */
    [[nodiscard]] Result<QString> recover(Hopeless hopeless) const;
    /*!
     * Puts \a json in the file's place in one step, and a copy beside it; what another program has
     * written there since recover() is kept too. A failure leaves the file as it was.
     */
    [[nodiscard]] Result<> replace(const QByteArray &json) const;
    /*!
     * Adds records that no reader takes to "formatCache.json.unusable", but none that it has
     * already. Gives one line that says so, or an empty text.
     */
    [[nodiscard]] Result<QString> keepUnusable(const QJsonArray &records) const;

private:
    void keepCopy() const;

    QString m_path;
};

/*! The parts of a preset file that the library drops: of formats those with a "group". */
[[nodiscard]] QJsonArray unusablePresets(const QJsonArray &presets);
[[nodiscard]] QJsonArray unusableFormats(const QJsonArray &formats);

#endif
