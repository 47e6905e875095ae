#ifndef WINDOW_FILECHOOSER_H
#define WINDOW_FILECHOOSER_H

#include "host/window/page.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

#include <functional>

class QFileDialog;

/*! The system's dialogs for files and folders. */
class FileChooser : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /*! The dialogs open in front of \a window, or of its open dialog; \a settings keep the folder
     * of the last files. Both must outlive this object's dialogs. */
    void setUp(QWindow *window, WindowSettings *settings);

    /*! Lets the user add files to the page's list. Returns at once. */
    Q_INVOKABLE void chooseFiles(Page *page);
    /*! Lets the user add a folder's media files to the page's list. Returns at once. */
    Q_INVOKABLE void chooseMediaFolder(Page *page);
    /*! Lets the user choose the output folder. Returns at once. */
    Q_INVOKABLE void chooseFolder(OutputChoice *output);

    /*! Lets the user choose files of presets, of which \a take gets the paths. Returns at once. */
    void choosePresetFiles(QObject *receiver, const std::function<void(const QStringList &)> &take);
    /*! Lets the user choose a file to write presets to, of which \a take gets the path. Returns at
     *  once. */
    void choosePresetTarget(const QString &name, QObject *receiver,
                            const std::function<void(const QString &)> &take);

private:
    /*! \a take gets the chosen folder, as open() says. */
    void openForFolder(const QString &title, const QString &start, QObject *receiver,
                       const std::function<void(const QString &)> &take);
    /*! \a take gets the paths, unless the user cancels or \a receiver is destroyed. */
    void open(QFileDialog *dialog, QObject *receiver,
              const std::function<void(const QStringList &)> &take);
    static void placeOver(QWindow *window, QFileDialog *dialog);

    QPointer<QWindow> m_window;
    WindowSettings *m_settings = nullptr;
};

#endif
