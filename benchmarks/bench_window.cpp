// How long the window takes to respond: each figure is printed beside the delay that a person does
// not notice, and the exit code is 1 if one exceeds it. With "--large" it does so with a catalogue
// of 1,000 formats with 100 presets each, whose delays may be noticed but mustn't disturb. With
// "--scroll" it only scrolls. It runs without a screen; with QT_QPA_PLATFORM=xcb it opens real
// windows, as under xvfb-run.

#include "formats/models/formatdetailmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/windowsettings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <ctime>

namespace {

/*! Exits if what is to be timed didn't happen. */
void require(bool isSo, const char *otherwise)
{
    if (!isSo) {
        qFatal("%s", otherwise);
    }
}

bool report(const QString &what, double milliseconds, double limit)
{
    QTextStream(stdout) << QStringLiteral("%1 %2 ms, at most %3 ms\n")
                               .arg(what, -52)
                               .arg(milliseconds, 8, 'f', 1)
                               .arg(limit);
    return milliseconds <= limit;
}

double sinceStart(const QElapsedTimer &clock)
{
    return double(clock.nsecsElapsed()) / 1e6;
}

/*! Renders the window's changes and returns when that is done. */
void waitForFrame(QQuickWindow *window)
{
    QEventLoop loop;
    QObject::connect(window, &QQuickWindow::afterRendering, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    window->update();
    loop.exec();
}

/*! The picker builds the rows out of sight while it is idle. */
void waitUntilBuiltAhead(bool hasManyRows)
{
    if (hasManyRows) {
        QEventLoop loop;
        QTimer::singleShot(1500, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

/*! The first preset of the format with the most presets. */
QString presetOfTheBiggestClass(FormatsProxy &formats)
{
    const FormatListModel &list = *formats.formatListModel();
    const FormatDetailModel *biggest = nullptr;
    for (int row = 0; row < list.rowCount(); ++row) {
        const FormatDetailModel *presets = list.formatDetailModel(list.getTitle(row));
        if (biggest == nullptr || presets->rowCount() > biggest->rowCount()) {
            biggest = presets;
        }
    }
    return biggest->getId(0);
}

void press(QQuickWindow *window, QChar letter)
{
    QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
    QCoreApplication::sendEvent(window, &event);
}

/*! How long a timer that should fire all the time was kept from it at most, in ms. */
class LongestBlock : public QObject
{
public:
    LongestBlock()
    {
        m_clock.start();
        startTimer(0);
    }
    [[nodiscard]] double milliseconds() const { return m_longest; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        m_longest = std::max(m_longest, sinceStart(m_clock));
        m_clock.restart();
    }

private:
    QElapsedTimer m_clock;
    double m_longest = 0;
};

/*! Makes a clip from one of ffmpeg's test sources. */
void makeClip(const QString &source, const QString &path)
{
    require(QProcess::execute(QStringLiteral("ffmpeg"),
                              {QStringLiteral("-nostdin"), QStringLiteral("-v"),
                               QStringLiteral("error"), QStringLiteral("-f"),
                               QStringLiteral("lavfi"), QStringLiteral("-i"), source,
                               QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"), path}) == 0,
            "ffmpeg doesn't make the clips");
}

/*! A folder with a thousand short films and songs. */
void fillFolder(const QString &folder)
{
    const QString film = folder + QStringLiteral("/0.mp4");
    const QString song = folder + QStringLiteral("/1.wav");
    makeClip(QStringLiteral("testsrc2=s=1280x720:d=2"), film);
    makeClip(QStringLiteral("sine=d=2"), song);
    for (int i = 2; i < 1000; ++i) {
        const QString &source = i % 2 == 0 ? film : song;
        QFile::copy(source, QStringLiteral("%1/%2.%3").arg(folder).arg(i).arg(source.right(3)));
    }
}

/*! Drops a folder with a thousand files; false if the window takes too long to show what they are.
 */
bool dropsFast(MainWindow &main)
{
    const QTemporaryDir folder;
    fillFolder(folder.path());
    Page &page = main.converter();
    const auto isUnread = [](const Task &task) { return task.state == Task::Reading; };
    QElapsedTimer clock;
    LongestBlock block;
    clock.start();
    QTimer::singleShot(0, &page, [&] { page.addFiles({QUrl::fromLocalFile(folder.path())}); });
    const auto areRead = [&] {
        const QVector<Task> &tasks = page.tasks()->tasks();
        return tasks.size() == 1000 && std::none_of(tasks.begin(), tasks.end(), isUnread);
    };
    while (!areRead()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const bool isFast =
        report(QStringLiteral("Facts of 1,000 dropped files"), sinceStart(clock), 10000);
    return report(QStringLiteral("Longest block meanwhile"), block.milliseconds(), 100) && isFast;
}

double medianOf(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/*! Types in the preset panel; false if a letter takes too long, or the panel's index keeps the
 * window from responding. */
bool findsFast(QQuickWindow *window)
{
    QObject *panel = window->property("finder").value<QObject *>();
    LongestBlock block;
    QMetaObject::invokeMethod(panel, "open");
    waitUntilBuiltAhead(true);
    const bool isSmooth = report(QStringLiteral("Longest block while the preset panel opens"),
                                 block.milliseconds(), 100);
    QVector<double> strokes;
    for (const QChar letter : QStringLiteral("mp4 1080 h264 preset")) {
        QElapsedTimer clock;
        clock.start();
        press(window, letter);
        waitForFrame(window);
        strokes << sinceStart(clock);
    }
    QMetaObject::invokeMethod(panel, "close");
    return report(QStringLiteral("Keystroke in the preset panel, median of %1").arg(strokes.size()),
                  medianOf(strokes), 33) &&
           isSmooth;
}

/*! The list of the page in sight. */
QQuickItem *visibleList(const QQuickWindow &window)
{
    const QList<QQuickItem *> items = window.findChildren<QQuickItem *>();
    const auto list = std::find_if(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->isVisible() && item->property("dropRow").isValid();
    });
    require(list != items.end(), "there is no list in sight");
    return *list;
}

/*! What this thread has used of the processor so far, in ms; other programs don't count. */
double usedMilliseconds()
{
    timespec used = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return double(used.tv_sec) * 1e3 + double(used.tv_nsec) / 1e6;
}

/*! The most memory that the program has had so far, in MB. */
double mostMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    require(status.open(QIODevice::ReadOnly), "the memory can't be read");
    const QByteArray all = status.readAll();
    return all.mid(all.indexOf("VmHWM:") + 6).trimmed().split(' ').constFirst().toDouble() / 1024;
}

/*! Scrolls through ten thousand films by almost a screen each frame; false if a frame takes too
 *  long, or the program too much memory. */
bool scrollsSmoothly(MainWindow &main)
{
    const QTemporaryDir folder;
    const QString film = folder.filePath(QStringLiteral("film.mp4"));
    makeClip(QStringLiteral("testsrc2=s=1280x720:d=2"), film);
    Page &page = main.converter();
    page.selection()->selectAll();
    page.removeChosen(page.idAt(0));
    page.addFiles({QUrl::fromLocalFile(film)});
    TaskList &tasks = *page.tasks();
    const auto first = [&tasks] { return tasks.tasks().constFirst(); };
    while (tasks.count() == 0 || first().state == Task::Reading || first().thumbnail.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    Task task = first();
    task.thumbnail.clear(); // each row in sight asks for its own
    constexpr int count = 10000;
    for (int i = 1; i < count; ++i) {
        tasks.add(task);
    }
    waitForFrame(main.window());
    QQuickItem *list = visibleList(*main.window());
    const auto scroll = [&](double step) {
        QVector<double> frames;
        for (int frame = 1; frame <= 100; ++frame) {
            const double before = usedMilliseconds();
            list->setProperty("contentY", frame * step);
            waitForFrame(main.window());
            frames << usedMilliseconds() - before;
        }
        std::sort(frames.begin(), frames.end());
        return frames;
    };
    // As fast as a flick is at most, 2,500 pixels a second, at 30 frames a second.
    const QVector<double> flicked = scroll(2500.0 / 30);
    const QVector<double> dragged = scroll(list->height());
    bool isSmooth = report(QStringLiteral("Frame while flicking through 10,000 rows, median"),
                           medianOf(flicked), 33);
    isSmooth &= report(QStringLiteral("The slowest ten of 100 take at least"),
                       flicked.at(flicked.size() * 9 / 10), 33);
    isSmooth &= report(QStringLiteral("Frame while dragging the scroll bar, median"),
                       medianOf(dragged), 33);
    require(QMetaObject::invokeMethod(list, "positionViewAtEnd"), "the list has no end");
    waitForFrame(main.window());
    const double most = mostMegabytes();
    QTextStream(stdout) << QStringLiteral("%1 %2 MB, at most 300 MB\n")
                               .arg(QStringLiteral("Memory with 10,000 rows"), -52)
                               .arg(most, 8, 'f', 1);
    return isSmooth && most <= 300;
}

/*! Limits in ms. */
struct Limits
{
    double firstWindow;
    double picker;
    double keystroke;
    double tag;
};

/*! Writes a catalogue of 1,000 formats with 100 presets each, all like those of MP4. */
void writeLargeCatalogue(const QString &path)
{
    QFile builtIn(QStringLiteral(":/morrow/catalogue/1-video.json"));
    require(builtIn.open(QIODevice::ReadOnly), "the built-in catalogue can't be read");
    QJsonObject catalogue = QJsonDocument::fromJson(builtIn.readAll()).object();
    const QJsonObject mp4 = catalogue.value(QStringLiteral("groups")).toArray().first().toObject();
    const QJsonObject model = mp4.value(QStringLiteral("presets")).toArray().last().toObject();
    QJsonArray formats;
    for (int i = 0; i < 1000; ++i) {
        QJsonArray presets;
        for (int j = 0; j < 100; ++j) {
            QJsonObject preset = model;
            preset.insert(QStringLiteral("id"), QStringLiteral("Video_%1_%2").arg(i).arg(j));
            presets << preset;
        }
        QJsonObject format = mp4;
        format.insert(QStringLiteral("name"), QStringLiteral("MP4 %1").arg(i));
        format.insert(QStringLiteral("presets"), presets);
        formats << format;
    }
    catalogue.insert(QStringLiteral("groups"), formats);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "the large catalogue can't be written");
    file.write(QJsonDocument(catalogue).toJson());
}

} // namespace

int main(int argc, char **argv)
{
    QElapsedTimer clock;
    clock.start();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_QUICK_BACKEND", "software");
    QApplication app(argc, argv);
    QTemporaryDir config;
    const bool isLarge = app.arguments().contains(QStringLiteral("--large"));
    const Limits limits = isLarge ? Limits{2000, 150, 100, 100} : Limits{1000, 150, 16, 100};
    if (isLarge) {
        const QString catalogue = config.filePath(QStringLiteral("catalogue.json"));
        writeLargeCatalogue(catalogue);
        qputenv("VEX_EXPORT_CATALOGUE", QFile::encodeName(catalogue));
        clock.restart();
    }
    MainWindow main(config.path());
    if (const Result<> opened = main.open(); !opened) {
        qFatal("%s", qUtf8Printable(opened.error().text));
    }
    QQuickWindow *window = main.window();
    waitForFrame(window);
    bool isFast = report(QStringLiteral("First window"), sinceStart(clock), limits.firstWindow);
    if (app.arguments().contains(QStringLiteral("--scroll"))) {
        return scrollsSmoothly(main) ? 0 : 1;
    }

    QObject *picker = window->property("picker").value<QObject *>();
    main.settings().setConverterGlobalId(presetOfTheBiggestClass(*FormatsProxy::getInstance()));
    QVector<double> openings;
    for (int round = 0; round < 10; ++round) {
        clock.restart();
        QMetaObject::invokeMethod(window, "openGlobalPicker");
        waitForFrame(window);
        openings << sinceStart(clock);
        require(picker->property("opened").toBool(), "the picker isn't open");
        QMetaObject::invokeMethod(picker, "close");
        waitForFrame(window);
    }
    isFast &= report(QStringLiteral("Picker of the biggest class, first opening"),
                     openings.constFirst(), limits.picker);
    isFast &=
        report(QStringLiteral("Picker of the biggest class, median of %1").arg(openings.size()),
               medianOf(openings), limits.picker);

    QMetaObject::invokeMethod(window, "openGlobalPicker");
    waitForFrame(window);
    QVector<double> strokes;
    QVector<double> clicks;
    for (int round = 0; round < 10; ++round) {
        for (const QChar letter : QStringLiteral("mp4")) {
            waitUntilBuiltAhead(isLarge);
            clock.restart();
            press(window, letter);
            waitForFrame(window);
            strokes << sinceStart(clock);
        }
        require(FormatsProxy::getInstance()->formatListModelProxy()->searchKey() ==
                    QStringLiteral("mp4"),
                "the search field didn't receive the keys");
        waitUntilBuiltAhead(isLarge);
        clock.restart();
        QMetaObject::invokeMethod(picker, "showTag", Q_ARG(QVariant, QStringLiteral("video")));
        waitForFrame(window);
        clicks << sinceStart(clock);
    }
    isFast &=
        report(QStringLiteral("Keystroke in the search field, median of %1").arg(strokes.size()),
               medianOf(strokes), limits.keystroke);
    isFast &= report(QStringLiteral("Click on a tag, median of %1").arg(clicks.size()),
                     medianOf(clicks), limits.tag);
    QMetaObject::invokeMethod(picker, "close");
    waitForFrame(window);
    isFast &= findsFast(window);
    isFast &= dropsFast(main);
    isFast &= scrollsSmoothly(main);
    return isFast ? 0 : 1;
}
