#ifndef WINDOW_PRESETS_H
#define WINDOW_PRESETS_H

#include "host/presets/presetstore.h"

#include <QObject>
#include <QTimer>

class QAbstractItemModel;

/*! The presets as the window's pages use them; saves every change of the user's as it happens. */
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
    /*! The first of these that there is: \a id, \a standIn, the default preset, the catalogue's
     *  first; empty when there is none. */
    [[nodiscard]] QString usable(const QString &id, const QString &standIn) const;
    /*! The preset's format and translated title; empty for an unknown id. */
    [[nodiscard]] QString caption(const QString &id) const;
    /*! URL of its format's icon; empty where there is none. */
    [[nodiscard]] QString icon(const QString &id) const;

    /*! Puts the preset at the head of the recently used ones. */
    void noteUse(const QString &id);

    /*! Writes what hasn't been written yet, also where that has failed before. */
    void flush();

Q_SIGNALS:
    /*! The user's presets or the recently used ones have changed. */
    void changed();
    /*! One line that says why a change isn't saved. */
    void saveFailed(const QString &reason);

private:
    void save();
    void watch(const QAbstractItemModel *presets);

    PresetStore &m_store;
    QTimer m_change;
    bool m_isUnsaved = false; //!< the last save failed
};

#endif
