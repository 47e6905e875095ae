#ifndef TESTS_FORMATS_QML_SCREENBENCH_H
#define TESTS_FORMATS_QML_SCREENBENCH_H

#include "formats/proxy/formatsproxy.h"
#include "tests/support/messagelog.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QVariant>

#include <memory>
#include <optional>

/*!
 * What a screen under test needs: the real facade as O_FormatsProxy, other objects under the host's
 * names, and a record of the warnings. Available to QML as "bench".
 */
class ScreenBench : public QObject
{
    Q_OBJECT

public:
    explicit ScreenBench(QQmlEngine *engine);

    /*!
     * Makes a new facade over \a catalogue: a list of {"category", "groups"}, a group being
     * {"map", "contents"} as the host's utility library delivers them.
     */
    Q_INVOKABLE void begin(const QVariantList &catalogue);
    /*! Destroys the facade and returns what was logged since begin(). */
    Q_INVOKABLE QStringList end();
    /*! Whether the window of \a item has nothing left to build or lay out. */
    Q_INVOKABLE bool isAtRest(QQuickItem *item) const;
    Q_INVOKABLE void publish(const QString &contextName, const QVariant &value);

private:
    QQmlEngine *m_engine;
    std::unique_ptr<FormatsProxy> m_facade;
    std::optional<MessageLog> m_log;
};

#endif
