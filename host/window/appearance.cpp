#include "host/window/appearance.h"

#include "host/window/windowsettings.h"

#include <QGuiApplication>
#include <QPalette>

Appearance::Appearance(const WindowSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    connect(&settings, &WindowSettings::themeChanged, this, &Appearance::changed);
    connect(&settings, &WindowSettings::stillChanged, this, &Appearance::changed);
    connect(&m_desktop, &DesktopPortal::changed, this, &Appearance::changed);
    connect(qGuiApp, &QGuiApplication::paletteChanged, this, &Appearance::changed);
}

bool Appearance::isDark() const
{
    if (m_settings.theme() != WindowSettings::SystemTheme) {
        return m_settings.theme() == WindowSettings::DarkTheme;
    }
    const QPalette palette = QGuiApplication::palette();
    const bool isPaletteDark = palette.color(QPalette::Window).lightness() <
                               palette.color(QPalette::WindowText).lightness();
    return m_desktop.prefersDark().value_or(isPaletteDark);
}

bool Appearance::isMoving() const
{
    return !m_settings.isStill() && !m_desktop.prefersStillness();
}
