#ifndef PRESETS_PRESETHISTORY_H
#define PRESETS_PRESETHISTORY_H

#include "host/presets/ownpresets.h"

#include <QDateTime>
#include <QJsonArray>
#include <QVector>

#include <optional>

/*! What was done to the user's presets, the last first, so that it can be undone. */
class PresetHistory
{
    Q_DECLARE_TR_FUNCTIONS(PresetHistory)

public:
    static constexpr int mostSteps = 50;
    static constexpr int mostChanges = 2000; //!< of all steps; the last one has any number

    struct Change
    {
        QString id;
        std::optional<OwnPreset> before; //!< none: it was added
        std::optional<OwnPreset> after;  //!< none: it was deleted

        /*! "deleted "My own" (1001)" */
        [[nodiscard]] QString text() const;
    };
    struct Step
    {
        QDateTime when;
        QVector<Change> changes;

        /*! One line. */
        [[nodiscard]] QString text() const;
    };

    [[nodiscard]] const QVector<Step> &steps() const { return m_steps; }

    /*! Adds a step for what differs between the two; the oldest beyond mostSteps and
     *  mostChanges are dropped. */
    void note(const QMap<QString, OwnPreset> &before, const QMap<QString, OwnPreset> &after,
              const QDateTime &when);
    /*! Undoes the last step in \a presets, and returns it. A step that never came to be, as saving
     *  failed, is dropped. Fails where there is none, or where a preset isn't as the step left it,
     *  and then changes nothing. */
    [[nodiscard]] Result<Step> undo(OwnPresets &presets);

    [[nodiscard]] QJsonArray toJson() const;
    /*! Entries of another form are left out. */
    void read(const QJsonArray &entries);

private:
    void dropOldest();

    QVector<Step> m_steps;
};

#endif
