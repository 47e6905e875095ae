#ifndef WINDOW_OUTPUTCHOICE_H
#define WINDOW_OUTPUTCHOICE_H

#include "host/window/windowsettings.h"

#include <QObject>

#include <optional>

/*!
 * Where results go, how they are called, and what happens to those whose names are in use: for one
 * page, or for both.
 */
class OutputChoice : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString folder READ folderText WRITE setFolder NOTIFY changed)
    Q_PROPERTY(QString folderMistake READ folderMistake NOTIFY changed)
    Q_PROPERTY(QString nameTemplate READ nameTemplate WRITE setNameTemplate NOTIFY changed)
    Q_PROPERTY(int ifInUse READ ifInUse WRITE setIfInUse NOTIFY changed)
    Q_PROPERTY(bool keepsTree READ keepsTree WRITE setKeepsTree NOTIFY changed)
    Q_PROPERTY(QString fields READ fields CONSTANT)

public:
    /*! Without a \a page those for both pages. \a settings must outlive this object. */
    explicit OutputChoice(WindowSettings &settings, std::optional<PageKind> page = std::nullopt,
                          QObject *parent = nullptr);

    /*! Empty: each result goes beside its source. */
    QString folder() const { return m_settings.folder(m_page); }
    /*! The same, for display. */
    QString folderText() const;
    void setFolder(const QString &folder) { m_settings.setFolder(m_page, folder); }
    /*! What is wrong with the folder, for the user; empty if nothing is. */
    QString folderMistake() const;
    QString nameTemplate() const { return m_settings.nameTemplate(m_page); }
    /*! Does nothing if there is a mistake in it. */
    void setNameTemplate(const QString &nameTemplate);
    /*! A WindowSettings::IfInUse. */
    int ifInUse() const { return int(m_settings.ifInUse(m_page)); }
    void setIfInUse(int ifInUse);
    bool keepsTree() const { return m_settings.keepsTree(m_page); }
    void setKeepsTree(bool keepsTree) { m_settings.setKeepsTree(m_page, keepsTree); }
    /*! Those that a name can have, in braces. */
    QString fields() const;

    /*! What is wrong with a template, for the user; empty if nothing is. */
    Q_INVOKABLE QString mistakeIn(const QString &nameTemplate) const;

Q_SIGNALS:
    void changed();

private:
    WindowSettings &m_settings;
    const std::optional<PageKind> m_page;
};

#endif
