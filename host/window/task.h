#ifndef WINDOW_TASK_H
#define WINDOW_TASK_H

#include "host/convert/chosentracks.h"
#include "host/convert/progress.h"
#include "host/media/mediafacts.h"

#include <QObject>
#include <QStringList>

/*! One file of a page's list. */
struct Task
{
    Q_GADGET

public:
    enum State {
        Reading,
        Ready,
        Waiting,
        Running,
        Converted,
        Failed,
        Cancelled,
        Interrupted //!< the program ended while it ran
    };
    Q_ENUM(State)
    static constexpr int stateCount = Interrupted + 1;
    /*! What a list can be sorted by. */
    enum SortKey { ByName, BySize, ByDuration, ByState };
    Q_ENUM(SortKey)

    int id = 0; //!< assigned by TaskList::add(), unique in the process
    QString source;
    QString subfolder; //!< of the source, below the folder that was added; empty: directly in it
    MediaFacts facts;
    bool isRead = false; //!< the facts are there, or the file can't be read
    QString thumbnail;   //!< URL; empty until there is one
    /*! Ids of the presets chosen for this file, the last choice last; none: it follows the page. */
    QStringList ownFormats;
    QString format; //!< id of the preset
    QString formatCaption;
    QString formatIcon; //!< URL
    State state = Reading;
    Progress progress;
    QString error;          //!< Failed: one line that says why
    QString target;         //!< Converted: the new file
    qint64 targetBytes = 0; //!< Converted: its size; 0: unknown
    QString note;           //!< Converted: what the new file lacks; empty if nothing
    double start = 0;
    double end = 0; //!< seconds; 0: the source's end
    ChosenTracks tracks;
    bool isSelected = false;
    bool isOpen = false; //!< its row shows the tracks

    [[nodiscard]] bool isQueued() const { return state == Waiting || state == Running; }
    [[nodiscard]] bool hasEnded() const { return state >= Converted; }
    /*! Whether the format stays, whatever happens to the presets. */
    [[nodiscard]] bool isSettled() const { return state == Running || state == Converted; }

    /*! Whether it comes before the other one in a list that is sorted by \a key. */
    [[nodiscard]] bool isBefore(const Task &other, SortKey key) const;
};

#endif
