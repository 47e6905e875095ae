#ifndef WINDOW_SCREENSHOTS_H
#define WINDOW_SCREENSHOTS_H

#include "host/files/workfolder.h"
#include "host/window/mainwindow.h"

#include <QDir>
#include <QString>

#include <functional>

/*! Drives the window through its screens, over clips made for it, and takes a picture of each. */
class Screenshots
{
public:
    /*! \a folder is made where it is missing. */
    explicit Screenshots(const QString &folder);

    [[nodiscard]] Result<> takeAll();

private:
    void takePickers();
    void takeDialogs();
    void takeTasks();

    QObject *picker() const;
    void openPicker();
    void showTag(const QString &tag);
    void type(const QString &text);
    void showPage(int page);
    /*! A clip of this kind, made with ffmpeg from its own test sources. */
    QUrl clip(const QString &name, const QString &arguments);
    void editPreset(const QString &tag, const QString &className, const QString &id);

    void waitUntil(const std::function<bool()> &isSo);
    /*! Lets animations and late bindings come to rest. */
    void settle(int pause = 500);
    void take(const QString &name, QQuickWindow *window = nullptr);

    const QDir m_folder;
    WorkFolder m_work;
    MainWindow m_window;
    Result<> m_result;
};

#endif
