#include "host/window/windowplace.h"

#include "host/window/windowsettings.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {

/*! As much of \a place as fits on \a screen, moved onto it. */
QRect placeOn(const QRect &screen, const QRect &place)
{
    QRect fitting(place.topLeft(), place.size().boundedTo(screen.size()));
    fitting.moveLeft(qBound(screen.left(), fitting.left(), screen.right() + 1 - fitting.width()));
    fitting.moveTop(qBound(screen.top(), fitting.top(), screen.bottom() + 1 - fitting.height()));
    return fitting;
}

/*! The usable part of the screen that shows most of \a place. */
QRect screenFor(const QRect &place)
{
    const auto shown = [&place](const QScreen *screen) {
        const QRect part = screen->availableGeometry() & place;
        return part.isEmpty() ? 0 : qint64(part.width()) * part.height();
    };
    const QList<QScreen *> all = QGuiApplication::screens();
    const auto best = std::max_element(
        all.begin(), all.end(),
        [&shown](const QScreen *one, const QScreen *other) { return shown(one) < shown(other); });
    return (*best)->availableGeometry();
}

} // namespace

WindowPlace::WindowPlace(WindowSettings &settings, QWindow &window)
    : m_settings(settings)
    , m_window(window)
{
    restore();
    m_rest.setSingleShot(true);
    m_rest.setInterval(500);
    const auto follow = [this] { m_rest.start(); };
    connect(&m_rest, &QTimer::timeout, this, &WindowPlace::save);
    connect(&window, &QWindow::xChanged, this, follow);
    connect(&window, &QWindow::yChanged, this, follow);
    connect(&window, &QWindow::widthChanged, this, follow);
    connect(&window, &QWindow::heightChanged, this, follow);
    connect(&window, &QWindow::windowStateChanged, this, follow);
}

WindowPlace::~WindowPlace()
{
    if (m_rest.isActive()) {
        save();
    }
}

void WindowPlace::restore()
{
    m_place = m_settings.place();
    if (m_place.isEmpty()) {
        // The first time the window system places it; on a small screen it gets smaller.
        m_place = m_window.geometry();
        m_window.resize(m_place.size().boundedTo(screenFor(m_place).size()));
        return;
    }
    m_window.setGeometry(placeOn(screenFor(m_place), m_place));
    m_isMaximised = m_settings.isMaximised();
    if (m_isMaximised) {
        m_window.showMaximized();
    }
}

void WindowPlace::save()
{
    // A window that becomes as large as the screen only then gets the state.
    const Qt::WindowStates states = m_window.windowStates();
    m_isMaximised = states.testFlag(Qt::WindowMaximized);
    if (states == Qt::WindowNoState) {
        m_place = m_window.geometry();
    }
    m_settings.setPlace(m_place, m_isMaximised);
}
