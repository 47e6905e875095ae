#include "host/window/dialogs.h"

#include "host/app/languages.h"
#include "host/tools/ffmpegversion.h"
#include "host/window/pageoutput.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

QString ownDialog(const char *name)
{
    return QStringLiteral("qrc:/modules/Dialogs/%1.qml").arg(QLatin1String(name));
}

/*! The languages' codes, and their names in themselves. */
QVariantMap languages()
{
    QStringList names;
    for (const QString &code : Languages::all()) {
        const QString name = QLocale(code).nativeLanguageName();
        names << name.left(1).toUpper() + name.mid(1).section(QLatin1Char(' '), 0, 0);
    }
    return {{QStringLiteral("codes"), Languages::all()}, {QStringLiteral("names"), names}};
}

} // namespace

void Dialogs::setUp(QQmlEngine *engine, QWindow *window)
{
    m_engine = engine;
    m_window = window;
}

DialogFrame *Dialogs::open(const QString &content, const QVariantMap &info)
{
    // Its own button may have asked for the next one.
    if (m_current != nullptr) {
        m_current->cancelClicked();
    }
    m_current = new DialogFrame(*m_engine, QUrl(content), info, m_window);
    return m_current;
}

void Dialogs::showMessage(const QVariantMap &info)
{
    open(QStringLiteral("qrc:/modules/MessageBox/VEXMessage.qml"), info);
}

void Dialogs::showLog(const QString &text)
{
    open(ownDialog("LogView"), {{QStringLiteral("text"), text}});
}

void Dialogs::askAboutNames(PageOutput *output, const QStringList &names)
{
    open(ownDialog("NamesInUse"), {{QStringLiteral("output"), QVariant::fromValue(output)},
                                   {QStringLiteral("names"), names}});
}

void Dialogs::showPreferences()
{
    open(ownDialog("Preferences"), languages());
}

void Dialogs::showAbout()
{
    const Result<QString> ffmpeg = ffmpegVersion();
    open(ownDialog("About"), {{QStringLiteral("program"), QCoreApplication::applicationVersion()},
                              {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                              {QStringLiteral("ffmpeg"), ffmpeg ? *ffmpeg : ffmpeg.error().text}});
}

void Dialogs::showPresetChanges(const QString &id)
{
    open(ownDialog("PresetChanges"), {{QStringLiteral("id"), id}});
}

void Dialogs::showImport(const QVariantMap &preview)
{
    open(ownDialog("ImportPresets"), preview);
}
