#include "host/window/desktopportal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMap>
#include <QVariantMap>

namespace {

const QLatin1String service("org.freedesktop.portal.Desktop");
const QLatin1String path("/org/freedesktop/portal/desktop");
const QLatin1String interface("org.freedesktop.portal.Settings");

const QLatin1String appearance("org.freedesktop.appearance");
const QLatin1String gnome("org.gnome.desktop.interface");

using Groups = QMap<QString, QVariantMap>;

} // namespace

Q_DECLARE_METATYPE(Groups)

DesktopPortal::DesktopPortal(QObject *parent)
    : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    qDBusRegisterMetaType<Groups>();
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(take(QString, QString, QDBusVariant)));
    ask();
}

void DesktopPortal::ask()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    call << QStringList{appearance, gnome};
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<Groups> reply = *answer;
        answer->deleteLater();
        if (reply.isError()) {
            return;
        }
        const Groups groups = reply.value();
        for (auto group = groups.begin(); group != groups.end(); ++group) {
            for (auto value = group->begin(); value != group->end(); ++value) {
                take(group.key(), value.key(), QDBusVariant(value.value()));
            }
        }
    });
}

void DesktopPortal::take(const QString &group, const QString &key, const QDBusVariant &value)
{
    const QVariant content = value.variant();
    if (group == appearance && key == QLatin1String("color-scheme")) {
        // 1: dark, 2: light, 0: no preference
        const uint scheme = content.toUInt();
        m_prefersDark = scheme == 0 ? std::nullopt : std::make_optional(scheme == 1);
    } else if (group == gnome && key == QLatin1String("enable-animations")) {
        m_prefersStillness = !content.toBool();
    } else {
        return;
    }
    Q_EMIT changed();
}
