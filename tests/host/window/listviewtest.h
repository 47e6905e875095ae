#ifndef WINDOW_LISTVIEWTEST_H
#define WINDOW_LISTVIEWTEST_H

#include "host/window/mainwindow.h"
#include "host/window/pageproxies.h"

#include "tests/host/window/windowuser.h"
#include "tests/support/patience.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/*! Tests of the list of a page under mouse and keys. Its files are a.wav, b.wav and c.wav. */
class ListViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

protected:
    /*! Null while it isn't there. */
    QQuickItem *row(const char *name) const;
    /*! On its name, which is no control, as soon as it is there. */
    void clickRow(const char *name, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  Qt::MouseButton button = Qt::LeftButton);
    /*! The selected files, without their suffixes: "ac". */
    QString selected() const;
    /*! All files in the order of the list: "abc". */
    QString order() const;

    /*! The entries of the open menus, from top to bottom. */
    QList<QQuickItem *> menuItems() const;
    /*! Their names. */
    QStringList menuEntries() const;
    bool isMenuOpen() const { return !menuItems().isEmpty(); }
    /*! Clicks an entry, as soon as it is there. */
    void choose(const QString &name);

    ConverterProxy &page() const { return m_main->converter(); }

    QTemporaryDir m_work;
    std::unique_ptr<MainWindow> m_main;
    QQuickWindow *m_window = nullptr;
};

#endif
