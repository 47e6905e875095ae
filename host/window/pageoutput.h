#ifndef WINDOW_PAGEOUTPUT_H
#define WINDOW_PAGEOUTPUT_H

#include "host/convert/outputname.h"
#include "host/window/tasklist.h"
#include "host/window/windowsettings.h"

#include <QObject>
#include <QSet>
#include <QVector>

#include <memory>

class TaskFormats;

/*!
 * Where a page's results go, how they are called, and what happens to those whose names are in use.
 * Without a folder each result goes beside its source.
 */
class PageOutput : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString nameTemplate READ nameTemplate WRITE setNameTemplate NOTIFY changed)
    Q_PROPERTY(int ifInUse READ ifInUse WRITE setIfInUse NOTIFY changed)
    Q_PROPERTY(bool keepsTree READ keepsTree WRITE setKeepsTree NOTIFY changed)
    Q_PROPERTY(QString fields READ fields CONSTANT)

public:
    PageOutput(PageKind page, WindowSettings &settings, const TaskList &tasks,
               const TaskFormats &formats);

    QString nameTemplate() const { return m_settings.nameTemplate(m_page); }
    /*! Does nothing if there is a mistake in it. */
    void setNameTemplate(const QString &nameTemplate);
    /*! An WindowSettings::IfInUse. */
    int ifInUse() const { return int(m_settings.ifInUse(m_page)); }
    void setIfInUse(int ifInUse);
    bool keepsTree() const { return m_settings.keepsTree(m_page); }
    void setKeepsTree(bool keepsTree);
    /*! Those that a name can have, in braces. */
    QString fields() const;

    /*! What is wrong with a template, for the user; empty if nothing is. */
    Q_INVOKABLE QString mistakeIn(const QString &nameTemplate) const;
    /*! The name that the first task's result, or that of an example, would get from a valid
     *  template. Fields that only the conversion can fill stay. */
    Q_INVOKABLE QString preview(const QString &nameTemplate) const;

    /*!
     * Prepares a run of these tasks. False if the user is asked first, as names are in use; the
     * answer starts the run.
     */
    [[nodiscard]] bool prepare(const QVector<int> &taskIds);
    /*! The user's answer to asked(), an WindowSettings::IfInUse: for the tasks that were asked
     * about. */
    Q_INVOKABLE void answer(int ifInUse);
    /*! Of a task's result, in the run that was prepared. */
    [[nodiscard]] OutputTarget targetFor(const Task &task) const;

Q_SIGNALS:
    void changed();
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

    const PageKind m_page;
    WindowSettings &m_settings;
    const TaskList &m_tasks;
    const TaskFormats &m_formats;
    QVector<int> m_asked;
    QHash<int, WindowSettings::IfInUse> m_ifInUse; // of the prepared tasks
    std::shared_ptr<KeptFiles> m_kept;             // of the latest run
};

#endif
