#ifndef WINDOW_QUEUEKEEPER_H
#define WINDOW_QUEUEKEEPER_H

#include "host/queue/queuefile.h"

#include <QMap>
#include <QTimer>

class Page;

/*! Keeps the lists of the pages on disk, so that they are there again after a restart or a kill. */
class QueueKeeper : public QObject
{
    Q_OBJECT

public:
    /*! \a pages by the names that they have in the file; they outlive this object. */
    QueueKeeper(const QString &path, const QMap<QString, Page *> &pages);

    /*! Fills the pages with what was kept, and keeps what becomes of it from then on. */
    void restore();
    /*! Returns when all is on disk. */
    void flush();

Q_SIGNALS:
    /*! One line for the user. */
    void noticed(const QString &line);

private:
    void save();

    const QMap<QString, Page *> m_pages;
    QTimer m_change;
    QueueFile m_file;
};

#endif
