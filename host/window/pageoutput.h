#ifndef WINDOW_PAGEOUTPUT_H
#define WINDOW_PAGEOUTPUT_H

#include "host/convert/outputname.h"
#include "host/window/outputchoice.h"
#include "host/window/tasklist.h"

#include <QSet>
#include <QVector>

#include <memory>

class TaskFormats;

/*! The output settings of a page, and what they make of its tasks. */
class PageOutput : public OutputChoice
{
    Q_OBJECT

public:
    PageOutput(PageKind page, WindowSettings &settings, const TaskList &tasks,
               const TaskFormats &formats);

    /*! The name that the first task's result, or that of an example, would get from a valid
     *  template. Fields that only the conversion can fill stay. */
    Q_INVOKABLE QString preview(const QString &nameTemplate) const;

    /*!
     * Prepares a run of these tasks. False if the user is asked first, as names are in use; the
     * answer starts the run.
     */
    [[nodiscard]] bool prepare(const QVector<int> &taskIds);
    /*! The user's answer to asked(), a WindowSettings::IfInUse: for the tasks that were asked
     * about. */
    Q_INVOKABLE void answer(int ifInUse);
    /*! Of a task's result, in the run that was prepared. */
    [[nodiscard]] OutputTarget targetFor(const Task &task) const;

Q_SIGNALS:
    /*! The results' \a names are in use; call answer(), or start nothing. */
    void asked(const QStringList &names);
    /*! The user has said what happens to names in use: these tasks are prepared. */
    void answered(const QVector<int> &taskIds);

private:
    [[nodiscard]] QString folderFor(const Task &task) const;
    [[nodiscard]] OutputTarget targetOf(const Task &task, WindowSettings::IfInUse ifInUse) const;
    /*! The names of the tasks' results that exist; a name that isn't known yet doesn't. */
    [[nodiscard]] QStringList namesInUse(const QSet<int> &taskIds) const;
    void begin(const QSet<int> &taskIds, WindowSettings::IfInUse ifInUse);

    const TaskList &m_tasks;
    const TaskFormats &m_formats;
    QVector<int> m_asked;
    QHash<int, WindowSettings::IfInUse> m_ifInUse; // of the prepared tasks
    std::shared_ptr<KeptFiles> m_kept;             // of the latest run
};

#endif
