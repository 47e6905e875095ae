#ifndef WINDOW_TASKTRACKS_H
#define WINDOW_TASKTRACKS_H

#include "host/convert/outputsettings.h"
#include "host/window/tasklist.h"

#include <QVariantList>

#include <functional>

/*! A track of a task's source, and what becomes of it. */
struct TrackLine
{
    Q_GADGET
    Q_PROPERTY(int number MEMBER number)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool isKept MEMBER isKept)
    Q_PROPERTY(bool isDefault MEMBER isDefault)
    Q_PROPERTY(bool isBurned MEMBER isBurned)
    Q_PROPERTY(QString remark MEMBER remark)

public:
    int number = 0; //!< among the tracks of its kind, from 1
    QString text;   //!< "Deutsch  ·  ac3, 5.1  ·  Commentary"
    bool isKept = false;
    bool isDefault = false;
    bool isBurned = false;
    QString remark; //!< that the result can't have it as chosen; empty if it can
};

Q_DECLARE_METATYPE(TrackLine)

/*! The tracks of a page's tasks: which are kept, played by default, and drawn onto the picture. */
class TaskTracks : public QObject
{
    Q_OBJECT

public:
    enum Kind { Audio, Subtitles };
    Q_ENUM(Kind)
    using SettingsMaker = std::function<OutputSettings(const Task &task)>;

    /*! \a settingsOf gives those of a task's conversion. */
    TaskTracks(TaskList &tasks, const SettingsMaker &settingsOf);

    /*! The tracks of a kind as TrackLine values; none while the task's file is unread. Bindings
     *  name all that it depends on. */
    Q_INVOKABLE QVariantList lines(int taskId, TaskTracks::Kind kind, const QString &details,
                                   const QString &format, const QString &tracks) const;

    Q_INVOKABLE void setOpen(int taskId, bool isOpen) { m_tasks.setOpen(taskId, isOpen); }

    // Running tasks stay as they are, and ended ones become ready again.

    Q_INVOKABLE void keep(int taskId, TaskTracks::Kind kind, int number, bool isKept);
    /*! Also keeps the track; 0: none is the default one. */
    Q_INVOKABLE void setDefault(int taskId, TaskTracks::Kind kind, int number);
    /*! Draws these subtitles instead of keeping them as a track; 0: none, and those that were to be
     *  drawn are kept. */
    Q_INVOKABLE void burn(int taskId, int number);

private:
    void change(int taskId,
                const std::function<void(ChosenTracks &chosen, const MediaFacts &facts)> &change);

    TaskList &m_tasks;
    const SettingsMaker m_settingsOf;
};

#endif
