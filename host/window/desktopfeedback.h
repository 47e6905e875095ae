#ifndef WINDOW_DESKTOPFEEDBACK_H
#define WINDOW_DESKTOPFEEDBACK_H

#include <QObject>
#include <QVector>

class Page;
class QWindow;
class WindowSettings;

/*! Tells the desktop how far the conversions are, in the task bar, and when all have ended, by a
 *  notification unless the window is in use. Does nothing without a session bus. */
class DesktopFeedback : public QObject
{
    Q_OBJECT

public:
    /*! The pages, the window and the settings outlive this object. */
    DesktopFeedback(const QVector<Page *> &pages, const QWindow &window,
                    const WindowSettings &settings, QObject *parent = nullptr);
    ~DesktopFeedback() override;

private:
    void showProgress();
    void noteEnd(int converted, int failed);

    const QVector<Page *> m_pages;
    const QWindow &m_window;
    const WindowSettings &m_settings;
    int m_shownPercent = -1; //!< -1: none is shown
    int m_converted = 0;
    int m_failed = 0;
};

#endif
