#include "host/presets/favorites.h"

#include <QJsonObject>
#include <QMimeDatabase>

namespace {

const QLatin1String favoriteKey("favorite");
const QLatin1String kindKey("defaultFor");
const QLatin1String presetKey("preset");

struct KindName
{
    SourceKind kind;
    const char *name;
    const char *mimeType; //!< its beginning
};

constexpr KindName kindNames[] = {{SourceKind::Video, "video", "video/"},
                                  {SourceKind::Audio, "audio", "audio/"},
                                  {SourceKind::Picture, "picture", "image/"}};

std::optional<SourceKind> kindOf(const QString &path)
{
    static const QMimeDatabase types;
    const QString type = types.mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
    for (const KindName &each : kindNames) {
        if (type.startsWith(QLatin1String(each.mimeType))) {
            return each.kind;
        }
    }
    return std::nullopt;
}

} // namespace

QString nameOf(SourceKind kind)
{
    return QLatin1String(kindNames[int(kind)].name);
}

std::optional<SourceKind> sourceKindNamed(const QString &name)
{
    for (const KindName &each : kindNames) {
        if (name == QLatin1String(each.name)) {
            return each.kind;
        }
    }
    return std::nullopt;
}

std::optional<SourceKind> sourceKindOf(const QStringList &paths)
{
    std::optional<SourceKind> all;
    for (const QString &path : paths) {
        const std::optional<SourceKind> kind = kindOf(path);
        if (!kind || (all && *all != *kind)) {
            return std::nullopt;
        }
        all = kind;
    }
    return all;
}

Result<> Favorites::read()
{
    return m_file.read().map([this](const QJsonArray &entries) {
        for (const QJsonValue &value : entries) {
            const QJsonObject entry = value.toObject();
            const QString favorite = entry.value(favoriteKey).toString();
            if (!favorite.isEmpty() && !m_ids.contains(favorite)) {
                m_ids << favorite;
            }
            if (const auto kind = sourceKindNamed(entry.value(kindKey).toString())) {
                m_defaults.insert(*kind, entry.value(presetKey).toString());
            }
        }
    });
}

Result<> Favorites::save() const
{
    QJsonArray entries;
    for (const QString &id : m_ids) {
        entries.append(QJsonObject{{favoriteKey, id}});
    }
    for (auto each = m_defaults.begin(); each != m_defaults.end(); ++each) {
        if (!each->isEmpty()) {
            entries.append(QJsonObject{{kindKey, nameOf(each.key())}, {presetKey, *each}});
        }
    }
    return m_file.write(entries);
}

void Favorites::renameIds(const std::function<QString(const QString &)> &idNow)
{
    for (QString &id : m_ids) {
        id = idNow(id);
    }
    m_ids.removeDuplicates();
    for (QString &id : m_defaults) {
        id = idNow(id);
    }
}

bool Favorites::add(const QString &id)
{
    if (m_ids.contains(id)) {
        return false;
    }
    m_ids.prepend(id);
    return true;
}

bool Favorites::remove(const QString &id)
{
    return m_ids.removeOne(id);
}
