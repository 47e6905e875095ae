// Prints the preset that fits best: lookup video mp4 1280x720

#include "formats/proxy/formatsproxy.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "usage: lookup video|audio FORMAT SIZE|KBPS\n";
        return 2;
    }
    FormatsProxy *formats = FormatsProxy::getInstance();
    // Without a folder there are no user's presets, and nothing is saved.
    formats->init(QString());
    const QVariantMap preset =
        formats->getConverterParameters(arguments[1], arguments[2], arguments[3], false);
    QTextStream(stdout) << preset.value(QStringLiteral("id")).toString() << ' '
                        << preset.value(QStringLiteral("title")).toString() << '\n';
    return preset.isEmpty() ? 1 : 0;
}
