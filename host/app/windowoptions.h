#ifndef APP_WINDOWOPTIONS_H
#define APP_WINDOWOPTIONS_H

#include <QString>
#include <QStringList>

/*! The command line's options for the window. */
struct WindowOptions
{
    QString configFolder; //!< empty: the platform's
    QString language;     //!< a code or locale; empty: the system's
    QStringList files;    //!< to add to the list: absolute paths of existing files and folders
};

#endif
