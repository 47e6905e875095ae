#ifndef WINDOW_DIALOGS_H
#define WINDOW_DIALOGS_H

#include "host/window/dialogframe.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class PageOutput;

/*! The window's dialogs, one at a time. */
class Dialogs : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /*! The dialogs open in front of \a window. Both must outlive them. */
    void setUp(QQmlEngine *engine, QWindow *window);
    /*! The open dialog; null if there is none. */
    [[nodiscard]] DialogFrame *current() const { return m_current; }

    /*! Opens the dialog of a QML file; \a info is its input. */
    DialogFrame *open(const QString &content, const QVariantMap &info = {});
    /*! Shows info["showText"]. */
    void showMessage(const QVariantMap &info);
    void showLog(const QString &text);
    /*! Asks what happens to results whose names are in use, and gives \a output the answer. */
    void askAboutNames(PageOutput *output, const QStringList &names);
    Q_INVOKABLE void showPreferences();
    Q_INVOKABLE void showAbout();
    /*! Shows what PresetExchange::previewed() says, and imports it if the user wants that. */
    void showImport(const QVariantMap &preview);
    /*! Shows how a preset of the user's differs from its base, and takes it back. */
    Q_INVOKABLE void showPresetChanges(const QString &id);

private:
    QQmlEngine *m_engine = nullptr;
    QWindow *m_window = nullptr;
    QPointer<DialogFrame> m_current;
};

#endif
