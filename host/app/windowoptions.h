#ifndef APP_WINDOWOPTIONS_H
#define APP_WINDOWOPTIONS_H

#include <QString>
#include <QStringList>

/*! What vexconvert was called with when it is called for its window. */
struct WindowOptions
{
    QString configFolder; //!< empty: the platform's
    QString language;     //!< one that Languages::suiting() finds; empty: the system's
    QStringList files;    //!< for its list: absolute paths of existing files and folders
};

#endif
