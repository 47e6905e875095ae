#ifndef WINDOW_PRESETS_H
#define WINDOW_PRESETS_H

#include "host/presets/favorites.h"
#include "host/presets/presetstore.h"

#include <QObject>
#include <QTimer>

class Fitness;
class QAbstractItemModel;

/*! Presets for the window's pages. Saves each change that the user makes. */
class Presets : public QObject
{
    Q_OBJECT

public:
    /*! \a store is open and outlives this object. */
    explicit Presets(PresetStore &store, QObject *parent = nullptr);

    [[nodiscard]] std::optional<FoundPreset> find(const QString &id) const
    {
        return m_store.find(id);
    }
    /*! What Fitness::nearestTo() finds; for a preset that is gone, one of those that suit at all.
     */
    [[nodiscard]] QString nearestTo(const std::optional<FoundPreset> &preset,
                                    const Fitness &fitness, const QStringList &standIns) const;
    /*! The first preset that exists of \a id, \a standIn, the default preset and the catalogue's
     *  first one, by the id that it has now; empty if there is none. */
    [[nodiscard]] QString usable(const QString &id, const QString &standIn) const;
    /*! The preset's format and translated title; empty for an unknown id. */
    [[nodiscard]] QString caption(const QString &id) const;
    /*! A preset's title in the user's language. */
    [[nodiscard]] static QString shownTitle(const QString &title);
    /*! URL of its format's icon; empty if there is none. */
    [[nodiscard]] QString icon(const QString &id) const;

    /*! Puts the preset at the top of the recently used list. */
    void noteUse(const QString &id);

    [[nodiscard]] const Favorites &favorites() const { return m_favorites; }
    void setFavorite(const QString &id, bool isFavorite);
    /*! The preset for files of this kind where none is named; an empty \a id chooses none. */
    void setDefault(SourceKind kind, const QString &id);

    /*! Saves what changes no preset's row, such as a note. */
    void saveSoon() { m_change.start(); }
    /*! Saves unsaved changes, including those whose save failed. */
    void flush();

Q_SIGNALS:
    /*! The user's presets or the recently used list changed. */
    void changed();
    void favoritesChanged();
    /*! Presets of the user's have been changed, which can be undone. */
    void stepMade(const PresetHistory::Step &step);
    /*! One line that says why a change isn't saved. */
    void saveFailed(const QString &reason);

private:
    void save();
    void saveFavorites();
    void watch(const QAbstractItemModel *presets);

    PresetStore &m_store;
    Favorites m_favorites;
    QTimer m_change;
    bool m_isUnsaved = false; //!< the last save failed
};

#endif
