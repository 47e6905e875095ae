#include "host/app/exitcode.h"
#include "host/app/languages.h"
#include "host/files/workfolder.h"
#include "host/tools/tool.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/presetactions.h"
#include "host/window/presetexchange.h"

#include "formats/proxy/formatsproxy.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPainter>
#include <QQuickItemGrabResult>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace {

/*! Drives the window through its screens, over clips made for it, and takes a picture of each. */
class Screenshots
{
public:
    /*! \a folder is made where it is missing; \a work takes the clips and the settings. */
    Screenshots(const QString &folder, const WorkFolder &work);

    [[nodiscard]] Result<> takeAll(WindowSettings::ThemeChoice theme);

private:
    void takePickers();
    void takeFinder();
    void takeDialogs();
    void takeOwnDialogs();
    void takeTasks();
    void takeTracks();

    QObject *picker() const;
    QQuickItem *taskList() const;
    void openPicker();
    void showTag(const QString &tag);
    void type(const QString &text);
    void press(int key, const QString &text = {});
    void showPage(int page);
    /*! A clip of this kind, made with ffmpeg from its own test sources. */
    QUrl clip(const QString &name, const QString &arguments);
    void editPreset(const QString &tag, const QString &className, const QString &id);

    void waitUntil(const std::function<bool()> &isSo);
    /*! Lets animations and late bindings come to rest. */
    void settle(int pause = 500);
    void take(const QString &name, QQuickWindow *window = nullptr);
    QImage drawn(const QQuickWindow &window);
    /*! Takes the open dialog, and closes it. */
    void takeDialog(const QString &name);

    const QDir m_folder;
    const WorkFolder &m_work;
    MainWindow m_window;
    Result<> m_result;
};

Screenshots::Screenshots(const QString &folder, const WorkFolder &work)
    : m_folder(folder)
    , m_work(work)
    , m_window(m_work.filePath(QStringLiteral("config")))
{}

Result<> Screenshots::takeAll(WindowSettings::ThemeChoice theme)
{
    if (!QDir().mkpath(m_folder.path())) {
        return failed(
            QStringLiteral("can't make the folder %1; name another one").arg(m_folder.path()));
    }
    m_result = m_window.open();
    if (!m_result) {
        return m_result;
    }
    m_window.settings().setTheme(theme);
    // The screen that isn't there has a size, which the window mustn't have.
    m_window.window()->resize(1040, 700);
    take(QStringLiteral("converter-empty"));
    showPage(1);
    take(QStringLiteral("editor-empty"));
    showPage(0);
    takePickers();
    takeFinder();
    takeDialogs();
    takeOwnDialogs();
    takeTracks();
    takeTasks();
    return m_result;
}

void Screenshots::takePickers()
{
    openPicker();
    const QVariantList tags = FormatsProxy::getInstance()->formatTags();
    for (const QVariant &tag : tags) {
        showTag(tag.toString());
        take(QStringLiteral("picker-") + tag.toString());
    }
    showTag(QStringLiteral("video"));
    type(QStringLiteral("mp"));
    take(QStringLiteral("picker-search"));
    type(QStringLiteral("zzz"));
    take(QStringLiteral("picker-search-empty"));
    QMetaObject::invokeMethod(picker(), "close");

    for (const char *id : {"Audio_MP3_002", "Audio_FLAC_001", "Video_MKV_001", "Device_APPLE_001",
                           "Video_WEBM_001", "Video_MP4_005", "Video_MP4_004"}) {
        m_window.converter().setConverterGlobalFormat(QString::fromLatin1(id));
    }
    openPicker();
    take(QStringLiteral("picker-recently-used"));
    QMetaObject::invokeMethod(picker(), "close");
}

void Screenshots::takeFinder()
{
    PresetActions &presets = m_window.presetActions();
    const QString own = presets.duplicate(QStringLiteral("Video_MP4_005"));
    presets.rename(own, QStringLiteral("Holidays for the tablet"));
    presets.setNote(own, QStringLiteral("fits on the old tablet"));
    presets.setFavorite(QStringLiteral("Device_APPLE_001"), true);
    auto *finder = m_window.window()->property("finder").value<QObject *>();
    QMetaObject::invokeMethod(finder, "open");
    take(QStringLiteral("finder"));
    type(QStringLiteral("hevc small"));
    take(QStringLiteral("finder-search"));
    press(Qt::Key_Menu);
    take(QStringLiteral("finder-menu"));
    press(Qt::Key_Escape);
    QMetaObject::invokeMethod(finder, "close");
    presets.remove(own);
    settle();
    take(QStringLiteral("preset-deleted"));
    m_window.converter().offer()->dismiss();
}

void Screenshots::takeDialogs()
{
    editPreset(QStringLiteral("video"), QStringLiteral("MP4"), QStringLiteral("Video_MP4_004"));
    takeDialog(QStringLiteral("dialog-video"));
    editPreset(QStringLiteral("audio"), QStringLiteral("MP3"), QStringLiteral("Audio_MP3_002"));
    takeDialog(QStringLiteral("dialog-audio"));
    m_window.converter().openSelectFormatMsgBox(
        {{QStringLiteral("showText"),
          ToolFun::text(
              QStringLiteral("The selected format cannot be deleted because it is in use."))}});
    takeDialog(QStringLiteral("message"));
}

void Screenshots::takeOwnDialogs()
{
    Dialogs &dialogs = m_window.dialogs();
    dialogs.showPreferences();
    takeDialog(QStringLiteral("preferences"));
    dialogs.showAbout();
    takeDialog(QStringLiteral("about"));
    dialogs.showLog(QStringLiteral("ffmpeg -i Holidays.mkv Holidays.mp4\n"
                                   "Holidays.mkv: Invalid data found when processing input"));
    takeDialog(QStringLiteral("log"));
    dialogs.askAboutNames(m_window.converter().output(),
                          {QStringLiteral("Holidays.mp4"), QStringLiteral("Lake at dawn.mp4")});
    takeDialog(QStringLiteral("names-in-use"));

    PresetActions &presets = m_window.presetActions();
    const QString own = presets.duplicate(QStringLiteral("Video_MP4_005"));
    presets.rename(own, QStringLiteral("Holidays for the tablet"));
    dialogs.showPresetChanges(own);
    takeDialog(QStringLiteral("preset-changes"));
    const QString exported = m_work.filePath(QStringLiteral("presets.json"));
    m_window.presetExchange().exportPresets({own}, exported);
    m_window.presetExchange().preview({exported});
    takeDialog(QStringLiteral("import"));
    presets.remove(own);
    m_window.converter().offer()->dismiss();
}

void Screenshots::takeTasks()
{
    const QString film = QStringLiteral("-f lavfi -i gradients=size=1280x720:rate=30:duration=%1:"
                                        "seed=%2:speed=0.02 -f lavfi -i sine=duration=%1 "
                                        "-c:v libx264 -preset ultrafast -c:a aac");
    const QList<QUrl> files = {
        clip(QStringLiteral("Lake at dawn.mp4"), film.arg(3).arg(7)),
        clip(QStringLiteral("Holidays.mkv"), film.arg(12).arg(21)),
        clip(QStringLiteral("Interview.wav"), QStringLiteral("-f lavfi -i sine=duration=65")),
        clip(QStringLiteral("Broken.mov"), QStringLiteral("-f lavfi -i sine=duration=1 -f s16le")),
    };
    for (Page *page :
         {static_cast<Page *>(&m_window.converter()), static_cast<Page *>(&m_window.editor())}) {
        page->addFiles(files);
        const TaskList &tasks = *page->tasks();
        waitUntil([&tasks] {
            return std::all_of(tasks.tasks().begin(), tasks.tasks().end(), [](const Task &task) {
                return task.state == Task::Failed ||
                       (task.state == Task::Ready &&
                        (task.facts.video() == nullptr || !task.thumbnail.isEmpty()));
            });
        });
    }
    take(QStringLiteral("converter-ready"));
    auto *panel = m_window.window()->findChild<QObject *>(QStringLiteral("outputPanel"));
    QMetaObject::invokeMethod(panel, "open");
    take(QStringLiteral("output-panel"));
    QMetaObject::invokeMethod(panel, "close");
    showPage(1);
    m_window.editor().cut(m_window.editor().tasks()->tasks().at(1).id, 1.5, 8);
    take(QStringLiteral("editor-ready"));
    showPage(0);

    Page &page = m_window.converter();
    TaskList &tasks = *page.tasks();
    page.selection()->set(tasks.tasks().at(0).id);
    page.selection()->extendTo(tasks.tasks().at(1).id);
    m_window.converter().setConvertingListTaskFormat(tasks.tasks().at(2).id,
                                                     QStringLiteral("Video_MP4_004"));
    page.remove(tasks.tasks().at(3).id);
    take(QStringLiteral("converter-problem"));
    QMetaObject::invokeMethod(taskList(), "forceActiveFocus");
    press(Qt::Key_Menu);
    take(QStringLiteral("task-menu"));
    press(Qt::Key_Escape);
    page.undoRemoval();
    page.selection()->clear();
    const QString results = m_work.filePath(QStringLiteral("Converted"));
    QDir().mkpath(results);
    m_window.converter().setFolder(results);
    m_window.converter().setConvertingListTaskFormat(tasks.tasks().at(2).id,
                                                     QStringLiteral("Audio_MP3_002"));
    m_window.converter().convertAll();
    waitUntil([&tasks] { return tasks.tasks().at(1).progress.percent() > 20; });
    take(QStringLiteral("converter-running"));
    page.pause();
    m_window.window()->close();
    take(QStringLiteral("converter-closing"));
    press(Qt::Key_Escape);
    page.resume();
    waitUntil([this] { return !m_window.converter().isBusy(); });
    take(QStringLiteral("converter-done"));
}

void Screenshots::takeTracks()
{
    const QString words = m_work.filePath(QStringLiteral("words.srt"));
    QFile file(words);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write("1\n00:00:00,100 --> 00:00:00,900\nGood evening\n") < 0) {
        m_result = failed(QStringLiteral("can't write %1; free some space").arg(words));
        return;
    }
    file.close();
    const QUrl film =
        clip(QStringLiteral("Concert.mkv"),
             QStringLiteral("-f lavfi -i gradients=size=1280x720:rate=30:duration=5:seed=7 "
                            "-f lavfi -i sine=duration=5 -i %1 -map 0 -map 1 -map 1 -map 1 -map 2 "
                            "-map 2 -c:v libx264 -preset ultrafast -c:a aac -ac:a:0 6 -c:s srt "
                            "-metadata:s:a:0 language=eng -metadata:s:a:1 language=ger "
                            "-metadata:s:a:2 language=eng -metadata:s:a:2 title=Commentary-of-the-"
                            "director-the-conductor-and-the-first-violin-about-a-long-evening "
                            "-metadata:s:s:0 language=eng -metadata:s:s:1 language=ger "
                            "-disposition:s:1 forced")
                 .arg(words));
    Page &page = m_window.converter();
    page.addFiles({film});
    const int id = page.idAt(0);
    waitUntil([&page, id] { return !page.tasks()->find(id)->thumbnail.isEmpty(); });
    page.tracks()->keep(id, TaskTracks::Audio, 2, false);
    page.tracks()->burn(id, 2);
    page.tracks()->setOpen(id, true);
    take(QStringLiteral("converter-tracks"));
    m_window.converter().setConvertingListTaskFormat(id, QStringLiteral("Audio_MP3_002"));
    take(QStringLiteral("converter-tracks-left-out"));
    page.remove(id);
    page.offer()->dismiss();
}

QObject *Screenshots::picker() const
{
    return m_window.window()->property("picker").value<QObject *>();
}

/*! The list of the page in sight. */
QQuickItem *Screenshots::taskList() const
{
    const QList<QQuickItem *> items = m_window.window()->findChildren<QQuickItem *>();
    return *std::find_if(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->isVisible() && item->property("firstInSight").isValid();
    });
}

void Screenshots::openPicker()
{
    QMetaObject::invokeMethod(m_window.window(), "openGlobalPicker");
    settle();
}

void Screenshots::showTag(const QString &tag)
{
    QMetaObject::invokeMethod(picker(), "showTag", Q_ARG(QVariant, tag));
    settle();
}

void Screenshots::type(const QString &text)
{
    for (const QChar letter : text) {
        press(0, QString(letter));
    }
    settle();
}

void Screenshots::press(int key, const QString &text)
{
    for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(m_window.window(), &event);
    }
}

void Screenshots::showPage(int page)
{
    m_window.window()->setProperty("currentPage", page);
}

QUrl Screenshots::clip(const QString &name, const QString &arguments)
{
    const QString path = m_work.filePath(name);
    bool isMade = false;
    Tool ffmpeg;
    QObject::connect(&ffmpeg, &Tool::finished, &m_window,
                     [this, &isMade](const Result<ToolRun> &made) {
                         isMade = true;
                         if (!made) {
                             m_result = failed(made);
                         }
                     });
    ffmpeg.start(ffmpegCall(arguments.split(QLatin1Char(' ')) + QStringList{path}));
    waitUntil([&isMade] { return isMade; });
    return QUrl::fromLocalFile(path);
}

void Screenshots::editPreset(const QString &tag, const QString &className, const QString &id)
{
    m_window.converter().openConvertionParametersMsgBox({
        {QStringLiteral("format"), tag},
        {QStringLiteral("curclass"), className},
        {QStringLiteral("idIndex"), id},
        {QStringLiteral("openTheWay"), true},
        {QStringLiteral("fromPAGE"), QStringLiteral("Converter")},
        {QStringLiteral("userDefine"), false},
    });
    settle();
}

void Screenshots::waitUntil(const std::function<bool()> &isSo)
{
    constexpr int patience = 120000;
    QElapsedTimer clock;
    clock.start();
    while (!isSo()) {
        if (clock.elapsed() >= patience) {
            m_result = failed(QStringLiteral("a screen didn't get ready in time"));
            return;
        }
        settle(20);
    }
}

void Screenshots::settle(int pause)
{
    QEventLoop loop;
    QTimer::singleShot(pause, &loop, &QEventLoop::quit);
    loop.exec();
}

void Screenshots::take(const QString &name, QQuickWindow *window)
{
    settle();
    QQuickWindow *shown = window == nullptr ? m_window.window() : window;
    const QImage image = QGuiApplication::platformName() == QLatin1String("offscreen")
                             ? drawn(*shown)
                             : shown->grabWindow();
    const QString path = m_folder.absoluteFilePath(name + QStringLiteral(".png"));
    if (!image.save(path)) {
        m_result = failed(QStringLiteral("can't write %1; name another folder").arg(path));
    }
}

/*! Without a screen there is no window to grab: its content is drawn once more, on its ground. */
QImage Screenshots::drawn(const QQuickWindow &window)
{
    const QSize pixels = window.size() * window.effectiveDevicePixelRatio();
    const auto grabbed = window.contentItem()->grabToImage(pixels);
    bool isDrawn = false;
    QObject::connect(grabbed.data(), &QQuickItemGrabResult::ready, &m_window,
                     [&isDrawn] { isDrawn = true; });
    waitUntil([&isDrawn] { return isDrawn; });
    QImage content = grabbed->image();
    content.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied); // it calls itself opaque
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(window.color());
    QPainter(&image).drawImage(0, 0, content);
    return image;
}

void Screenshots::takeDialog(const QString &name)
{
    settle();
    take(name, m_window.dialog()->window());
    m_window.dialog()->cancelClicked();
}

} // namespace

/*!
 * screenshots DIR [LANGUAGE] [light|dark]: writes pictures of all of the window's screens into DIR.
 * They have the scale of QT_SCALE_FACTOR. Unless QT_QPA_PLATFORM says otherwise, there is no screen
 * to follow.
 */
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QQuickStyle::setStyle(QStringLiteral("Default"));
    const QString language =
        Languages::suiting(argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("en"));
    Languages::chooseGlyphs(language);
    QApplication app(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(VEX_VERSION));
    const QStringList arguments = QApplication::arguments();
    const QString theme = arguments.value(3, QStringLiteral("light"));
    const bool isTheme = theme == QLatin1String("light") || theme == QLatin1String("dark");
    if (arguments.size() < 2 || arguments.size() > 4 || language.isEmpty() || !isTheme) {
        return report({QStringLiteral("usage: screenshots DIR [LANGUAGE] [light|dark]; the "
                                      "languages are %1")
                           .arg(Languages::all().join(QStringLiteral(", "))),
                       Error::WrongUsage});
    }
    Languages::install(language);
    const Result<WorkFolder> work = WorkFolder::make();
    if (!work) {
        return report({QStringLiteral("no temporary folder: %1").arg(work.error().text)});
    }
    const Result<> taken =
        Screenshots(arguments.at(1), *work)
            .takeAll(theme == QLatin1String("dark") ? WindowSettings::DarkTheme
                                                    : WindowSettings::LightTheme);
    return taken ? Success : report(taken.error());
}
