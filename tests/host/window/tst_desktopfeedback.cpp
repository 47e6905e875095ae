#include "host/window/desktopfeedback.h"
#include "host/window/openfile.h"

#include "tests/host/window/pagetest.h"

#include <QDBusConnection>
#include <QProcess>
#include <QWindow>

#include <algorithm>

/*! Stands in for the desktop's notifications. */
class NotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList texts;

public Q_SLOTS:
    uint Notify(const QString &, uint, const QString &, const QString &, const QString &text,
                const QStringList &, const QVariantMap &, int)
    {
        texts << text;
        return 1;
    }
};

/*! Stands in for the file manager. */
class FileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &urls, const QString &) { shown << urls; }
};

/*! What the desktop is told on a session bus of the test's own. */
class TestDesktopFeedback : public PageTest
{
    Q_OBJECT

private Q_SLOTS:
    void startBus();
    void theTaskBarShowsTheProgress();
    void theEndIsNotifiedWhereTheWindowIsNotInUse();
    void whoWantsNoNotificationGetsNone();
    void theWindowInUseNeedsNoNotification();
    void aFileIsShownSelected();

public Q_SLOTS:
    void takeUpdate(const QString &application, const QVariantMap &properties);

private:
    QProcess m_bus;
    QString m_address;
    NotificationServer m_notifications;
    FileManager m_manager;
    QStringList m_applications;
    QVector<QPair<bool, double>> m_updates; //!< whether progress is visible, and how much
};

/*! Before anything asks for the session bus: it is looked for only once. */
void TestDesktopFeedback::startBus()
{
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"),
                 QStringLiteral("--print-address")});
    QTRY_VERIFY_WITH_TIMEOUT(m_bus.canReadLine(), patience);
    m_address = QString::fromLatin1(m_bus.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toLatin1());
    QDBusConnection desktop = QDBusConnection::connectToBus(m_address, QStringLiteral("desktop"));
    QVERIFY(desktop.registerObject(QStringLiteral("/org/freedesktop/Notifications"),
                                   &m_notifications, QDBusConnection::ExportAllSlots));
    QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.Notifications")));
    QVERIFY(desktop.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &m_manager,
                                   QDBusConnection::ExportAllSlots));
    QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    QVERIFY(
        desktop.connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                        QStringLiteral("Update"), this, SLOT(takeUpdate(QString, QVariantMap))));
}

void TestDesktopFeedback::takeUpdate(const QString &application, const QVariantMap &properties)
{
    m_applications << application;
    m_updates.append({properties.value(QStringLiteral("progress-visible")).toBool(),
                      properties.value(QStringLiteral("progress")).toDouble()});
}

void TestDesktopFeedback::theTaskBarShowsTheProgress()
{
    const QWindow window;
    const DesktopFeedback feedback({m_converter.get(), m_editor.get()}, window, *m_settings);
    addReady(*m_converter, song(QStringLiteral("a.wav")));
    addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_converter->isBusy(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!m_updates.isEmpty() && !m_updates.constLast().first, patience);
    m_applications.removeDuplicates();
    QCOMPARE(m_applications, QStringList{QStringLiteral("application://vexconvert.desktop")});
    QCOMPARE(m_updates.constFirst(), (QPair<bool, double>{true, 0}));
    QVERIFY(std::any_of(m_updates.cbegin(), m_updates.cend(),
                        [](const auto &update) { return update.first && update.second > 0; }));
}

void TestDesktopFeedback::theEndIsNotifiedWhereTheWindowIsNotInUse()
{
    m_notifications.texts.clear();
    const QWindow window;
    const DesktopFeedback feedback({m_converter.get(), m_editor.get()}, window, *m_settings);
    addReady(*m_converter, song());
    m_converter->addFiles({noMedia()});
    QTRY_COMPARE_WITH_TIMEOUT(m_converter->tasks()->countOf(Task::Failed), 1, patience);
    m_converter->convertAll();
    QTRY_COMPARE_WITH_TIMEOUT(m_notifications.texts,
                              QStringList{QStringLiteral("Files converted: 1, failed: 1")},
                              patience);
}

void TestDesktopFeedback::whoWantsNoNotificationGetsNone()
{
    m_notifications.texts.clear();
    m_settings->setNotifying(false);
    const QWindow window;
    const DesktopFeedback feedback({m_converter.get(), m_editor.get()}, window, *m_settings);
    QSignalSpy ended(m_converter.get(), &Page::ended);
    addReady(*m_converter, song());
    m_converter->convertAll();
    QVERIFY(ended.wait(patience));
    m_settings->setNotifying(true);
    addReady(*m_converter, song(QStringLiteral("a.wav")));
    addReady(*m_converter, song(QStringLiteral("b.wav")));
    m_converter->convertAll();
    // Only of the second run.
    QTRY_COMPARE_WITH_TIMEOUT(m_notifications.texts,
                              QStringList{QStringLiteral("Files converted: 2")}, patience);
}

void TestDesktopFeedback::theWindowInUseNeedsNoNotification()
{
    m_notifications.texts.clear();
    QWindow window;
    window.show();
    window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const DesktopFeedback feedback({m_converter.get(), m_editor.get()}, window, *m_settings);
    m_updates.clear();
    addReady(*m_converter, song());
    m_converter->convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_updates.isEmpty() && !m_updates.constLast().first, patience);
    QCOMPARE(m_notifications.texts, QStringList());
}

void TestDesktopFeedback::aFileIsShownSelected()
{
    const QUrl file = song(QStringLiteral("a b.wav"));
    QStringList failures;
    showFile(file.toLocalFile(), [&failures](const QString &line) { failures << line; });
    QTRY_COMPARE_WITH_TIMEOUT(m_manager.shown, QStringList{file.toString(QUrl::FullyEncoded)},
                              patience);
    QCOMPARE(failures, QStringList());
}

QTEST_MAIN(TestDesktopFeedback)
#include "tst_desktopfeedback.moc"
