#include "host/window/toolfun.h"

#include <QCoreApplication>
#include <QTimer>

QString ToolFun::text(const QString &key)
{
    return QCoreApplication::translate("Vex", key.toUtf8().constData());
}

QString ToolFun::joined(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(QStringLiteral("  ·  "));
}

QString ToolFun::listed(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(text(QStringLiteral(", ")));
}

void ToolFun::timerOnce(int ms, const QJSValue &function)
{
    QTimer::singleShot(ms, this, [callback = function]() mutable {
        const QJSValue result = callback.call();
        if (result.isError()) {
            qWarning("%s", qUtf8Printable(result.toString()));
        }
    });
}

bool ToolFun::isMac() const
{
#ifdef Q_OS_MACOS
    return true;
#else
    return false;
#endif
}
