#include "host/app/languages.h"
#include "host/window/appearance.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/windowsettings.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/mediaclips.h"
#include "tests/support/patience.h"

#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace WindowUser;

namespace {

constexpr double readable = 4.5;      // of a text to its ground
constexpr double distinguishable = 3; // of an icon

double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/*! The colour of an opaque rectangle; invalid for anything else. */
QColor groundOf(const QQuickItem *item)
{
    const bool isOpaque = item != nullptr && item->isVisible() &&
                          item->inherits("QQuickRectangle") &&
                          item->property("color").value<QColor>().alpha() == 255;
    return isOpaque ? item->property("color").value<QColor>() : QColor();
}

QColor groundUnder(const QQuickItem *item)
{
    for (const QQuickItem *outer = item->parentItem(); outer; outer = outer->parentItem()) {
        const auto *background = outer->property("background").value<QQuickItem *>();
        for (const QColor &ground : {groundOf(outer), groundOf(background)}) {
            if (ground.isValid()) {
                return ground;
            }
        }
    }
    return item->window()->property("color").value<QColor>();
}

/*! The texts that are hard to read, each with its contrast. */
QStringList hardToRead(const QQuickItem *root)
{
    QStringList found;
    if (!root->isVisible() || !root->isEnabled()) {
        return found;
    }
    const QString text = root->property("text").toString();
    const bool isText = root->inherits("QQuickText") || root->inherits("QQuickTextInput");
    if (isText && !text.isEmpty()) {
        const double is = contrast(root->property("color").value<QColor>(), groundUnder(root));
        if (is < readable) {
            found << QStringLiteral("%1: %2").arg(text).arg(is);
        }
    }
    for (const QQuickItem *child : root->childItems()) {
        found << hardToRead(child);
    }
    return found;
}

} // namespace

/*! The light and the dark look of the window. */
class TestTheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyTextIsReadable_data();
    void everyTextIsReadable();
    void everyIconShowsOnEveryGround_data();
    void everyIconShowsOnEveryGround();
    void theLibrarysScreensStayLight();
    void withoutAChoiceTheWindowFollowsTheDesktop();
    void aChoiceIsKept();

private:
    /*! The ground of what is selected. */
    [[nodiscard]] QColor accentPale() const;

    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

void TestTheme::initTestCase()
{
    Languages::install(QStringLiteral("en"));
    QVERIFY(MediaClips::makeSong(m_work.filePath(QStringLiteral("song.wav"))));
    collectWarnings();
}

void TestTheme::init()
{
    QDir(m_work.filePath(QStringLiteral("config"))).removeRecursively();
    m_main = std::make_unique<MainWindow>(m_work.filePath(QStringLiteral("config")));
    QVERIFY(m_main->open());
    m_window = m_main->window();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void TestTheme::cleanup()
{
    m_main.reset();
    QCOMPARE(takeWarnings(), QString());
}

QColor TestTheme::accentPale() const
{
    const QList<QQuickItem *> items = m_window->findChildren<QQuickItem *>();
    const auto themed = std::find_if(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->property("theme").isValid();
    });
    return (*themed)->property("theme").value<QObject *>()->property("accentPale").value<QColor>();
}

void TestTheme::everyTextIsReadable_data()
{
    QTest::addColumn<WindowSettings::ThemeChoice>("theme");
    QTest::newRow("light") << WindowSettings::LightTheme;
    QTest::newRow("dark") << WindowSettings::DarkTheme;
}

void TestTheme::everyTextIsReadable()
{
    QFETCH(WindowSettings::ThemeChoice, theme);
    m_main->settings().setTheme(theme);
    const QColor ground = m_window->property("color").value<QColor>();
    QCOMPARE(ground.lightness() < 128, theme == WindowSettings::DarkTheme);

    const auto check = [this] {
        QCOMPARE(hardToRead(m_window->contentItem()).join(QStringLiteral("\n")), QString());
    };
    check(); // the empty list
    QFile broken(m_work.filePath(QStringLiteral("broken.mp4")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    for (Page *page :
         {static_cast<Page *>(&m_main->converter()), static_cast<Page *>(&m_main->editor())}) {
        page->addPaths({m_work.filePath(QStringLiteral("song.wav")), broken.fileName()});
        QTRY_COMPARE_WITH_TIMEOUT(page->tasks()->tasks().at(1).state, Task::Failed, patience);
        QTRY_COMPARE_WITH_TIMEOUT(page->tasks()->tasks().at(0).state, Task::Ready, patience);
    }
    m_main->converter().setConvertingListTaskFormat(m_main->converter().tasks()->tasks().at(0).id,
                                                    QStringLiteral("Audio_MP3_003"));
    m_main->converter().convertAll();
    QTRY_VERIFY_WITH_TIMEOUT(!m_main->converter().isBusy(), patience);
    check();
    m_window->setProperty("currentPage", 1);
    check();
    auto *panel = m_window->findChild<QObject *>(QStringLiteral("outputPanel"));
    QMetaObject::invokeMethod(panel, "open");
    QTRY_VERIFY(panel->property("opened").toBool());
    check();
}

void TestTheme::everyIconShowsOnEveryGround_data()
{
    QTest::addColumn<QString>("file");
    const QDir icons(QStringLiteral(":/window/images"));
    for (const QString &name : icons.entryList()) {
        QTest::newRow(qPrintable(name)) << icons.filePath(name);
    }
}

void TestTheme::everyIconShowsOnEveryGround()
{
    QFETCH(QString, file);
    QFile icon(file);
    QVERIFY(icon.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(icon.readAll());
    static const QRegularExpression colour(QStringLiteral("\"(#[0-9A-F]{6})\""));
    QVERIFY(colour.match(text).hasMatch());
    for (const WindowSettings::ThemeChoice theme :
         {WindowSettings::LightTheme, WindowSettings::DarkTheme}) {
        m_main->settings().setTheme(theme);
        const QColor ground = m_window->property("color").value<QColor>();
        const QColor selected = accentPale();
        for (auto match = colour.globalMatch(text); match.hasNext();) {
            const QString is = match.next().captured(1);
            QVERIFY2(contrast(QColor(is), ground) >= distinguishable, qPrintable(is));
            QVERIFY2(contrast(QColor(is), selected) >= distinguishable, qPrintable(is));
        }
    }
}

void TestTheme::theLibrarysScreensStayLight()
{
    auto *picker = m_window->property("picker").value<QObject *>();
    const auto hardInPicker = [this, picker] {
        QMetaObject::invokeMethod(m_window, "openGlobalPicker");
        [&] { QTRY_VERIFY(picker->property("opened").toBool()); }();
        const auto *popup = picker->property("contentItem").value<QQuickItem *>()->parentItem();
        const QStringList hard = hardToRead(popup);
        QMetaObject::invokeMethod(picker, "close");
        [&] { QTRY_VERIFY(!picker->property("visible").toBool()); }();
        return hard;
    };
    m_main->settings().setTheme(WindowSettings::LightTheme);
    const QStringList hardInTheLight = hardInPicker();
    m_main->settings().setTheme(WindowSettings::DarkTheme);
    // The screen fixes the pale colours of its hint and of its selected tag.
    QCOMPARE(hardInPicker(), hardInTheLight);
    m_main->converter().openConvertionParametersMsgBox({
        {QStringLiteral("format"), QStringLiteral("video")},
        {QStringLiteral("curclass"), QStringLiteral("MP4")},
        {QStringLiteral("idIndex"), QStringLiteral("Video_MP4_004")},
        {QStringLiteral("openTheWay"), true},
        {QStringLiteral("fromPAGE"), QStringLiteral("Converter")},
        {QStringLiteral("userDefine"), false},
    });
    QTRY_VERIFY(m_main->dialog() != nullptr);
    QQuickItem *content = m_main->dialog()->window()->contentItem();
    QTRY_VERIFY(!itemsNamed(content, QStringLiteral("Bitrate")).isEmpty());
    QCOMPARE(hardToRead(content).join(QStringLiteral("\n")), QString());
    m_main->dialog()->cancelClicked();
}

void TestTheme::withoutAChoiceTheWindowFollowsTheDesktop()
{
    const QPalette usual = QGuiApplication::palette();
    QPalette dark(QColor(30, 30, 30));
    dark.setColor(QPalette::WindowText, Qt::white);
    QGuiApplication::setPalette(dark);
    QTRY_VERIFY(m_window->property("color").value<QColor>().lightness() < 128);
    m_main->settings().setTheme(WindowSettings::LightTheme);
    QVERIFY(m_window->property("color").value<QColor>().lightness() > 128);
    QGuiApplication::setPalette(usual);
    m_main->settings().setTheme(WindowSettings::SystemTheme);
    QVERIFY(m_window->property("color").value<QColor>().lightness() > 128);
}

void TestTheme::aChoiceIsKept()
{
    m_main->settings().setTheme(WindowSettings::DarkTheme);
    m_main->settings().setStill(true);
    m_main.reset();
    m_main = std::make_unique<MainWindow>(m_work.filePath(QStringLiteral("config")));
    QVERIFY(m_main->open());
    QCOMPARE(m_main->settings().theme(), WindowSettings::DarkTheme);
    QVERIFY(m_main->settings().isStill());
    QVERIFY(m_main->window()->property("color").value<QColor>().lightness() < 128);
}

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
