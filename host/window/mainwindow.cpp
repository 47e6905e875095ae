#include "host/window/mainwindow.h"

#include "host/window/appearance.h"
#include "host/window/desktopfeedback.h"
#include "host/window/outputchoice.h"
#include "host/window/presetactions.h"
#include "host/window/presetexchange.h"
#include "host/window/presetfinder.h"
#include "host/window/presets.h"
#include "host/window/qmltypes.h"
#include "host/window/queuekeeper.h"
#include "host/window/singleinstance.h"
#include "host/window/sizesampler.h"
#include "host/window/windowplace.h"
#include "host/window/windowsettings.h"

#include "formats/proxy/formatsproxy.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickWindow>
#include <QSessionManager>

/*! A static library's resources need this call, which must not be in a namespace. */
static void initResources()
{
    Q_INIT_RESOURCE(window);
    Q_INIT_RESOURCE(translations);
}

namespace {

QtMessageHandler usualHandler = nullptr;

/*! Leaves out what Qt says of rows that a list gave up while it was making them ahead: it goes on
 *  counting them. */
void leaveOutMiscount(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.contains(QLatin1String("in the process of being created"))) {
        usualHandler(type, context, text);
    }
}

} // namespace

MainWindow::MainWindow(const QString &configFolder, QObject *parent)
    : QObject(parent)
    , m_store(*FormatsProxy::getInstance(), configFolder,
              [this](const QString &line) { m_notices.add(line); })
{
    initResources();
}

MainWindow::~MainWindow()
{
    m_sampler.reset();
    m_feedback.reset();
    m_place.reset();
    endEngine();
    if (m_queue != nullptr) {
        m_queue->flush();
        m_presets->flush();
    }
}

void MainWindow::endEngine()
{
    usualHandler = qInstallMessageHandler(leaveOutMiscount);
    m_engine.reset();
    qInstallMessageHandler(usualHandler);
}

Result<> MainWindow::open()
{
    Result<> locked = m_store.lock(0);
    if (!locked) {
        return locked;
    }
    const Result<> opened = m_store.open(PresetStore::ReadWrite, UserFile::MoveAside);
    if (!opened) {
        m_notices.add(opened.error().text);
    }
    m_settings =
        std::make_unique<WindowSettings>(m_store.filePath(QStringLiteral("vexconvert.ini")), this);
    m_output = std::make_unique<OutputChoice>(*m_settings, std::nullopt, this);
    m_appearance = std::make_unique<Appearance>(*m_settings, this);
    m_presets = std::make_unique<Presets>(m_store);
    for (const PageKind page : {PageKind::Converter, PageKind::Editor}) {
        const QString wanted = m_settings->globalId(page);
        const QString usable = m_presets->usable(wanted, {});
        if (usable != wanted) {
            m_settings->standIn(page, usable);
        }
    }
    m_converter = std::make_unique<ConverterProxy>(*m_settings, *m_presets, this);
    m_editor = std::make_unique<EditorProxy>(*m_settings, *m_presets, this);
    m_finder = std::make_unique<PresetFinder>(m_store, *m_presets, this);
    m_actions = std::make_unique<PresetActions>(
        m_store, *m_presets,
        [this](const QString &id) {
            return m_converter->checkFormatUsed(id) || m_editor->checkFormatUsed(id);
        },
        this);
    m_exchange = std::make_unique<PresetExchange>(m_store, *m_presets, this);
    m_queue = std::make_unique<QueueKeeper>(
        m_store.filePath(QStringLiteral("queue.json")),
        QMap<QString, Page *>{{QStringLiteral("converter"), m_converter.get()},
                              {QStringLiteral("editor"), m_editor.get()}});
    connect(m_queue.get(), &QueueKeeper::noticed, &m_notices, &Notices::add);
    connect(m_presets.get(), &Presets::saveFailed, &m_notices, &Notices::add);
    connectPages();
    connectPresets();
    m_queue->restore();
    publish();
    m_engine->load(QUrl(QStringLiteral("qrc:/window/Main.qml")));
    if (window() == nullptr) {
        return failed(ToolFun::text(QStringLiteral("The window can't be made")));
    }
    m_place = std::make_unique<WindowPlace>(*m_settings, *window());
    m_files.setUp(window(), m_settings.get());
    m_dialogs.setUp(m_engine.get(), window());
    m_feedback = std::make_unique<DesktopFeedback>(
        QVector<Page *>{m_converter.get(), m_editor.get()}, *window(), *m_settings);
    m_sampler = std::make_unique<SizeSampler>(QVector<Page *>{m_converter.get(), m_editor.get()},
                                              *window(), *m_settings);
    // Another program may cancel the logout, so the window only saves and stays open.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager &session) {
        m_presets->flush();
        m_queue->flush();
        session.setRestartHint(QSessionManager::RestartNever);
    });
    m_instance = std::make_unique<SingleInstance>(configFolder());
    connect(m_instance.get(), &SingleInstance::asked, this, &MainWindow::present);
    m_instance->listen();
    window()->requestActivate();
    return {};
}

bool MainWindow::handOver(const QStringList &paths, int patience) const
{
    return SingleInstance(configFolder()).handOver(paths, patience);
}

void MainWindow::stopWork()
{
    m_instance.reset();
    m_sampler.reset();
    m_feedback.reset();
    m_presets->flush();
    m_queue->flush();
    m_queue.reset();
    m_converter.reset();
    m_editor.reset();
}

void MainWindow::present(const QStringList &paths)
{
    if (!paths.isEmpty()) {
        window()->setProperty("currentPage", 0);
        m_converter->addPaths(paths);
    }
    window()->setWindowStates(window()->windowStates() & ~Qt::WindowMinimized);
    window()->raise();
    window()->requestActivate();
}

QString MainWindow::configFolder() const
{
    return m_store.filePath(QStringLiteral("."));
}

QQuickWindow *MainWindow::window() const
{
    return m_engine == nullptr || m_engine->rootObjects().isEmpty()
               ? nullptr
               : qobject_cast<QQuickWindow *>(m_engine->rootObjects().constFirst());
}

void MainWindow::connectPages()
{
    for (Page *page :
         {static_cast<Page *>(m_converter.get()), static_cast<Page *>(m_editor.get())}) {
        connect(page, &Page::noticed, &m_notices, &Notices::add);
        connect(page->logs(), &TaskLogs::shown, &m_dialogs, &Dialogs::showLog);
        connect(page->output(), &PageOutput::asked, &m_dialogs,
                [this, page](const QStringList &names) {
                    m_dialogs.askAboutNames(page->output(), names);
                });
    }
    connect(m_converter.get(), &ConverterProxy::editingAsked, this, &MainWindow::editPreset);
    connect(m_converter.get(), &ConverterProxy::messageAsked, &m_dialogs, &Dialogs::showMessage);
    connect(m_converter.get(), &ConverterProxy::editorAsked, this,
            [this](const QString &source, const QString &format) {
                m_editor->addWithFormat(source, format);
                window()->setProperty("currentPage", 1);
            });
}

Page &MainWindow::shownPage() const
{
    // What is saved at the end is told after the window has gone.
    const bool isEditor = window() != nullptr && window()->property("currentPage").toInt() == 1;
    return isEditor ? static_cast<Page &>(*m_editor) : *m_converter;
}

void MainWindow::connectPresets()
{
    const auto tell = [this](const QString &line) { shownPage().offer()->make(line, {}, {}); };
    const auto refuse = [this](const QString &line) {
        m_dialogs.showMessage({{QStringLiteral("showText"), line}});
    };
    const auto offerUndo = [this](const QString &done) {
        shownPage().offer()->make(done, ToolFun::text(QStringLiteral("Undo")),
                                  [this] { m_actions->undo(); });
    };
    connect(m_presets.get(), &Presets::stepMade, this,
            [offerUndo](const PresetHistory::Step &step) {
                const QString text = PresetActions::textOf(step);
                if (!text.isEmpty()) {
                    offerUndo(text);
                }
            });
    connect(m_actions.get(), &PresetActions::told, this, tell);
    connect(m_actions.get(), &PresetActions::refused, this, refuse);
    PresetExchange *exchange = m_exchange.get();
    connect(exchange, &PresetExchange::told, this, tell);
    connect(exchange, &PresetExchange::refused, this, refuse);
    connect(exchange, &PresetExchange::imported, this, [offerUndo](int count) {
        offerUndo(ToolFun::text(QStringLiteral("Presets imported: %1")).arg(count));
    });
    connect(exchange, &PresetExchange::previewed, &m_dialogs, &Dialogs::showImport);
    connect(exchange, &PresetExchange::filesWanted, this, [this, exchange] {
        m_files.choosePresetFiles(
            exchange, [exchange](const QStringList &paths) { exchange->preview(paths); });
    });
    connect(exchange, &PresetExchange::targetWanted, this,
            [this, exchange](const QStringList &ids, const QString &name) {
                m_files.choosePresetTarget(name, exchange, [exchange, ids](const QString &path) {
                    exchange->exportPresets(ids, path);
                });
            });
}

void MainWindow::publish()
{
    m_engine = std::make_unique<QQmlApplicationEngine>(this);
    m_engine->addImportPath(QStringLiteral("qrc:/modules"));
    registerQmlTypes();
    // High-DPI scaling applies to the whole scene, so sizes need no factor.
    m_engine->globalObject().setProperty(QStringLiteral("dpi"),
                                         m_engine->evaluate(QStringLiteral("(function (n) { "
                                                                           "return n })")));
    // The names that the library's screens use.
    QQmlContext *context = m_engine->rootContext();
    const QVector<QQmlContext::PropertyPair> objects = {
        {QStringLiteral("O_FormatsProxy"), QVariant::fromValue(&m_store.formats())},
        {QStringLiteral("O_ConverterProxy"), QVariant::fromValue(m_converter.get())},
        {QStringLiteral("O_EditorProxy"), QVariant::fromValue(m_editor.get())},
        {QStringLiteral("O_Setting"), QVariant::fromValue(m_settings.get())},
        {QStringLiteral("ToolFun"), QVariant::fromValue(&m_toolFun)},
    };
    context->setContextProperties(objects);
    QQmlComponent theme(m_engine.get(),
                        QUrl(QStringLiteral("qrc:/modules/VexTheme/ThemeManager.qml")));
    QObject *themeObject = theme.create(context);
    themeObject->setParent(m_engine.get());
    context->setContextProperty(QStringLiteral("VexThemeMgr"), themeObject);
}

void MainWindow::editPreset(const QVariantMap &info)
{
    const DialogFrame *dialog =
        m_dialogs.open(QStringLiteral("qrc:/formats/DetailedParameterEditingMsgBox.qml"), info);
    const QPointer<QObject> row = info.value(QStringLiteral("closeItem")).value<QObject *>();
    const bool isUserDefined = info.value(QStringLiteral("userDefine")).toBool();
    connect(dialog, &DialogFrame::closed, this, [this, row, isUserDefined](const QString &id) {
        if (id.isEmpty()) {
            return;
        }
        if (!isUserDefined) {
            // The picker stays open and shows the new preset.
            Q_EMIT m_converter->signalCreateNewFormatMsgClose(id);
        } else if (row != nullptr) {
            QMetaObject::invokeMethod(row, "colseItem");
        }
    });
}
