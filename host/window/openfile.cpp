#include "host/window/openfile.h"

#include "host/files/localpath.h"
#include "host/files/visibletext.h"
#include "host/window/toolfun.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>

namespace {

Result<> openFolder(const QString &folder)
{
    if (QDesktopServices::openUrl(localUrl(folder))) {
        return {};
    }
    return failed(ToolFun::text(QStringLiteral("No file manager could be started to show the "
                                               "folder %1; open it by hand"))
                      .arg(visiblePath(folder)));
}

} // namespace

void showFile(const QString &path, const std::function<void(const QString &line)> &failed)
{
    const QString folder = QFileInfo(path).absolutePath();
    const auto showFolder = [folder, failed] {
        const Result<> opened = openFolder(folder);
        if (!opened) {
            failed(opened.error().text);
        }
    };
    if (!QFileInfo::exists(path) || !QDBusConnection::sessionBus().isConnected()) {
        showFolder();
        return;
    }
    QDBusMessage show = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString url = QString::fromLatin1(localUrl(path).toEncoded());
    show << QStringList{url} << QString();
    constexpr int patience = 5000; // a file manager may have to start first
    auto *call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(show, patience));
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call, [call, showFolder] {
        call->deleteLater();
        if (call->isError()) {
            showFolder();
        }
    });
}

Result<> playFile(const QString &path)
{
    if (!QFileInfo::exists(path)) {
        return failed(
            ToolFun::text(QStringLiteral("There is no file %1 any more; convert it again"))
                .arg(visiblePath(path)));
    }
    if (!QDesktopServices::openUrl(localUrl(path))) {
        return failed(ToolFun::text(QStringLiteral("No player could be started for %1; open it by "
                                                   "hand"))
                          .arg(visiblePath(path)));
    }
    return {};
}
