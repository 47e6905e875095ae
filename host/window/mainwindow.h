#ifndef WINDOW_MAINWINDOW_H
#define WINDOW_MAINWINDOW_H

#include "host/presets/presetstore.h"
#include "host/window/dialogframe.h"
#include "host/window/filechooser.h"
#include "host/window/notices.h"
#include "host/window/toolfun.h"

#include <QObject>
#include <QPointer>
#include <QQmlApplicationEngine>

#include <memory>

class ConverterProxy;
class EditorProxy;
class Presets;
class QQuickWindow;
class WindowSettings;
class SingleInstance;

/*! The window with its two pages, and everything that the QML files find in their context. */
class MainWindow : public QObject
{
    Q_OBJECT

public:
    /*! An empty \a configFolder is the platform's. */
    explicit MainWindow(const QString &configFolder, QObject *parent = nullptr);
    ~MainWindow() override;

    /*!
     * Locks the configuration folder, restores damaged files from good copies and shows the
     * window. Error::InUse: another program has the folder, or another window on it, and
     * it may be tried again.
     */
    [[nodiscard]] Result<> open();
    /*! Hands the files to that window. False when none answers within \a patience ms. */
    [[nodiscard]] bool handOver(const QStringList &paths, int patience) const;
    /*! Where nothing can be shown any more: saves, stops the conversions and removes what they
     * left. */
    void stopWork();

    /*! Null before open(). */
    QQuickWindow *window() const;
    /*! The dialog that is open; null when there is none. */
    DialogFrame *dialog() const { return m_dialog; }
    ConverterProxy &converter() const { return *m_converter; }
    EditorProxy &editor() const { return *m_editor; }
    WindowSettings &settings() const { return *m_settings; }

private:
    /*! Brings the window to the front, with these files added to the converter page. */
    void present(const QStringList &paths);
    QString configFolder() const;
    void publish();
    void editPreset(const QVariantMap &info);
    void openDialog(const QUrl &content, const QVariantMap &info);

    Notices m_notices{this};
    PresetStore m_store;
    ToolFun m_toolFun{this};
    FileChooser m_files{this};
    std::unique_ptr<WindowSettings> m_settings;
    std::unique_ptr<Presets> m_presets;
    std::unique_ptr<ConverterProxy> m_converter;
    std::unique_ptr<EditorProxy> m_editor;
    std::unique_ptr<SingleInstance> m_instance;
    QPointer<DialogFrame> m_dialog;
    // Destroyed first, as it shows all of the above.
    std::unique_ptr<QQmlApplicationEngine> m_engine;
};

#endif
