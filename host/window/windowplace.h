#ifndef WINDOW_WINDOWPLACE_H
#define WINDOW_WINDOWPLACE_H

#include <QObject>
#include <QRect>
#include <QTimer>

class QWindow;
class WindowSettings;

/*! Puts a window where it was when it was last open, and remembers where it goes. */
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    /*! \a window must outlive this object. */
    WindowPlace(WindowSettings &settings, QWindow &window);
    ~WindowPlace() override;

private:
    void restore();
    void save();

    WindowSettings &m_settings;
    QWindow &m_window;
    QRect m_place; // not maximised
    bool m_isMaximised = false;
    QTimer m_rest; // a move has many steps
};

#endif
