#ifndef WINDOW_DESKTOPPORTAL_H
#define WINDOW_DESKTOPPORTAL_H

#include <QDBusVariant>
#include <QObject>

#include <optional>

/*!
 * What the desktop says through its portal of how programs should look. Asks once, from the event
 * loop, and follows changes. Without a portal nothing is known.
 */
class DesktopPortal : public QObject
{
    Q_OBJECT

public:
    explicit DesktopPortal(QObject *parent = nullptr);

    /*! Whether the user prefers dark windows; nothing if the desktop doesn't say. */
    [[nodiscard]] std::optional<bool> prefersDark() const { return m_prefersDark; }
    /*! Whether the user wants as little motion as possible. */
    [[nodiscard]] bool prefersStillness() const { return m_prefersStillness; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void take(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();

    std::optional<bool> m_prefersDark;
    bool m_prefersStillness = false;
};

#endif
