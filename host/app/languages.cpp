#include "host/app/languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

QStringList Languages::all()
{
    return {QStringLiteral("en"), QStringLiteral("zh"), QStringLiteral("de"),
            QStringLiteral("es"), QStringLiteral("fr"), QStringLiteral("ja")};
}

QString Languages::suiting(const QString &locale)
{
    const QString language = locale.left(2).toLower();
    const bool isWholeWord = locale.size() <= 2 || !locale.at(2).isLetter();
    return isWholeWord && all().contains(language) ? language : QString();
}

void Languages::install(const QString &code)
{
    QLocale::setDefault(QLocale(code));
    const auto load = [](const QString &file, const QString &folder) {
        auto *translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(file, folder)) {
            QCoreApplication::installTranslator(translator);
        } else {
            delete translator;
        }
    };
    // Qt's own catalogue serves the file dialogs; not every system has it.
    load(QStringLiteral("qtbase_") + (code == QLatin1String("zh") ? QStringLiteral("zh_CN") : code),
         QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    load(QStringLiteral("vex_") + code, QStringLiteral(":/translations"));
}

void Languages::chooseGlyphs(const QString &code)
{
    if (code == QLatin1String("zh")) {
        qputenv("FC_LANG", "zh-cn");
    } else if (code == QLatin1String("ja")) {
        qputenv("FC_LANG", "ja");
    }
}

QString Languages::ofSystem()
{
    const QStringList wanted = QLocale::system().uiLanguages();
    for (const QString &locale : wanted) {
        QString code = suiting(locale);
        if (!code.isEmpty()) {
            return code;
        }
    }
    return QStringLiteral("en");
}
