#ifndef WINDOW_WINDOWUSER_H
#define WINDOW_WINDOWUSER_H

#include <QList>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QUrl>

class QQuickItem;
class QQuickWindow;
class QWindow;

/*! What a user sees of a window and does there, with mouse and keys. */
namespace WindowUser {

/*! The name for screen readers. */
QString nameOf(QQuickItem *item);
/*! In the window's coordinates. */
QPoint middleOf(const QQuickItem *item);
/*! All visible items that lie in the window and have this text, or this name for screen readers. */
QList<QQuickItem *> itemsNamed(QQuickItem *root, const QString &name);

/*!
 * Clicks the item of this name, as soon as it is there and stands still: of several the one at
 * \a which. False when there is none in time.
 */
bool click(QQuickWindow *window, const QString &name, int which = 0);
void type(QWindow *window, const QString &text);
/*! Presses a key that may close the window, and lets it go. */
void press(QWindow *window, Qt::Key key);
/*! Drops files in the middle of the window. */
void drop(QQuickWindow *window, const QList<QUrl> &urls);

/*! From now on takes the program's and Qt's warnings instead of printing them. */
void collectWarnings();
/*! Those that nobody has taken yet, one a line. */
QString takeWarnings();

} // namespace WindowUser

#endif
