#ifndef FORMATS_MODELS_PRESETLISTS_P_H
#define FORMATS_MODELS_PRESETLISTS_P_H

#include "formats/models/keyindex_p.h"

#include <QMap>

class FormatDetailModel;
class QObject;

/*!
 * The preset lists of a catalogue by format title, with an index of all their preset ids.
 *
 * The lists are children of the owner. Removed ones are released with deleteLater().
 */
class PresetLists
{
    Q_DISABLE_COPY(PresetLists)

public:
    explicit PresetLists(QObject *owner);

    /*! The list under this title; null if there is none. */
    [[nodiscard]] FormatDetailModel *find(const QString &title) const;
    /*! Like find(), but inserts null for a title without a list. */
    [[nodiscard]] FormatDetailModel *findOrInsertNull(const QString &title);

    /*! Adds an empty list. A list that it replaces stays alive, but leaves the index. */
    void add(const QString &title);
    /*! Returns false if the title is unknown. */
    bool remove(const QString &title);
    void clear();

    [[nodiscard]] bool containId(const QString &id) const;
    /*! The titles of the lists that have this preset id, in no particular order. */
    [[nodiscard]] QList<QString> titlesOfId(const QString &id) const;

private:
    static void release(FormatDetailModel *presets);

    QObject *m_owner;
    QMap<QString, FormatDetailModel *> m_lists;
    KeyIndex<QString> m_titlesById; // maintained by the lists themselves
};

#endif
