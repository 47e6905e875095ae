#include "host/window/presets.h"

#include "host/presets/fitness.h"
#include "host/window/defaultpreset.h"
#include "host/window/toolfun.h"

#include "formats/proxy/formatsproxy.h"

Presets::Presets(PresetStore &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_favorites(store.filePath(QStringLiteral("favorites.json")))
{
    const Result<> read = m_favorites.read();
    if (!read) {
        qWarning("%s", qUtf8Printable(read.error().text));
    }
    // One user action may change several rows, which are saved together.
    m_change.setSingleShot(true);
    m_change.setInterval(0);
    connect(&m_change, &QTimer::timeout, this, &Presets::save);

    const FormatListModel *formats = store.formats().formatListModel();
    for (int row = 0; row < formats->rowCount(); ++row) {
        watch(formats->formatDetailModel(formats->getTitle(row)));
    }
    watch(store.formats().recentlyFormatsModel());
}

QString Presets::usable(const QString &id, const QString &standIn) const
{
    for (const QString &candidate : {id, standIn, defaultPresetId()}) {
        if (find(candidate)) {
            return m_store.idNow(candidate);
        }
    }
    // A custom catalogue may lack the default preset.
    const FormatListModel &formats = *m_store.formats().formatListModel();
    QString first;
    for (int row = 0; first.isEmpty() && row < formats.rowCount(); ++row) {
        first = formats.formatDetailModel(formats.getTitle(row))->getId(0);
    }
    return first;
}

QString Presets::nearestTo(const std::optional<FoundPreset> &preset, const Fitness &fitness,
                           const QStringList &standIns) const
{
    return preset ? fitness.nearestTo(*preset, m_store, standIns)
                  : fitness.firstUsable(standIns + m_store.firstIds(), m_store);
}

QString Presets::caption(const QString &id) const
{
    const std::optional<FoundPreset> preset = find(id);
    if (!preset) {
        return {};
    }
    const QString shown = shownTitle(preset->map.value(QStringLiteral("title")).toString());
    return preset->className.isEmpty() ? shown
                                       : QStringLiteral("%1 - %2").arg(preset->className, shown);
}

QString Presets::shownTitle(const QString &title)
{
    return title == QLatin1String("Same as source") ? ToolFun::text(QStringLiteral("Keep Orignal"))
                                                    : ToolFun::text(title);
}

QString Presets::icon(const QString &id) const
{
    const QString name = m_store.formats().getClassIconById(m_store.idNow(id));
    return name.isEmpty() ? QString() : QStringLiteral("qrc:/formats/image/%1.svg").arg(name);
}

void Presets::noteUse(const QString &id)
{
    if (const std::optional<FoundPreset> preset = find(id)) {
        m_store.formats().add2Recently(preset->tag, preset->className, m_store.idNow(id));
    }
}

void Presets::setFavorite(const QString &id, bool isFavorite)
{
    if (isFavorite ? m_favorites.add(id) : m_favorites.remove(id)) {
        saveFavorites();
    }
}

void Presets::setDefault(SourceKind kind, const QString &id)
{
    m_favorites.setDefault(kind, id);
    saveFavorites();
}

void Presets::saveFavorites()
{
    const Result<> saved = m_favorites.save();
    if (!saved) {
        Q_EMIT saveFailed(saved.error().text);
    }
    Q_EMIT favoritesChanged();
}

void Presets::flush()
{
    if (m_change.isActive() || m_isUnsaved) {
        m_change.stop();
        save();
    }
}

void Presets::save()
{
    const auto lastStep = [this] {
        const QVector<PresetHistory::Step> &steps = m_store.history().steps();
        return steps.isEmpty() ? QDateTime() : steps.constFirst().when;
    };
    const QDateTime before = lastStep();
    const Result<> saved = m_store.save();
    m_isUnsaved = !saved;
    if (m_isUnsaved) {
        Q_EMIT saveFailed(saved.error().text);
    }
    Q_EMIT changed();
    if (lastStep() != before) {
        Q_EMIT stepMade(m_store.history().steps().constFirst());
    }
}

void Presets::watch(const QAbstractItemModel *presets)
{
    const auto note = [this] { m_change.start(); };
    connect(presets, &QAbstractItemModel::rowsInserted, this, note);
    connect(presets, &QAbstractItemModel::rowsRemoved, this, note);
    connect(presets, &QAbstractItemModel::dataChanged, this, note);
}
