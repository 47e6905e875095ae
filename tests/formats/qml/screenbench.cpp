#include "tests/formats/qml/screenbench.h"

#include "tests/formats/fakecatalogue.h"

#include <QQmlContext>
#include <QQmlIncubationController>
#include <QQuickWindow>
#include <QtQuickTest>

#include <algorithm>

namespace {

QList<FakeCatalogue::Group> readGroups(const QVariantList &groups)
{
    QList<FakeCatalogue::Group> result;
    for (const QVariant &element : groups) {
        const QVariantMap group = element.toMap();
        result.append({group.value(QStringLiteral("map")).toMap(),
                       group.value(QStringLiteral("contents")).toList()});
    }
    return result;
}

bool awaitsPolish(QQuickItem *item)
{
    const QList<QQuickItem *> children = item->childItems();
    return QQuickTest::qIsPolishScheduled(item) ||
           std::any_of(children.cbegin(), children.cend(), awaitsPolish);
}

} // namespace

ScreenBench::ScreenBench(QQmlEngine *engine)
    : QObject(engine)
    , m_engine(engine)
{}

void ScreenBench::begin(const QVariantList &catalogue)
{
    FakeCatalogue served;
    for (const QVariant &element : catalogue) {
        const QVariantMap category = element.toMap();
        const QString name = category.value(QStringLiteral("category")).toString();
        served.categories.append(name);
        served.groups.insert(name, readGroups(category.value(QStringLiteral("groups")).toList()));
    }
    FakeCatalogue::served() = served;
    FormatDetailModel::s_userDefineId = 1000;
    m_log.emplace();
    m_facade = std::make_unique<FormatsProxy>();
    m_facade->init(QString());
    (void)m_log->takeAll(); // the user's files are missing
    publish(QStringLiteral("O_FormatsProxy"), QVariant::fromValue<QObject *>(m_facade.get()));
}

QStringList ScreenBench::end()
{
    QStringList messages = m_log->takeAll();
    m_log.reset();
#if QT_VERSION_MAJOR == 6
    // Qt 6 warns of the third argument that the dialog gives to getUserDefineCount().
    messages.removeIf([](const QString &message) {
        return message.startsWith(
                   QLatin1String("warning: newTitle@qrc:/formats/DetailedParameterEditing")) ||
               message == QLatin1String("warning: Too many arguments, ignoring 1");
    });
#endif
    m_facade.reset();
    return messages;
}

bool ScreenBench::isAtRest(QQuickItem *item) const
{
    const QQmlIncubationController *builder = m_engine->incubationController();
    return (!builder || builder->incubatingObjectCount() == 0) &&
           !awaitsPolish(item->window()->contentItem());
}

void ScreenBench::publish(const QString &contextName, const QVariant &value)
{
    m_engine->rootContext()->setContextProperty(contextName, value);
}
