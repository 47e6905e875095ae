// Shows the formats in a list, and the presets of the chosen one beside it. With the name of a
// picture, it draws the window into that file and ends.

#include "formats/proxy/formatsproxy.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QListView>
#include <QStyledItemDelegate>

namespace {

/*! Shows the text of one of the model's roles; the models have no Qt::DisplayRole. */
class RoleDelegate : public QStyledItemDelegate
{
public:
    RoleDelegate(int role, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_role(role)
    {}

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDisplay;
        option->text = index.data(m_role).toString();
    }

private:
    const int m_role;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    FormatsProxy *formats = FormatsProxy::getInstance();
    formats->init(QString());
    FormatListModel *model = formats->formatListModel();

    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *formatView = new QListView;
    auto *presetView = new QListView;
    layout->addWidget(formatView);
    layout->addWidget(presetView);
    formatView->setItemDelegate(new RoleDelegate(FormatListModel::TitleRole, formatView));
    presetView->setItemDelegate(new RoleDelegate(FormatDetailModel::TitleRole, presetView));
    formatView->setModel(model);
    QObject::connect(formatView->selectionModel(), &QItemSelectionModel::currentChanged, model,
                     [model, presetView](const QModelIndex &format) {
                         presetView->setModel(model->formatDetailModel(
                             format.data(FormatListModel::TitleRole).toString()));
                     });
    formatView->setCurrentIndex(model->index(0, 0));
    window.resize(520, 360);
    window.show();

    const QString picture = QCoreApplication::arguments().value(1);
    return picture.isEmpty() ? QApplication::exec() : (window.grab().save(picture) ? 0 : 1);
}
