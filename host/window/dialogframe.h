#ifndef WINDOW_DIALOGFRAME_H
#define WINDOW_DIALOGFRAME_H

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVariantMap>

#include <memory>

class QQmlEngine;

/*!
 * A dialog in a window of its own. The QML file with its content refers to it as "frame" and
 * "O_Frame"; the window follows the content's size.
 */
class DialogFrame : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantMap info READ info CONSTANT)
    Q_PROPERTY(bool isLight READ isLight CONSTANT)

public:
    /*! \a info is the dialog's input. The dialog deletes itself when it is closed. */
    DialogFrame(QQmlEngine &engine, const QUrl &content, const QVariantMap &info,
                QWindow *transientParent);
    ~DialogFrame() override;

    QVariantMap info() const { return m_info; }
    /*! Whether the dialog is light in every theme, as those of the library are. */
    bool isLight() const { return m_isLight; }
    QQuickWindow *window() { return &m_window; }

    Q_INVOKABLE void resizeWinSize(int width, int height);
    /*! Closes the dialog. \a id is the preset that it saved, if any. */
    Q_INVOKABLE void cancelClicked(const QString &id = QString());
    /*! Call it on a press of the title bar: the window system then moves the window. */
    Q_INVOKABLE void startMoving();

Q_SIGNALS:
    void closed(const QString &savedId);

private:
    const QVariantMap m_info;
    const bool m_isLight;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_content;
};

#endif
