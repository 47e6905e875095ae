#include "host/window/outputchoice.h"

#include "host/convert/namefields.h"
#include "host/files/visibletext.h"
#include "host/window/toolfun.h"

#include <QFileInfo>

OutputChoice::OutputChoice(WindowSettings &settings, std::optional<PageKind> page, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_page(page)
{
    connect(&settings, &WindowSettings::outputChanged, this, &OutputChoice::changed);
}

QString OutputChoice::folderText() const
{
    return visibleText(folder());
}

QString OutputChoice::folderMistake() const
{
    return folder().isEmpty() || QFileInfo(folder()).isDir()
               ? QString()
               : ToolFun::text(QStringLiteral("This folder isn't there; choose another one"));
}

void OutputChoice::setNameTemplate(const QString &nameTemplate)
{
    if (mistakeIn(nameTemplate).isEmpty()) {
        m_settings.setNameTemplate(m_page, nameTemplate);
    }
}

void OutputChoice::setIfInUse(int ifInUse)
{
    m_settings.setIfInUse(m_page, WindowSettings::IfInUse(ifInUse));
}

QString OutputChoice::fields() const
{
    return QStringLiteral("{%1}").arg(nameFields().join(QStringLiteral("} {")));
}

QString OutputChoice::mistakeIn(const QString &nameTemplate) const
{
    if (nameTemplate.contains(QLatin1Char('/'))) {
        return ToolFun::text(
            QStringLiteral("A name has no \"/\"; choose the folder in \"Save to\""));
    }
    const QString unknown = NameTemplate::unknownField(nameTemplate, nameFields());
    return unknown.isNull() ? QString()
                            : ToolFun::text(QStringLiteral("There is no field {%1}; use %2"))
                                  .arg(visibleText(unknown), fields());
}
