#include "host/window/windowplace.h"
#include "host/window/windowsettings.h"

#include "tests/support/patience.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>
#include <QWindow>

/*! Where the window was, and where it comes back. */
class TestWindowPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theWindowComesBackWhereItWas();
    void itComesBackMaximised();
    void itComesBackOntoTheScreen();
    void aSmallScreenMakesItSmaller();

private:
    const QRect m_screen = QGuiApplication::primaryScreen()->availableGeometry();
    QTemporaryDir m_work;
    std::unique_ptr<WindowSettings> m_settings;
};

void TestWindowPlace::init()
{
    QFile::remove(m_work.filePath(QStringLiteral("window.ini")));
    m_settings = std::make_unique<WindowSettings>(m_work.filePath(QStringLiteral("window.ini")));
}

void TestWindowPlace::theWindowComesBackWhereItWas()
{
    const QRect place(40, 50, 500, 300);
    {
        QWindow window;
        const WindowPlace remembered(*m_settings, window);
        window.show();
        window.setGeometry(place);
    }
    const WindowSettings later(m_work.filePath(QStringLiteral("window.ini")));
    QCOMPARE(later.place(), place);
    QWindow window;
    const WindowPlace restored(*m_settings, window);
    QCOMPARE(window.geometry(), place);
    QVERIFY(!window.windowStates().testFlag(Qt::WindowMaximized));
}

void TestWindowPlace::itComesBackMaximised()
{
    const QRect place(40, 50, 500, 300);
    m_settings->setPlace(place, false);
    {
        QWindow window;
        const WindowPlace remembered(*m_settings, window);
        window.show();
        window.showMaximized();
    }
    QVERIFY(m_settings->isMaximised());
    QCOMPARE(m_settings->place(), place); // for when it is made smaller again
    QWindow window;
    const WindowPlace restored(*m_settings, window);
    QVERIFY(window.windowStates().testFlag(Qt::WindowMaximized));
}

void TestWindowPlace::itComesBackOntoTheScreen()
{
    m_settings->setPlace(QRect(m_screen.right() + 500, -900, 500, 300), false);
    QWindow window;
    const WindowPlace restored(*m_settings, window);
    QCOMPARE(window.geometry(), QRect(m_screen.right() + 1 - 500, m_screen.top(), 500, 300));
}

void TestWindowPlace::aSmallScreenMakesItSmaller()
{
    QWindow first;
    first.resize(m_screen.size() + QSize(100, 100));
    const WindowPlace placed(*m_settings, first);
    QCOMPARE(first.size(), m_screen.size());

    m_settings->setPlace(QRect(QPoint(), m_screen.size() * 2), false);
    QWindow later;
    const WindowPlace restored(*m_settings, later);
    QCOMPARE(later.geometry(), m_screen);
}

QTEST_MAIN(TestWindowPlace)
#include "tst_windowplace.moc"
