#include "host/window/filechooser.h"

#include "host/window/toolfun.h"

#include <QFileDialog>
#include <QPointer>
#include <QStandardPaths>

namespace {

void openDialog(QFileDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->show();
}

} // namespace

void FileChooser::chooseFiles(Page *page)
{
    auto *dialog = new QFileDialog(nullptr, ToolFun::text(QStringLiteral("Add files")));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    connect(dialog, &QFileDialog::urlsSelected, page, &Page::addFiles);
    openDialog(dialog);
}

void FileChooser::chooseFolder(Page *page)
{
    auto *dialog =
        new QFileDialog(nullptr, ToolFun::text(QStringLiteral("Choose folder")), page->folder());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, page, &Page::setFolder);
    openDialog(dialog);
}
