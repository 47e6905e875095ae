#include "host/window/appearance.h"
#include "host/window/windowsettings.h"

#include "tests/support/patience.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using Groups = QMap<QString, QVariantMap>;
Q_DECLARE_METATYPE(Groups)

/*! Answers as a desktop's portal does. */
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Groups groups;

public Q_SLOTS:
    Groups ReadAll(const QStringList &) const { return groups; }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

/*! What the desktop's portal says, on a bus of the test's own. */
class TestDesktopPortal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theDesktopsColourSchemeIsTaken_data();
    void theDesktopsColourSchemeIsTaken();
    void aChangeIsFollowed();
    void aDesktopWithoutMotionStopsIt();
    void theUsersOwnChoiceComesFirst();

private:
    QTemporaryDir m_work;
    QProcess m_bus;
    FakePortal m_portal;
};

void TestDesktopPortal::initTestCase()
{
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForReadyRead(patience));
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readAllStandardOutput().trimmed());
    qDBusRegisterMetaType<Groups>();
    // A connection of its own: calls within one would never leave the process.
    QDBusConnection desktop =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("desktop"));
    QVERIFY(desktop.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                                   QDBusConnection::ExportAllSlots |
                                       QDBusConnection::ExportAllSignals));
    QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
}

void TestDesktopPortal::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
    m_bus.kill();
    m_bus.waitForFinished();
}

void TestDesktopPortal::theDesktopsColourSchemeIsTaken_data()
{
    QTest::addColumn<uint>("scheme");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("no preference") << 0U << false << false;
    QTest::newRow("dark") << 1U << true << true;
    QTest::newRow("light") << 2U << true << false;
}

void TestDesktopPortal::theDesktopsColourSchemeIsTaken()
{
    QFETCH(uint, scheme);
    QFETCH(bool, isKnown);
    m_portal.groups = {
        {QStringLiteral("org.freedesktop.appearance"), {{QStringLiteral("color-scheme"), scheme}}}};
    DesktopPortal portal;
    QSignalSpy changed(&portal, &DesktopPortal::changed);
    QVERIFY(changed.wait(patience));
    QCOMPARE(portal.prefersDark().has_value(), isKnown);
    QTEST(portal.prefersDark().value_or(false), "isDark");
}

void TestDesktopPortal::aChangeIsFollowed()
{
    m_portal.groups = {
        {QStringLiteral("org.freedesktop.appearance"), {{QStringLiteral("color-scheme"), 2U}}}};
    DesktopPortal portal;
    QTRY_COMPARE_WITH_TIMEOUT(portal.prefersDark(), std::make_optional(false), patience);
    Q_EMIT m_portal.SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                                   QStringLiteral("color-scheme"), QDBusVariant(1U));
    QTRY_COMPARE_WITH_TIMEOUT(portal.prefersDark(), std::make_optional(true), patience);
}

void TestDesktopPortal::aDesktopWithoutMotionStopsIt()
{
    m_portal.groups = {{QStringLiteral("org.gnome.desktop.interface"),
                        {{QStringLiteral("enable-animations"), false}}}};
    const WindowSettings settings(m_work.filePath(QStringLiteral("still.ini")));
    const Appearance appearance(settings);
    QVERIFY(appearance.isMoving());
    QTRY_VERIFY_WITH_TIMEOUT(!appearance.isMoving(), patience);
}

void TestDesktopPortal::theUsersOwnChoiceComesFirst()
{
    m_portal.groups = {
        {QStringLiteral("org.freedesktop.appearance"), {{QStringLiteral("color-scheme"), 1U}}}};
    WindowSettings settings(m_work.filePath(QStringLiteral("own.ini")));
    const Appearance appearance(settings);
    QTRY_VERIFY_WITH_TIMEOUT(appearance.isDark(), patience);
    settings.setTheme(WindowSettings::LightTheme);
    QVERIFY(!appearance.isDark());
    settings.setStill(true);
    QVERIFY(!appearance.isMoving());
}

QTEST_MAIN(TestDesktopPortal)
#include "tst_desktopportal.moc"
