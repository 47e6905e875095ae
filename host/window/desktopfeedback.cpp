#include "host/window/desktopfeedback.h"

#include "host/window/page.h"
#include "host/window/windowsettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

const QString name = QStringLiteral("VexConvert");
const QString icon = QStringLiteral("vexconvert"); // and the desktop file

void showInTaskBar(int percent)
{
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/org/vexconvert/VexConvert"),
        QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://vexconvert.desktop")
           << QVariantMap{{QStringLiteral("progress"), std::max(0, percent) / 100.0},
                          {QStringLiteral("progress-visible"), percent >= 0}};
    QDBusConnection::sessionBus().send(update);
}

void notify(const QString &text)
{
    QDBusMessage note = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    constexpr uint replacesNone = 0;
    constexpr int usualTime = -1;
    note << name << replacesNone << icon << name << text << QStringList()
         << QVariantMap{{QStringLiteral("desktop-entry"), icon}} << usualTime;
    QDBusConnection::sessionBus().send(note);
}

} // namespace

DesktopFeedback::DesktopFeedback(const QVector<Page *> &pages, const QWindow &window,
                                 const WindowSettings &settings, QObject *parent)
    : QObject(parent)
    , m_pages(pages)
    , m_window(window)
    , m_settings(settings)
{
    for (const Page *page : m_pages) {
        connect(page, &Page::overallChanged, this, &DesktopFeedback::showProgress);
        connect(page, &Page::ended, this, &DesktopFeedback::noteEnd);
    }
}

DesktopFeedback::~DesktopFeedback()
{
    if (m_shownPercent >= 0) {
        showInTaskBar(-1);
    }
}

void DesktopFeedback::showProgress()
{
    const auto busy = std::find_if(m_pages.begin(), m_pages.end(),
                                   [](const Page *page) { return page->isBusy(); });
    const int percent = busy == m_pages.end() ? -1 : (*busy)->overallPercent();
    if (std::exchange(m_shownPercent, percent) != percent) {
        showInTaskBar(percent);
    }
}

void DesktopFeedback::noteEnd(int converted, int failed)
{
    m_converted += converted;
    m_failed += failed;
    const bool isBusy = std::any_of(m_pages.begin(), m_pages.end(),
                                    [](const Page *page) { return page->isBusy(); });
    if (isBusy) {
        return;
    }
    const QString text = TaskRunner::outcomeText(m_converted, m_failed);
    if (!text.isEmpty() && m_settings.isNotifying() && !m_window.isActive()) {
        notify(text);
    }
    m_converted = 0;
    m_failed = 0;
}
