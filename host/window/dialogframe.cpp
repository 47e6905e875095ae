#include "host/window/dialogframe.h"

#include <QPainterPath>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

namespace {

constexpr int cornerRadius = 10; // of the dialogs' grounds, and what they blend at their corners

} // namespace

DialogFrame::DialogFrame(QQmlEngine &engine, const QUrl &content, const QVariantMap &info,
                         QWindow *transientParent)
    : QObject(transientParent)
    , m_info(info)
    , m_isLight(content.path().startsWith(QLatin1String("/formats/")))
{
    m_window.setFlags(Qt::Dialog | Qt::FramelessWindowHint);
    m_window.setModality(Qt::ApplicationModal);
    m_window.setColor(Qt::transparent);
    m_window.setTransientParent(transientParent);

    auto *context = new QQmlContext(engine.rootContext(), this);
    context->setContextProperty(QStringLiteral("O_Frame"), this);
    QQmlComponent component(&engine, content);
    m_content.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(
        {{QStringLiteral("frame"), QVariant::fromValue(this)}}, context)));
    if (m_content == nullptr) {
        qFatal("%s", qUtf8Printable(component.errorString()));
    }
    m_content->setParentItem(m_window.contentItem());
    resizeWinSize(qRound(m_content->width()), qRound(m_content->height()));
    m_window.setTitle(m_content->property("title").toString());
    // Closing by the window system is the same as the dialog's own button.
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible) {
            deleteLater();
        }
    });
    m_window.show();
    m_window.requestActivate();
    m_content->forceActiveFocus();
}

DialogFrame::~DialogFrame() = default;

void DialogFrame::resizeWinSize(int width, int height)
{
    const QSize size(width, height);
    if (const QWindow *parent = m_window.transientParent()) {
        QRect place(QPoint(), size);
        place.moveCenter(parent->geometry().center());
        m_window.setPosition(place.topLeft());
    }
    m_window.setMinimumSize(size);
    m_window.setMaximumSize(size);
    m_window.resize(size);
    // Without a compositor, what is transparent would be black.
    QPainterPath rounded;
    rounded.addRoundedRect(QRectF(QPointF(), size), cornerRadius, cornerRadius);
    m_window.setMask(QRegion(rounded.toFillPolygon().toPolygon()));
}

void DialogFrame::cancelClicked(const QString &id)
{
    Q_EMIT closed(id);
    m_window.hide();
    if (QWindow *parent = m_window.transientParent()) {
        parent->requestActivate();
    }
}

void DialogFrame::startMoving()
{
    m_window.startSystemMove();
}
