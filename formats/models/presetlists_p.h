#ifndef FORMATS_MODELS_PRESETLISTS_P_H
#define FORMATS_MODELS_PRESETLISTS_P_H

#include "formats/models/keyindex_p.h"

#include <QMap>

class FormatDetailModel;
class QObject;

/*!
 * The preset lists of a catalogue by format title, and an index of all their preset ids.
 *
 * The lists are children of the owner. One that is removed is released with deleteLater().
 */
class PresetLists
{
    Q_DISABLE_COPY(PresetLists)

public:
    explicit PresetLists(QObject *owner);

    /*! The list under this title; null when there is none. */
    [[nodiscard]] FormatDetailModel *find(const QString &title) const;
    /*! The same, but a title without a list is entered, with null. */
    [[nodiscard]] FormatDetailModel *findOrEnter(const QString &title);

    /*! Puts an empty list under the title. A list that it replaces lives on outside the index. */
    void add(const QString &title);
    /*! False when the title has not been entered. */
    bool remove(const QString &title);
    void clear();

    [[nodiscard]] bool containId(const QString &id) const;
    /*! The titles of the lists that have this preset id, in no particular order. */
    [[nodiscard]] QList<QString> titlesOfId(const QString &id) const;

private:
    static void release(FormatDetailModel *presets);

    QObject *m_owner;
    QMap<QString, FormatDetailModel *> m_lists;
    KeyIndex<QString> m_titlesById; // kept by the lists themselves
};

#endif
