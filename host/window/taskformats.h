#ifndef WINDOW_TASKFORMATS_H
#define WINDOW_TASKFORMATS_H

#include "host/convert/outputsettings.h"
#include "host/window/tasklist.h"
#include "host/window/windowsettings.h"

class Presets;

/*! The presets of a page: its default one and those of its tasks. */
class TaskFormats : public QObject
{
    Q_OBJECT

public:
    TaskFormats(PageKind page, WindowSettings &settings, Presets &presets, TaskList &tasks);

    [[nodiscard]] QString globalCaption() const;
    [[nodiscard]] QString globalIcon() const;

    /*! Sets a new task to the page's preset. */
    void assignGlobal(int taskId);
    /*! Sets the preset of the page and of all tasks that aren't queued. */
    void chooseGlobal(const QString &id);
    /*! Sets the preset of one task, unless it is queued. */
    void choose(int taskId, const QString &id);

    /*! The settings of the task's conversion. */
    [[nodiscard]] OutputSettings outputSettings(const Task &task) const;

Q_SIGNALS:
    void globalChanged();

private:
    QString globalId() const { return m_settings.globalId(m_page); }
    void assign(int taskId, const QString &id);
    void followPresets();

    const PageKind m_page;
    WindowSettings &m_settings;
    Presets &m_presets;
    TaskList &m_tasks;
};

#endif
