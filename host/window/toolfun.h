#ifndef WINDOW_TOOLFUN_H
#define WINDOW_TOOLFUN_H

#include <QJSValue>
#include <QObject>
#include <QStringList>

/*! Texts and a timer for the QML files. */
class ToolFun : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isMac READ isMac CONSTANT)

public:
    using QObject::QObject;

    /*! The text for \a key in the user's language; \a key itself if it isn't translated. */
    static QString text(const QString &key);
    Q_INVOKABLE QString tr(const QString &key) const { return text(key); }

    /*! The texts in one line, with dots between them; empty ones are left out. */
    Q_INVOKABLE static QString joined(QStringList texts);

    /*! The texts as a list in a sentence; empty ones are left out. */
    static QString listed(QStringList texts);

    /*! Calls \a function once, \a ms milliseconds from now. */
    Q_INVOKABLE void timerOnce(int ms, const QJSValue &function);

    bool isMac() const;
};

#endif
