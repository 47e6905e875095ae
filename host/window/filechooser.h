#ifndef WINDOW_FILECHOOSER_H
#define WINDOW_FILECHOOSER_H

#include "host/window/page.h"

#include <QObject>

/*! The system's dialogs for files and folders; the QML files call it "O_Files". */
class FileChooser : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /*! Lets the user choose files for the page's list. Returns at once. */
    Q_INVOKABLE void chooseFiles(Page *page);
    /*! Lets the user choose where the page's results go. Returns at once. */
    Q_INVOKABLE void chooseFolder(Page *page);
};

#endif
