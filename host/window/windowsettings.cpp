#include "host/window/windowsettings.h"

#include "host/window/defaultpreset.h"

namespace {

QString key(PageKind page, const char *name)
{
    return QLatin1String(page == PageKind::Converter ? "converter/" : "editor/") +
           QLatin1String(name);
}

QString outputKey(const char *name)
{
    return QLatin1String("output/") + QLatin1String(name);
}

QString lastKey(bool hasVideo)
{
    return hasVideo ? QStringLiteral("lastVideoId") : QStringLiteral("lastAudioId");
}

/*! The file's words for WindowSettings::IfInUse, in its order. */
QStringList ifInUseWords()
{
    return {QStringLiteral("rename"), QStringLiteral("ask"), QStringLiteral("skip"),
            QStringLiteral("overwrite")};
}

QStringList themeWords()
{
    return {QStringLiteral("system"), QStringLiteral("light"), QStringLiteral("dark")};
}

} // namespace

WindowSettings::WindowSettings(const QString &path, QObject *parent)
    : QObject(parent)
    , m_file(path, QSettings::IniFormat)
{}

QString WindowSettings::globalId(PageKind page) const
{
    return m_standIns.contains(page)
               ? m_standIns.value(page)
               : m_file.value(key(page, "globalId"), defaultPresetId()).toString();
}

void WindowSettings::setGlobalId(PageKind page, const QString &id)
{
    if (id == globalId(page)) {
        return;
    }
    m_standIns.remove(page);
    write(key(page, "globalId"), id);
    if (page == PageKind::Converter) {
        Q_EMIT converterGlobalIdChanged();
    } else {
        Q_EMIT editorGlobalIdChanged();
    }
}

QString WindowSettings::lastId(bool hasVideo) const
{
    return m_file.value(lastKey(hasVideo), hasVideo ? defaultPresetId() : defaultAudioPresetId())
        .toString();
}

void WindowSettings::setLastId(bool hasVideo, const QString &id)
{
    if (id != lastId(hasVideo)) {
        m_file.setValue(lastKey(hasVideo), id);
        m_file.sync();
    }
}

QString WindowSettings::folder(std::optional<PageKind> page) const
{
    return output(page, "folder").toString();
}

void WindowSettings::setFolder(std::optional<PageKind> page, const QString &folder)
{
    setOutput(page, "folder", folder);
}

QString WindowSettings::nameTemplate(std::optional<PageKind> page) const
{
    return output(page, "names").toString();
}

void WindowSettings::setNameTemplate(std::optional<PageKind> page, const QString &nameTemplate)
{
    setOutput(page, "names", nameTemplate);
}

WindowSettings::IfInUse WindowSettings::ifInUse(std::optional<PageKind> page) const
{
    const int known = ifInUseWords().indexOf(output(page, "ifExists").toString());
    return known < 0 ? Rename : IfInUse(known);
}

void WindowSettings::setIfInUse(std::optional<PageKind> page, IfInUse ifInUse)
{
    setOutput(page, "ifExists", ifInUseWords().at(int(ifInUse)));
}

bool WindowSettings::keepsTree(std::optional<PageKind> page) const
{
    const QVariant keepsTree = output(page, "keepTree");
    return keepsTree.isNull() || keepsTree.toBool();
}

void WindowSettings::setKeepsTree(std::optional<PageKind> page, bool keepsTree)
{
    setOutput(page, "keepTree", keepsTree);
}

WindowSettings::ThemeChoice WindowSettings::theme() const
{
    const int known = themeWords().indexOf(m_file.value(QStringLiteral("theme")).toString());
    return known < 0 ? SystemTheme : ThemeChoice(known);
}

void WindowSettings::setTheme(ThemeChoice theme)
{
    write(QStringLiteral("theme"), themeWords().at(theme));
    Q_EMIT themeChanged();
}

bool WindowSettings::isStill() const
{
    return m_file.value(QStringLiteral("still"), false).toBool();
}

void WindowSettings::setStill(bool isStill)
{
    write(QStringLiteral("still"), isStill);
    Q_EMIT stillChanged();
}

QString WindowSettings::language() const
{
    return m_file.value(QStringLiteral("language")).toString();
}

void WindowSettings::setLanguage(const QString &language)
{
    write(QStringLiteral("language"), language);
    Q_EMIT languageChanged();
}

int WindowSettings::jobs() const
{
    return m_file.value(QStringLiteral("jobs"), 0).toInt();
}

void WindowSettings::setJobs(int jobs)
{
    write(QStringLiteral("jobs"), jobs);
    Q_EMIT jobsChanged();
}

bool WindowSettings::isNotifying() const
{
    return m_file.value(QStringLiteral("notifications"), true).toBool();
}

void WindowSettings::setNotifying(bool isNotifying)
{
    write(QStringLiteral("notifications"), isNotifying);
    Q_EMIT notifyingChanged();
}

bool WindowSettings::isSampling() const
{
    return m_file.value(QStringLiteral("samples"), true).toBool();
}

void WindowSettings::setSampling(bool isSampling)
{
    write(QStringLiteral("samples"), isSampling);
    Q_EMIT samplingChanged();
}

QString WindowSettings::lastFolder() const
{
    return m_file.value(QStringLiteral("lastFolder")).toString();
}

void WindowSettings::setLastFolder(const QString &folder)
{
    write(QStringLiteral("lastFolder"), folder);
}

QRect WindowSettings::place() const
{
    return m_file.value(QStringLiteral("window/place")).toRect();
}

bool WindowSettings::isMaximised() const
{
    return m_file.value(QStringLiteral("window/maximised")).toBool();
}

void WindowSettings::setPlace(const QRect &place, bool isMaximised)
{
    m_file.setValue(QStringLiteral("window/place"), place);
    write(QStringLiteral("window/maximised"), isMaximised);
}

QVariant WindowSettings::output(std::optional<PageKind> page, const char *name) const
{
    const QVariant ofBoth = m_file.value(outputKey(name));
    return page ? m_file.value(key(*page, name), ofBoth) : ofBoth;
}

void WindowSettings::setOutput(std::optional<PageKind> page, const char *name,
                               const QVariant &value)
{
    if (!page) {
        m_file.remove(key(PageKind::Converter, name));
        m_file.remove(key(PageKind::Editor, name));
    }
    write(page ? key(*page, name) : outputKey(name), value);
    Q_EMIT outputChanged();
}

void WindowSettings::write(const QString &key, const QVariant &value)
{
    m_file.setValue(key, value);
    m_file.sync();
}
