#include "host/window/filechooser.h"

#include "host/files/localpath.h"
#include "host/media/mediafiles.h"
#include "host/window/toolfun.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>

namespace {

QStringList usualFolders()
{
    return {QStandardPaths::writableLocation(QStandardPaths::MoviesLocation),
            QStandardPaths::writableLocation(QStandardPaths::HomeLocation)};
}

QString firstFolderOf(const QStringList &folders)
{
    const auto found = std::find_if(folders.begin(), folders.end(), [](const QString &folder) {
        return QFileInfo(folder).isDir();
    });
    return found == folders.end() ? QString() : *found;
}

QStringList nameFilters()
{
    QStringList patterns;
    for (const QString &extension : mediaExtensions()) {
        // Cameras write capitals, and not every dialog takes them for the same.
        patterns << QStringLiteral("*.") + extension << QStringLiteral("*.") + extension.toUpper();
    }
    return {QStringLiteral("%1 (%2)").arg(ToolFun::text(QStringLiteral("Videos and songs")),
                                          patterns.join(QLatin1Char(' '))),
            QStringLiteral("%1 (*)").arg(ToolFun::text(QStringLiteral("All files")))};
}

} // namespace

void FileChooser::chooseFiles(Page *page)
{
    auto *dialog = new QFileDialog(nullptr, ToolFun::text(QStringLiteral("Add files")),
                                   firstFolderOf(QStringList{m_lastFolder} + usualFolders()));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters(nameFilters());
    open(dialog, page, [this, page](const QStringList &paths) {
        m_lastFolder = QFileInfo(paths.constFirst()).absolutePath();
        page->addPaths(paths);
    });
}

void FileChooser::chooseFolder(Page *page)
{
    auto *dialog =
        new QFileDialog(nullptr, ToolFun::text(QStringLiteral("Choose folder")),
                        firstFolderOf(QStringList{page->folder(), m_lastFolder} + usualFolders()));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    open(dialog, page, [page](const QStringList &paths) { page->setFolder(paths.constFirst()); });
}

void FileChooser::open(QFileDialog *dialog, Page *page,
                       const std::function<void(const QStringList &)> &take)
{
    // A platform's dialog emits both signals, Qt's own one the second alone.
    connect(dialog, &QFileDialog::urlsSelected, page,
            [dialog, page, take](const QList<QUrl> &urls) {
                disconnect(dialog, &QFileDialog::filesSelected, page, nullptr);
                const QStringList paths = localPaths(urls);
                if (!paths.isEmpty()) {
                    take(paths);
                }
            });
    connect(dialog, &QFileDialog::filesSelected, page, take);
    connect(dialog, &QDialog::finished, this, [this] {
        if (m_window != nullptr) {
            m_window->requestActivate();
        }
    });
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    placeOverWindow(dialog);
    dialog->show();
}

void FileChooser::placeOverWindow(QFileDialog *dialog) const
{
    if (m_window == nullptr) {
        return;
    }
    dialog->winId(); // makes the dialog's QWindow
    dialog->windowHandle()->setTransientParent(m_window);
    const QRect screen = m_window->screen()->availableGeometry();
    QRect place(QPoint(), dialog->size().boundedTo(screen.size()));
    place.moveCenter(m_window->geometry().center());
    place.moveLeft(qBound(screen.left(), place.left(), screen.right() - place.width() + 1));
    place.moveTop(qBound(screen.top(), place.top(), screen.bottom() - place.height() + 1));
    dialog->setGeometry(place);
}
