#include "host/window/presetfinder.h"

#include "host/window/page.h"
#include "host/window/presets.h"
#include "host/window/presetsummary.h"
#include "host/window/toolfun.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <algorithm>

namespace {

constexpr int firstRole = Qt::UserRole + 1;

bool isEmpty(const PresetQuery &query)
{
    return query.text.trimmed().isEmpty() && query.kind.isEmpty() && query.codec.isEmpty() &&
           query.size.isEmpty() && query.category.isEmpty();
}

} // namespace

PresetFinder::PresetFinder(PresetStore &store, Presets &presets, QObject *parent, int part)
    : QAbstractListModel(parent)
    , m_store(store)
    , m_presets(presets)
    , m_part(part)
{
    connect(&m_presets, &Presets::changed, this, [this] {
        forgetIndex();
        list();
    });
    // A star that is set moves no row that the user looks at.
    connect(&m_presets, &Presets::favoritesChanged, this, [this] {
        preferFavorites();
        renewAll();
    });
    m_nextPart.setSingleShot(true);
    m_nextPart.setInterval(0);
    connect(&m_nextPart, &QTimer::timeout, this, [this] {
        buildIndex();
        if (m_index && !isEmpty(m_query)) {
            list();
        }
    });
    connect(&m_list, &EncoderList::finished, this, &PresetFinder::takeEncoders);
}

const QVector<PresetFinder::RoleRow> &PresetFinder::roles()
{
    static const QVector<RoleRow> all = {
        {"presetId", &PresetFinder::presetId},     {"title", &PresetFinder::title},
        {"format", &PresetFinder::format},         {"icon", &PresetFinder::icon},
        {"details", &PresetFinder::details},       {"why", &PresetFinder::why},
        {"isFavorite", &PresetFinder::isFavorite}, {"isOwn", &PresetFinder::isOwn},
        {"problem", &PresetFinder::problem},       {"group", &PresetFinder::group},
    };
    return all;
}

int PresetFinder::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant PresetFinder::data(const QModelIndex &index, int role) const
{
    const int place = role - firstRole;
    const bool isThere =
        checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) &&
        place >= 0 && place < roles().size();
    return isThere ? (this->*roles().at(place).value)(index.row()) : QVariant();
}

QHash<int, QByteArray> PresetFinder::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int place = 0; place < roles().size(); ++place) {
        names.insert(firstRole + place, roles().at(place).name);
    }
    return names;
}

bool PresetFinder::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && m_rows.size() < m_count;
}

void PresetFinder::fetchMore(const QModelIndex &parent)
{
    if (!m_index || !canFetchMore(parent)) {
        return;
    }
    const QVector<PresetMatch> more =
        m_index->find(m_query, m_rows.size() + batch).best.mid(m_rows.size());
    beginInsertRows({}, m_rows.size(), m_rows.size() + more.size() - 1);
    m_rows += more;
    endInsertRows();
}

QString PresetFinder::remark() const
{
    if (m_count > 0) {
        return {};
    }
    if (isEmpty(m_query)) {
        return ToolFun::text(QStringLiteral("Type a device, a site, a codec, a size or a purpose, "
                                            "such as “iphone 1080” or “small”."));
    }
    return m_unknown.isEmpty()
               ? ToolFun::text(QStringLiteral("No preset has all of this; leave out a word or a "
                                              "filter."))
               : ToolFun::text(QStringLiteral("No preset is known for “%1”.")).arg(m_unknown);
}

void PresetFinder::open(Page *page)
{
    m_source.reset();
    const QVector<Task> &tasks = page->tasks()->tasks();
    const auto selected = std::find_if(tasks.begin(), tasks.end(), [](const Task &task) {
        return task.isSelected && !task.facts.isEmpty();
    });
    if (selected != tasks.end()) {
        m_source = FitnessSource{selected->source, selected->facts};
    }
    renewFitness();
    m_list.start();
    search({}, {}, {}, {});
    buildIndex();
}

void PresetFinder::search(const QString &text, const QString &kind, const QString &codec,
                          const QString &size)
{
    const bool isKind = kind == QLatin1String("own") || kind == QLatin1String("video") ||
                        kind == QLatin1String("audio");
    m_query = {text, isKind ? kind : QString(), codec, size, isKind ? QString() : kind};
    list();
}

void PresetFinder::list()
{
    const bool isSearch = !isEmpty(m_query);
    if (isSearch) {
        buildIndex();
        if (!m_index) {
            return; // until the index is complete
        }
    }
    beginResetModel();
    m_rows.clear();
    m_groups.clear();
    m_unknown.clear();
    if (isSearch) {
        const PresetMatches matches = m_index->find(m_query, batch);
        m_rows = matches.best;
        m_count = matches.count;
        m_unknown = matches.unknown;
    } else {
        listUsual();
    }
    endResetModel();
    Q_EMIT found();
}

void PresetFinder::listUsual()
{
    append(m_presets.favorites().ids(), ToolFun::text(QStringLiteral("Favorites")));
    append(m_store.recentIds(), ToolFun::text(QStringLiteral("Recently used")));
    const FormatListModel &formats = *m_store.formats().formatListModel();
    for (int row = 0; row < formats.rowCount(); ++row) {
        append(m_store.own().idsOf(formats.getTitle(row)),
               ToolFun::text(QStringLiteral("My presets")));
    }
    m_count = m_rows.size();
}

void PresetFinder::append(const QStringList &ids, const QString &group)
{
    for (const QString &id : ids) {
        const std::optional<FoundPreset> preset = m_store.find(id);
        // The recently used list may hold presets of another catalogue.
        if (preset && !preset->className.isEmpty() && rowOf(id) < 0) {
            m_rows.append({id,
                           preset->map.value(QStringLiteral("title")).toString(),
                           preset->className,
                           preset->tag,
                           {}});
            m_groups << group;
        }
    }
}

/*! Builds the next part of the index, unless it is complete. */
void PresetFinder::buildIndex()
{
    if (m_index) {
        return;
    }
    if (!m_builder) {
        m_builder = std::make_unique<PresetIndexBuilder>(m_store.formats(),
                                                         PresetExtras{{}, m_store.notes().texts()});
    }
    if (m_builder->addSome(m_part)) {
        m_nextPart.start();
    } else {
        m_index = m_builder->finish();
        m_builder.reset();
        preferFavorites();
    }
}

/*! Stars may be set while the index is being built, too. */
void PresetFinder::preferFavorites()
{
    if (m_index) {
        m_index->prefer(m_presets.favorites().ids(), m_store.formats());
    }
}

void PresetFinder::forgetIndex()
{
    m_nextPart.stop();
    m_builder.reset();
    m_index.reset();
    m_problems.clear();
}

void PresetFinder::takeEncoders(const Result<QSet<QString>> &encoders)
{
    m_encoders = encoders.value_or(QSet<QString>());
    renewFitness();
    renewAll();
}

void PresetFinder::renewFitness()
{
    m_problems.clear();
    m_fitness.reset();
    // Without ffmpeg, each conversion says so itself.
    if (!m_encoders.isEmpty()) {
        m_fitness.emplace(m_encoders, m_source);
    }
}

void PresetFinder::renewAll()
{
    if (!m_rows.isEmpty()) {
        Q_EMIT dataChanged(createIndex(0, 0), createIndex(m_rows.size() - 1, 0));
    }
}

int PresetFinder::rowOf(const QString &id) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [&id](const PresetMatch &match) { return match.id == id; });
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

QString PresetFinder::problemWith(const QString &id) const
{
    const std::optional<FoundPreset> preset =
        m_fitness && !m_problems.contains(id) ? m_store.find(id) : std::nullopt;
    if (preset) {
        m_problems.insert(id, m_fitness->problemWith(*preset));
    }
    return m_problems.value(id);
}

QString PresetFinder::nearestTo(const QString &id) const
{
    const std::optional<FoundPreset> preset = m_store.find(id);
    return m_fitness && preset ? m_fitness->nearestTo(*preset, m_store, m_store.recentIds())
                               : QString();
}

QString PresetFinder::caption(const QString &id) const
{
    return m_presets.caption(id);
}

QVariant PresetFinder::title(int row) const
{
    return Presets::shownTitle(m_rows.at(row).title);
}

QVariant PresetFinder::icon(int row) const
{
    return m_presets.icon(m_rows.at(row).id);
}

QVariant PresetFinder::details(int row) const
{
    const QString id = m_rows.at(row).id;
    const std::optional<FoundPreset> preset = m_store.find(id);
    return ToolFun::joined(
        {m_store.notes().of(id).text, preset ? summaryOf(preset->map) : QString()});
}

QVariant PresetFinder::why(int row) const
{
    QStringList reasons;
    for (const PresetMatch::Reason &reason : m_rows.at(row).why) {
        const QString text = reasonText(reason);
        if (!text.isEmpty() && !reasons.contains(text)) {
            reasons << text;
        }
    }
    return ToolFun::listed(reasons);
}

QVariant PresetFinder::isFavorite(int row) const
{
    return m_presets.favorites().ids().contains(m_rows.at(row).id);
}

QVariant PresetFinder::isOwn(int row) const
{
    const std::optional<FoundPreset> preset = m_store.find(m_rows.at(row).id);
    return preset && preset->isUserDefined;
}
