#ifndef WINDOW_TASKFORMATS_H
#define WINDOW_TASKFORMATS_H

#include "host/convert/outputsettings.h"
#include "host/window/tasklist.h"
#include "host/window/windowsettings.h"

class Presets;

/*!
 * The presets of a page: its own one, which its tasks follow, and those chosen for single tasks.
 * The format of a running or converted task stays as it is, whatever happens to the presets.
 */
class TaskFormats : public QObject
{
    Q_OBJECT

public:
    TaskFormats(PageKind page, WindowSettings &settings, Presets &presets, TaskList &tasks);

    [[nodiscard]] QString globalCaption() const;
    [[nodiscard]] QString globalIcon() const;
    /*! URL; empty where there is no such preset any more. */
    [[nodiscard]] QString iconOf(const QString &id) const;

    /*! Gives the task its format, or another one that suits what is now known of its file. */
    void assign(int taskId) { assign(taskId, followed()); }
    /*! Sets the preset of the page and of all tasks that follow it. */
    void chooseGlobal(const QString &id);
    /*! Sets the preset of these tasks, except running ones. Converted ones become ready. */
    void choose(const QVector<int> &taskIds, const QString &id);
    /*! Lets the task follow the page again, unless it is running. */
    void follow(int taskId);

    /*! The id of the preset that the task is converted with. */
    [[nodiscard]] QString presetId(const Task &task) const;
    /*! The converted tasks that follow the page, whose format has changed since. */
    [[nodiscard]] QVector<int> outdated() const;
    /*! The settings of the task's conversion. */
    [[nodiscard]] OutputSettings outputSettings(const Task &task) const;

Q_SIGNALS:
    void globalChanged();

private:
    /*! What tasks get that follow the page: a song can't become a video, nor a silent film a
     *  song. */
    struct Followed
    {
        QString usual;
        QString ofSongs;
        QString ofSilentFilms;
    };

    [[nodiscard]] QString globalId() const { return m_settings.globalId(m_page); }
    [[nodiscard]] bool hasVideo(const QString &id) const;
    [[nodiscard]] Followed followed() const;
    [[nodiscard]] QString formatOf(const Task &task, const Followed &followed) const;
    void assign(int taskId, const Followed &followed);
    void setOwn(int taskId, const QStringList &ids);
    void noteUse(const QString &id);
    void followPresets();

    const PageKind m_page;
    WindowSettings &m_settings;
    Presets &m_presets;
    TaskList &m_tasks;
};

#endif
