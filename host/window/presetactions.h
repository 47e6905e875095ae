#ifndef WINDOW_PRESETACTIONS_H
#define WINDOW_PRESETACTIONS_H

#include "host/presets/presetstore.h"

#include <QDateTime>
#include <QObject>
#include <QVariantList>

#include <functional>

class Page;
class Presets;

/*! What a user does with presets in the window. All of it is saved at once, and what changes a
 *  preset can be undone. */
class PresetActions : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int version READ version NOTIFY changed)

public:
    /*! Whether a running or waiting conversion uses a preset. */
    using IsUsed = std::function<bool(const QString &id)>;

    PresetActions(PresetStore &store, Presets &presets, const IsUsed &isUsed,
                  QObject *parent = nullptr);

    /*! Rises when what the functions below tell may be something else. */
    int version() const { return m_version; }

    Q_INVOKABLE void setFavorite(const QString &id, bool isFavorite);
    /*! Whether the preset is taken for files of this kind, one of sourceKindNamed(), where none
     *  is named. */
    Q_INVOKABLE bool isDefault(const QString &kind, const QString &id) const;
    Q_INVOKABLE void setDefault(const QString &kind, const QString &id, bool isDefault);

    // These take a preset of the user's; others stay as they are.

    Q_INVOKABLE QString title(const QString &id) const;
    /*! Blank titles change nothing. */
    Q_INVOKABLE void rename(const QString &id, const QString &title);
    Q_INVOKABLE QString note(const QString &id) const;
    Q_INVOKABLE void setNote(const QString &id, const QString &text);
    /*! Deletes the preset, unless it is in use. */
    Q_INVOKABLE void remove(const QString &id);
    /*! Moves the preset by one place among the user's of its format. */
    Q_INVOKABLE void move(const QString &id, int step);
    /*! Moves the preset above or below another one of its format. */
    Q_INVOKABLE void moveBeside(const QString &id, const QString &other, bool isBelow);
    /*! Makes a copy of any preset that is the user's, and returns its id; empty if there is no such
     *  preset. */
    Q_INVOKABLE QString duplicate(const QString &id);

    /*! The format and title of the preset's base; empty if nothing is known of it. */
    Q_INVOKABLE QString baseCaption(const QString &id);
    /*! What differs from the base, each with "name", "label", "base" and "own". */
    Q_INVOKABLE QVariantList differences(const QString &id);
    /*! Takes the base's values of these settings again. */
    Q_INVOKABLE void resetToBase(const QString &id, const QStringList &names);

    /*! The id of the task whose file presets are tried with: the first selected one that has been
     *  read or else the first one of all; -1 if there is none. */
    Q_INVOKABLE int sampleTask(Page *page) const;

    /*! Undoes what was done last: to the presets, or to the page's list. */
    Q_INVOKABLE void undoLast(Page *page);
    /*! Undoes the last step of the presets' history. */
    void undo();

    /*! One line for what a step has done; empty for one that only adds presets. */
    [[nodiscard]] static QString textOf(const PresetHistory::Step &step);

Q_SIGNALS:
    void changed();
    /*! One line for the user about what has been done. */
    void told(const QString &line);
    /*! One line for the user about what can't be done. */
    void refused(const QString &line);

private:
    [[nodiscard]] std::optional<FoundPreset> ownPreset(const QString &id) const;

    PresetStore &m_store;
    Presets &m_presets;
    const IsUsed m_isUsed;
    int m_version = 0;
};

#endif
