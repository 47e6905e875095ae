#ifndef WINDOW_FINDERTEST_H
#define WINDOW_FINDERTEST_H

#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"
#include "host/window/presetactions.h"
#include "host/window/presetfinder.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/patience.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

/*! A test of the panel that finds presets, under mouse and keys. Its files are a.wav and b.wav. */
class FinderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    void openWindow();
    /*! Opens the panel and types this. */
    void find(const QString &text);
    bool isShown(const QString &text) const;
    bool isOpen() const;
    /*! Until rows and entries have found their places. */
    void waitForDrawing();
    /*! Opens the menu of the current row; the entry of this text, null if there is none. */
    QQuickItem *menuEntry(const char *entry);
    /*! Chooses an entry of the menu of the current row. */
    void choose(const char *entry);
    /*! Makes a preset for MP4. */
    QString makeOwn(const QString &title);
    QStringList ownIds() const;
    QStringList ownTitles() const;
    ConverterProxy &page() const { return m_main->converter(); }
    QString formatOf(int row) const { return page().tasks()->tasks().at(row).format; }

    const QString mp3 = QStringLiteral("Audio_MP3_003");
    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

#endif
