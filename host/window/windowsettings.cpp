#include "host/window/windowsettings.h"

#include "host/window/defaultpreset.h"

namespace {

QString key(PageKind page, const char *name)
{
    return QLatin1String(page == PageKind::Converter ? "converter/" : "editor/") +
           QLatin1String(name);
}

QString lastKey(bool hasVideo)
{
    return hasVideo ? QStringLiteral("lastVideoId") : QStringLiteral("lastAudioId");
}

} // namespace

WindowSettings::WindowSettings(const QString &path, QObject *parent)
    : QObject(parent)
    , m_file(path, QSettings::IniFormat)
{}

QString WindowSettings::globalId(PageKind page) const
{
    return m_file.value(key(page, "globalId"), defaultPresetId()).toString();
}

void WindowSettings::setGlobalId(PageKind page, const QString &id)
{
    if (id == globalId(page)) {
        return;
    }
    m_file.setValue(key(page, "globalId"), id);
    m_file.sync();
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

QString WindowSettings::folder(PageKind page) const
{
    return m_file.value(key(page, "folder")).toString();
}

void WindowSettings::setFolder(PageKind page, const QString &folder)
{
    m_file.setValue(key(page, "folder"), folder);
    m_file.sync();
}
