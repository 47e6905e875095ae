#include "tests/host/window/windowuser.h"

#include <QAccessible>
#include <QMimeData>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

namespace {

constexpr int patience = 60000; // ms, on a busy machine

QStringList warnings;

void keepWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const bool isLackOfScreen = text.startsWith(QStringLiteral("This plugin does not support"));
    if (type != QtDebugMsg && type != QtInfoMsg && !isLackOfScreen) {
        warnings << text;
    }
}

} // namespace

QString WindowUser::nameOf(QQuickItem *item)
{
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
    return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
}

QPoint WindowUser::middleOf(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

QList<QQuickItem *> WindowUser::itemsNamed(QQuickItem *root, const QString &name)
{
    QList<QQuickItem *> found;
    if (!root->isVisible()) {
        return found;
    }
    const QSize size = root->window()->size();
    const bool hasName = root->property("text").toString() == name || nameOf(root) == name;
    if (hasName && QRect(QPoint(), size).contains(middleOf(root))) {
        found << root;
    }
    for (QQuickItem *child : root->childItems()) {
        found << itemsNamed(child, name);
    }
    return found;
}

bool WindowUser::click(QQuickWindow *window, const QString &name, int which)
{
    QPoint place;
    const bool isThere = QTest::qWaitFor(
        [&place, window, &name, which] {
            const QList<QQuickItem *> found = itemsNamed(window->contentItem(), name);
            if (found.size() <= which || !found.at(which)->isEnabled()) {
                return false;
            }
            const QPoint before = place;
            place = middleOf(found.at(which));
            return place == before;
        },
        patience);
    if (isThere) {
        QTest::mouseClick(window, Qt::LeftButton, {}, place);
    }
    return isThere;
}

void WindowUser::type(QWindow *window, const QString &text)
{
    for (const QChar letter : text) {
        QTest::keyClick(window, letter.toLatin1());
    }
}

void WindowUser::press(QWindow *window, Qt::Key key)
{
    const QPointer<QWindow> there = window;
    QTest::keyPress(window, key);
    if (there != nullptr) {
        QTest::keyRelease(there, key);
    }
}

void WindowUser::drop(QQuickWindow *window, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    const QPoint place(window->width() / 2, window->height() / 2);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &move);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &drop);
}

void WindowUser::collectWarnings()
{
    qInstallMessageHandler(keepWarning);
}

QString WindowUser::takeWarnings()
{
    const QString lines = warnings.join(QLatin1Char('\n'));
    warnings.clear();
    return lines;
}
