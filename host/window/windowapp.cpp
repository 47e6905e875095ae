#include "host/window/windowapp.h"

#include "host/app/exitcode.h"
#include "host/app/interrupt.h"
#include "host/app/languages.h"
#include "host/app/windowoptions.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/toolfun.h"
#include "host/window/windowsettings.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QIcon>
#include <QMessageBox>
#include <QOpenGLContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QThread>

#include <cstdio>
#include <cstdlib>

/*! A static library's resources need this call, which must not be in a namespace. */
static void initIcons()
{
    Q_INIT_RESOURCE(window);
}

namespace {

/*! Handles messages while connecting to the display: on failure Qt would abort. */
void endWithoutDisplay(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type == QtFatalMsg) {
        std::fputs("vexconvert: there is no display to show the window on; start it in a desktop, "
                   "or use a subcommand: \"vexconvert --help\" lists them\n",
                   stderr);
        std::_Exit(WrongUsage);
    }
}

/*! Draws without OpenGL where there is none: Qt Quick would abort. */
void drawWithWhatThereIs()
{
    QOpenGLContext context;
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") && !context.create()) {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    }
}

MainWindow *shownWindow = nullptr;

/*! Qt ends the process at once when the display is lost, for example at logout. */
void endWithDisplay()
{
    if (shownWindow != nullptr) {
        // QML warns about the objects that disappear, which no longer matters.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        shownWindow->stopWork();
    }
}

/*! Reports the error on standard error and, as the user may not see that, in a dialog. */
ExitCode refuse(const Error &error)
{
    const ExitCode exitCode = report(error);
    // Offscreen nobody could close the dialog.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QMessageBox dialog(QMessageBox::Critical, QStringLiteral("VexConvert"),
                           ToolFun::text(QStringLiteral("VexConvert can't open its window")));
        dialog.setInformativeText(error.text);
        dialog.exec();
    }
    return exitCode;
}

/*! The program's own, as the desktop has it only once it is installed. */
QIcon windowIcon()
{
    initIcons();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/window/icon/%1.png").arg(size));
    }
    return icon;
}

/*! The code of the language that is asked for, else of the chosen one, else of the system's. */
QString languageOf(const WindowOptions &options)
{
    const WindowSettings settings(PresetStore::folderAt(options.configFolder) +
                                  QStringLiteral("/vexconvert.ini"));
    for (const QString &wanted : {options.language, settings.language()}) {
        const QString language = Languages::suiting(wanted);
        if (!language.isEmpty()) {
            return language;
        }
    }
    return Languages::ofSystem();
}

ExitCode showWindow(const WindowOptions &options)
{
    Interrupt interrupt; // catches signals until everything is shut down
    QObject::connect(&interrupt, &Interrupt::caught, qApp, &QCoreApplication::quit);
    MainWindow window(options.configFolder);
    Result<> opened = window.open();
    // The process that has the folder may be about to quit, or to open its window.
    constexpr int patience = 5000;
    constexpr int pause = 100;
    const QDeadlineTimer deadline(patience);
    while (!opened && opened.error().kind == Error::InUse && !deadline.hasExpired()) {
        if (window.handOver(options.files, patience)) {
            return Success;
        }
        QThread::msleep(pause);
        opened = window.open();
    }
    if (!opened) {
        return refuse(opened.error());
    }
    shownWindow = &window;
    std::atexit(endWithDisplay);
    window.converter().addPaths(options.files);
    const int result = QCoreApplication::exec();
    shownWindow = nullptr;
    return result == 0 ? Success : Failure;
}

} // namespace

int runWindow(int &argc, char **argv, const WindowOptions &options)
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QQuickStyle::setStyle(QStringLiteral("Default"));

    const QString language = languageOf(options);
    Languages::chooseGlyphs(language);
    const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
    QApplication app(argc, argv);
    qInstallMessageHandler(usual);
    drawWithWhatThereIs();

    QGuiApplication::setDesktopFileName(QStringLiteral("vexconvert"));
    QGuiApplication::setWindowIcon(windowIcon());

    Languages::install(language);
    return showWindow(options);
}
