#ifndef PRESETS_PRESETNOTES_H
#define PRESETS_PRESETNOTES_H

#include "host/presets/presetsettings.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <functional>

class FormatDetailModel;
class FormatDetailModelData;

/*! What is known of a user's preset besides what the library keeps. */
struct PresetNote
{
    QString base;            //!< id of the catalogue's preset that it was made from; may be gone
    PresetValues baseValues; //!< those of the base when the preset was made
    QString text;            //!< the user's own

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] static PresetNote fromJson(const QJsonObject &json);
    /*! The note of a new preset. */
    [[nodiscard]] static PresetNote about(const FormatDetailModelData &base);
};

/*! The notes on the user's presets, by id. */
class PresetNotes
{
public:
    [[nodiscard]] PresetNote of(const QString &id) const { return m_notes.value(id); }
    [[nodiscard]] bool has(const QString &id) const { return m_notes.contains(id); }
    void set(const QString &id, const PresetNote &note) { m_notes.insert(id, note); }
    void remove(const QString &id) { m_notes.remove(id); }
    /*! Removes the notes on all others. */
    void keepOnly(const QStringList &ids);

    /*! Gives each base the id that \a idNow returns for it. */
    void renameBases(const std::function<QString(const QString &)> &idNow);

    /*! The users' texts that aren't empty, by id. */
    [[nodiscard]] QHash<QString, QString> texts() const;
    /*! A list of objects, by id; of entries that aren't, nothing is taken. */
    [[nodiscard]] QJsonArray toJson() const;
    void read(const QJsonArray &entries);

private:
    QHash<QString, PresetNote> m_notes;
};

/*! The catalogue's preset in \a list that \a own was probably made from: the one with the same
 *  choices, and then with the fewest other values. Its id is empty if there is none. */
[[nodiscard]] FormatDetailModelData likelyBase(const FormatDetailModelData &own,
                                               const FormatDetailModel &list);

#endif
