#ifndef WINDOW_MAINWINDOW_H
#define WINDOW_MAINWINDOW_H

#include "host/presets/presetstore.h"
#include "host/window/dialogs.h"
#include "host/window/filechooser.h"
#include "host/window/notices.h"
#include "host/window/toolfun.h"

#include <QObject>
#include <QQmlApplicationEngine>

#include <memory>

class Appearance;
class ConverterProxy;
class DesktopFeedback;
class EditorProxy;
class OutputChoice;
class Page;
class PresetActions;
class PresetExchange;
class PresetFinder;
class Presets;
class QueueKeeper;
class QQuickWindow;
class WindowPlace;
class WindowSettings;
class SingleInstance;
class SizeSampler;

/*! The window with its two pages, and all objects that its QML files use. */
class MainWindow : public QObject
{
    Q_OBJECT

public:
    /*! An empty \a configFolder means the platform's. */
    explicit MainWindow(const QString &configFolder, QObject *parent = nullptr);
    ~MainWindow() override;

    /*!
     * Locks the configuration folder, repairs damaged files and shows the window. Fails with
     * Error::InUse if another program or window uses the folder; may then be called again.
     */
    [[nodiscard]] Result<> open();
    /*! Passes the files to that window. False if none answers within \a patience ms. */
    [[nodiscard]] bool handOver(const QStringList &paths, int patience) const;
    /*! For when the display is lost: saves, stops the conversions and removes unfinished files. */
    void stopWork();

    /*! Null before open(). */
    QQuickWindow *window() const;
    /*! The open dialog; null if there is none. */
    DialogFrame *dialog() const { return m_dialogs.current(); }
    Dialogs &dialogs() { return m_dialogs; }
    ConverterProxy &converter() const { return *m_converter; }
    EditorProxy &editor() const { return *m_editor; }
    WindowSettings &settings() const { return *m_settings; }
    PresetFinder &presetFinder() const { return *m_finder; }
    PresetActions &presetActions() const { return *m_actions; }
    PresetExchange &presetExchange() const { return *m_exchange; }

private:
    /*! Adds the files to the converter page and raises the window. */
    void present(const QStringList &paths);
    QString configFolder() const;
    void endEngine();
    Page &shownPage() const;
    void connectPages();
    void connectPresets();
    void publish();
    void editPreset(const QVariantMap &info);

    Notices m_notices{this};
    PresetStore m_store;
    ToolFun m_toolFun{this};
    FileChooser m_files{this};
    Dialogs m_dialogs{this};
    std::unique_ptr<WindowSettings> m_settings;
    std::unique_ptr<OutputChoice> m_output; // of both pages
    std::unique_ptr<Appearance> m_appearance;
    std::unique_ptr<Presets> m_presets;
    std::unique_ptr<ConverterProxy> m_converter;
    std::unique_ptr<EditorProxy> m_editor;
    std::unique_ptr<PresetFinder> m_finder;
    std::unique_ptr<PresetActions> m_actions;
    std::unique_ptr<PresetExchange> m_exchange;
    std::unique_ptr<QueueKeeper> m_queue; // of both pages
    std::unique_ptr<SingleInstance> m_instance;
    std::unique_ptr<DesktopFeedback> m_feedback;
    // Destroyed before all of the above, which it uses.
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    std::unique_ptr<WindowPlace> m_place; // of the engine's window
    std::unique_ptr<SizeSampler> m_sampler;
};

#endif
