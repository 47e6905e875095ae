// The smallest host of the library's two screens: the picker and the dialog of a preset. With the
// names of two pictures, it draws the screens into those files and ends.

#include "formats/proxy/formatsproxy.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    FormatsProxy *formats = FormatsProxy::getInstance();
    formats->init(QString());

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/modules"));
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/example/Host.qml")));
    QObject *host = component.create();
    if (host == nullptr) {
        qCritical("%s", qPrintable(component.errorString()));
        return 1;
    }
    host->setParent(&engine); // the screens go first
    // The names that the screens use.
    QQmlContext *context = engine.rootContext();
    const auto publish = [context, host](const char *name, const char *property) {
        context->setContextProperty(QString::fromLatin1(name), host->property(property));
    };
    context->setContextProperty(QStringLiteral("O_FormatsProxy"), formats);
    publish("O_ConverterProxy", "converter");
    publish("O_EditorProxy", "editor");
    publish("O_Setting", "settings");
    publish("O_Frame", "frame");
    publish("ToolFun", "toolFun");
    publish("VexThemeMgr", "themeManager");
    publish("dpi", "dpi");
    context->setContextProperty(QStringLiteral("host"), host);
    context->setContextProperty(QStringLiteral("pictures"),
                                QStringList(QCoreApplication::arguments().mid(1, 2)));
    engine.load(QUrl(QStringLiteral("qrc:/example/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
