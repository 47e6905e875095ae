#ifndef WINDOW_APPEARANCE_H
#define WINDOW_APPEARANCE_H

#include "host/window/desktopportal.h"

#include <QObject>

class WindowSettings;

/*! How the window looks: as the user chose or, without a choice, as the desktop says. */
class Appearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)
    Q_PROPERTY(bool isMoving READ isMoving NOTIFY changed)

public:
    explicit Appearance(const WindowSettings &settings, QObject *parent = nullptr);

    [[nodiscard]] bool isDark() const;
    /*! Whether things may move by themselves. */
    [[nodiscard]] bool isMoving() const;

Q_SIGNALS:
    void changed();

private:
    const WindowSettings &m_settings;
    DesktopPortal m_desktop;
};

#endif
