#ifndef WINDOW_NOTICES_H
#define WINDOW_NOTICES_H

#include <QObject>
#include <QStringList>

/*! Notices for the user, shown until they are dismissed. */
class Notices : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    using QObject::QObject;

    /*! One line per notice; empty if there is none. */
    QString text() const { return m_lines.join(QLatin1Char('\n')); }
    /*! Shows the line and writes it to the log; a line already shown isn't repeated. */
    void add(const QString &line);
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void textChanged();

private:
    QStringList m_lines;
};

#endif
