#ifndef PRESETS_USERFILE_H
#define PRESETS_USERFILE_H

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
            Damaged, //!< empty, cut or no list: a crash or another program left it
            Refused  //!< not for reading: see the reason
        };

        State state = Missing;
        QByteArray json = {};
        QString reason = {}; //!< Refused: one line that says why, and how to fix it
    };

    struct Recovery
    {
        QString note;  //!< one line that says what was put in the file's place, or nothing
        QString error; //!< why the file can't be used, or nothing
    };

    /*! \a path is absolute; the file need not exist. */
    explicit UserFile(const QString &path)
        : m_path(path)
    {}

    [[nodiscard]] const QString &path() const { return m_path; }
    /*! "formatCache.json.bak" */
    [[nodiscard]] QString copyPath() const { return m_path + QStringLiteral(".bak"); }
    [[nodiscard]] Content content() const;
    /*! Why the file can't be used as it is, and which good copy there is; empty when it can. */
    [[nodiscard]] QString complaint() const;

    /*! Puts the last good copy in the place of a file that is missing or damaged, which is kept,
     * and removes what else a crash left. */
    [[nodiscard]] Recovery recover(Hopeless hopeless) const;
    /*! Puts \a json in the file's place in one step, and a copy beside it; what another program has
     *  written there since recover() is kept too. Returns why that failed, or an empty text; then
     *  the file is as before. */
    [[nodiscard]] QString replace(const QByteArray &json) const;
    /*! Adds records that no reader takes to "formatCache.json.unusable"; those that it has already
     *  aren't repeated. Returns a line for the user: a note, or an error where they can't be kept.
     */
    [[nodiscard]] Recovery keepUnusable(const QJsonArray &records) const;

private:
    void keepCopy() const;

    QString m_path;
};

/*! The parts of a preset file that the library drops: of formats those with a "group". */
[[nodiscard]] QJsonArray unusablePresets(const QJsonArray &presets);
[[nodiscard]] QJsonArray unusableFormats(const QJsonArray &formats);

#endif
