#include "host/window/filechooser.h"

#include "host/files/localpath.h"
#include "host/media/mediafiles.h"
#include "host/window/toolfun.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSortFilterProxyModel>
#include <QStandardPaths>

#include <algorithm>

namespace {

/*!
 * Qt's own dialog takes what is selected in its list, where it selects what the user types: each
 * folder on the way, too, and of several files only those that the list shows already. Here, what
 * is typed counts.
 */
class FilesDialog : public QFileDialog
{
public:
    using QFileDialog::QFileDialog;

    void accept() override
    {
        auto *list = findChild<QListView *>(QStringLiteral("listView"));
        const auto *field = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        // Native dialogs have neither.
        if (list != nullptr && field != nullptr && isTyped(field->text(), *list)) {
            list->clearSelection();
        }
        QFileDialog::accept();
    }

private:
    /*! Whether the text isn't the one that the dialog wrote for the files that were clicked. */
    static bool isTyped(const QString &text, const QListView &list)
    {
        QStringList names;
        const QModelIndexList rows = list.selectionModel()->selectedRows();
        for (const QModelIndex &row : rows) {
            if (!QFileInfo(row.data(QFileSystemModel::FilePathRole).toString()).isDir()) {
                names << row.data().toString();
            } else if (row.parent() == list.rootIndex()) {
                return false; // the folder is to be opened
            }
        }
        return text != (names.size() > 1
                            ? QStringLiteral("\"%1\"").arg(names.join(QLatin1String("\" \"")))
                            : names.join(QString()));
    }
};

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

QString nameFilter(const QString &title, const QStringList &patterns)
{
    return QStringLiteral("%1 (%2)").arg(ToolFun::text(title), patterns.join(QLatin1Char(' ')));
}

QStringList mediaPatterns()
{
    QStringList patterns;
    for (const QString &extension : mediaExtensions()) {
        // Cameras use upper case, and not every dialog ignores case.
        patterns << QStringLiteral("*.") + extension << QStringLiteral("*.") + extension.toUpper();
    }
    return patterns;
}

/*!
 * Hides all but media files in Qt's own dialog. Its name filters would do so too, but with that
 * many patterns they take seconds for a thousand files.
 */
class MediaOnly : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setActive(bool isActive)
    {
        m_isActive = isActive;
        invalidateFilter();
    }

    /*! The source model sorts by what a column means, folders first. */
    void sort(int column, Qt::SortOrder order) override { sourceModel()->sort(column, order); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        const auto *files = qobject_cast<const QFileSystemModel *>(sourceModel());
        const QModelIndex file = files->index(row, 0, parent);
        return !m_isActive || isMediaName(files->fileName(file)) || files->isDir(file);
    }

private:
    bool m_isActive = true;
};

void showMediaFirst(QFileDialog *dialog)
{
    const QStringList everything = {QStringLiteral("*")};
    const QString all = nameFilter(QStringLiteral("All files"), everything);
    const bool isQtsOwn = dialog->layout() != nullptr;
    const QString media = nameFilter(QStringLiteral("Video and audio files"),
                                     isQtsOwn ? everything : mediaPatterns());
    if (isQtsOwn) {
        auto *mediaOnly = new MediaOnly(dialog);
        dialog->setProxyModel(mediaOnly);
        // The dialog emits only the filter's title.
        QObject::connect(
            dialog, &QFileDialog::filterSelected, mediaOnly,
            [=](const QString &title) { mediaOnly->setActive(media.startsWith(title)); });
    }
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters({media, all});
}

void showPresetFiles(QFileDialog *dialog)
{
    dialog->setNameFilters(
        {nameFilter(QStringLiteral("Files of presets"), {QStringLiteral("*.json")}),
         nameFilter(QStringLiteral("All files"), {QStringLiteral("*")})});
}

} // namespace

void FileChooser::setUp(QWindow *window, WindowSettings *settings)
{
    m_window = window;
    m_settings = settings;
}

void FileChooser::chooseFiles(Page *page)
{
    auto *dialog =
        new FilesDialog(nullptr, ToolFun::text(QStringLiteral("Add files")),
                        firstFolderOf(QStringList{m_settings->lastFolder()} + usualFolders()));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    showMediaFirst(dialog);
    open(dialog, page, [this, page](const QStringList &paths) {
        m_settings->setLastFolder(QFileInfo(paths.constFirst()).absolutePath());
        page->addPaths(paths);
    });
}

void FileChooser::chooseMediaFolder(Page *page)
{
    openForFolder(QStringLiteral("Add folder"), m_settings->lastFolder(), page,
                  [this, page](const QString &folder) {
                      m_settings->setLastFolder(folder);
                      page->addPaths({folder});
                  });
}

void FileChooser::chooseFolder(OutputChoice *output)
{
    openForFolder(QStringLiteral("Choose folder"), output->folder(), output,
                  [output](const QString &folder) { output->setFolder(folder); });
}

void FileChooser::choosePresetFiles(QObject *receiver,
                                    const std::function<void(const QStringList &)> &take)
{
    auto *dialog =
        new FilesDialog(nullptr, ToolFun::text(QStringLiteral("Import presets")),
                        firstFolderOf(QStringList{m_settings->lastFolder()} + usualFolders()));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    showPresetFiles(dialog);
    open(dialog, receiver, take);
}

void FileChooser::choosePresetTarget(const QString &name, QObject *receiver,
                                     const std::function<void(const QString &)> &take)
{
    auto *dialog =
        new QFileDialog(nullptr, ToolFun::text(QStringLiteral("Export presets")),
                        firstFolderOf(QStringList{m_settings->lastFolder()} + usualFolders()));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("json"));
    showPresetFiles(dialog);
    dialog->selectFile(name);
    open(dialog, receiver, [take](const QStringList &paths) { take(paths.constFirst()); });
}

void FileChooser::openForFolder(const QString &title, const QString &start, QObject *receiver,
                                const std::function<void(const QString &)> &take)
{
    auto *dialog = new QFileDialog(
        nullptr, ToolFun::text(title),
        firstFolderOf(QStringList{start, m_settings->lastFolder()} + usualFolders()));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    open(dialog, receiver, [take](const QStringList &paths) { take(paths.constFirst()); });
}

void FileChooser::open(QFileDialog *dialog, QObject *receiver,
                       const std::function<void(const QStringList &)> &take)
{
    // Native dialogs emit both signals, Qt's own one only the second.
    connect(dialog, &QFileDialog::urlsSelected, receiver,
            [dialog, receiver, take](const QList<QUrl> &urls) {
                disconnect(dialog, &QFileDialog::filesSelected, receiver, nullptr);
                const QStringList paths = localPaths(urls);
                if (!paths.isEmpty()) {
                    take(paths);
                }
            });
    connect(dialog, &QFileDialog::filesSelected, receiver, take);
    QWindow *modal = QGuiApplication::modalWindow(); // such as the preferences
    const QPointer<QWindow> window = modal == nullptr ? m_window.data() : modal;
    connect(dialog, &QDialog::finished, this, [window] {
        if (window != nullptr) {
            window->requestActivate();
        }
    });
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    if (window != nullptr) {
        placeOver(window, dialog);
    }
    dialog->show();
}

void FileChooser::placeOver(QWindow *window, QFileDialog *dialog)
{
    dialog->winId(); // creates the dialog's QWindow
    dialog->windowHandle()->setTransientParent(window);
    const QRect screen = window->screen()->availableGeometry();
    QRect place(QPoint(), dialog->size().boundedTo(screen.size()));
    place.moveCenter(window->geometry().center());
    place.moveLeft(qBound(screen.left(), place.left(), screen.right() - place.width() + 1));
    place.moveTop(qBound(screen.top(), place.top(), screen.bottom() - place.height() + 1));
    dialog->setGeometry(place);
}
