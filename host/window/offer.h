#ifndef WINDOW_OFFER_H
#define WINDOW_OFFER_H

#include <QObject>
#include <QString>

#include <functional>

/*! Something that has just happened, and what the user may want to do about it. There is one at a
 *  time: the next one replaces it. */
class Offer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(QString action READ action NOTIFY changed)

public:
    using QObject::QObject;

    /*! Empty if nothing is offered. */
    QString text() const { return m_text; }
    /*! The name of the action. */
    QString action() const { return m_action; }

    void make(const QString &text, const QString &action, const std::function<void()> &act);
    /*! Does what is offered. */
    Q_INVOKABLE void take();
    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    void changed();

private:
    QString m_text;
    QString m_action;
    std::function<void()> m_act;
};

#endif
