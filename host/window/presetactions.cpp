#include "host/window/presetactions.h"

#include "host/presets/presetcomparison.h"
#include "host/window/page.h"
#include "host/window/presets.h"
#include "host/window/presetsummary.h"
#include "host/window/toolfun.h"

#include "formats/proxy/formatsproxy.h"

#include <algorithm>

namespace {

QString titleOf(const FoundPreset &preset)
{
    return preset.map.value(QStringLiteral("title")).toString();
}

} // namespace

PresetActions::PresetActions(PresetStore &store, Presets &presets, const IsUsed &isUsed,
                             QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_presets(presets)
    , m_isUsed(isUsed)
{
    const auto renew = [this] {
        ++m_version;
        Q_EMIT changed();
    };
    connect(&presets, &Presets::changed, this, renew);
    connect(&presets, &Presets::favoritesChanged, this, renew);
}

std::optional<FoundPreset> PresetActions::ownPreset(const QString &id) const
{
    const std::optional<FoundPreset> preset = m_store.find(id);
    return preset && preset->isUserDefined ? preset : std::nullopt;
}

void PresetActions::setFavorite(const QString &id, bool isFavorite)
{
    m_presets.setFavorite(id, isFavorite);
}

bool PresetActions::isDefault(const QString &kind, const QString &id) const
{
    const std::optional<SourceKind> named = sourceKindNamed(kind);
    return named && m_presets.favorites().defaultFor(*named) == id;
}

void PresetActions::setDefault(const QString &kind, const QString &id, bool isDefault)
{
    if (const std::optional<SourceKind> named = sourceKindNamed(kind)) {
        m_presets.setDefault(*named, isDefault ? id : QString());
    }
}

QString PresetActions::title(const QString &id) const
{
    const std::optional<FoundPreset> preset = ownPreset(id);
    return preset ? titleOf(*preset) : QString();
}

void PresetActions::rename(const QString &id, const QString &title)
{
    const std::optional<FoundPreset> preset = ownPreset(id);
    const QString wanted = title.simplified();
    if (preset && !wanted.isEmpty() && wanted != titleOf(*preset)) {
        m_store.own().change(preset->className, id, wanted, valuesOf(preset->map));
    }
}

QString PresetActions::note(const QString &id) const
{
    return m_store.notes().of(id).text;
}

void PresetActions::setNote(const QString &id, const QString &text)
{
    PresetNote note = m_store.notes().of(id);
    const QString wanted = text.simplified();
    if (ownPreset(id) && note.text != wanted) {
        note.text = wanted;
        m_store.notes().set(id, note);
        m_presets.saveSoon();
    }
}

void PresetActions::remove(const QString &id)
{
    const std::optional<FoundPreset> preset = ownPreset(id);
    if (!preset) {
        return;
    }
    if (m_isUsed(id)) {
        Q_EMIT refused(ToolFun::text(
            QStringLiteral("The selected format cannot be deleted because it is in use.")));
        return;
    }
    m_store.own().remove(preset->className, id);
}

void PresetActions::move(const QString &id, int step)
{
    const std::optional<FoundPreset> preset = ownPreset(id);
    if (!preset) {
        return;
    }
    QStringList ids = m_store.own().idsOf(preset->className);
    const int from = ids.indexOf(id);
    const int to = from + step;
    if (to >= 0 && to < ids.size()) {
        ids.move(from, to);
        m_store.own().sort(preset->className, ids);
    }
}

void PresetActions::moveBeside(const QString &id, const QString &other, bool isBelow)
{
    const std::optional<FoundPreset> preset = ownPreset(id);
    QStringList ids = preset ? m_store.own().idsOf(preset->className) : QStringList();
    if (id == other || !ids.contains(other)) {
        return;
    }
    ids.removeOne(id);
    ids.insert(ids.indexOf(other) + (isBelow ? 1 : 0), id);
    m_store.own().sort(preset->className, ids);
}

QString PresetActions::duplicate(const QString &id)
{
    const std::optional<FoundPreset> preset = m_store.find(id);
    if (!preset || preset->className.isEmpty()) {
        return {};
    }
    const QString copy =
        ToolFun::text(QStringLiteral("%1 (copy)")).arg(Presets::shownTitle(titleOf(*preset)));
    return m_store.own().add(preset->className, preset->map, copy, valuesOf(preset->map));
}

QString PresetActions::baseCaption(const QString &id)
{
    const QString base = m_store.notes().of(id).base;
    const QString caption = m_presets.caption(base);
    return base.isEmpty() || !caption.isEmpty()
               ? caption
               : ToolFun::text(QStringLiteral("a preset that is no longer there"));
}

QVariantList PresetActions::differences(const QString &id)
{
    const Result<PresetComparison> compared = compareToBase(m_store, id);
    QVariantList list;
    if (compared) {
        const QStringList names = differingNames(compared->base, compared->own);
        for (const QString &name : names) {
            list.append(
                QVariantMap{{QStringLiteral("name"), name},
                            {QStringLiteral("label"), settingLabel(name)},
                            {QStringLiteral("base"), settingText(name, compared->base.value(name))},
                            {QStringLiteral("own"), settingText(name, compared->own.value(name))}});
        }
    }
    return list;
}

void PresetActions::resetToBase(const QString &id, const QStringList &names)
{
    const Result<PresetComparison> compared = compareToBase(m_store, id);
    if (ownPreset(id) && compared && !names.isEmpty()) {
        ::resetToBase(m_store, *compared, names);
    }
}

int PresetActions::sampleTask(Page *page) const
{
    const QVector<Task> &tasks = page->tasks()->tasks();
    const auto isRead = [](const Task &task) { return !task.facts.isEmpty(); };
    auto found = std::find_if(tasks.begin(), tasks.end(), [&isRead](const Task &task) {
        return task.isSelected && isRead(task);
    });
    if (found == tasks.end()) {
        found = std::find_if(tasks.begin(), tasks.end(), isRead);
    }
    return found == tasks.end() ? -1 : found->id;
}

void PresetActions::undoLast(Page *page)
{
    const QVector<PresetHistory::Step> &steps = m_store.history().steps();
    const QDateTime removal = page->lastRemoval();
    if (removal.isValid() && (steps.isEmpty() || steps.constFirst().when < removal)) {
        page->undoRemoval();
    } else {
        undo();
    }
}

void PresetActions::undo()
{
    const QVector<PresetHistory::Step> &steps = m_store.history().steps();
    if (steps.isEmpty()) {
        return;
    }
    const QVector<PresetHistory::Change> changes = steps.constFirst().changes;
    const bool isUsed =
        std::any_of(changes.begin(), changes.end(), [this](const PresetHistory::Change &change) {
            return !change.before && m_isUsed(change.id);
        });
    if (isUsed) {
        Q_EMIT refused(ToolFun::text(
            QStringLiteral("The selected format cannot be deleted because it is in use.")));
        return;
    }
    const Result<PresetHistory::Step> undone = m_store.undo();
    if (!undone) {
        // There may be only steps that never came to be.
        if (undone.error().kind != Error::WrongUsage) {
            Q_EMIT refused(undone.error().text);
        }
        return;
    }
    m_presets.saveSoon();
    const PresetHistory::Change &first = undone->changes.constFirst();
    Q_EMIT told(
        ToolFun::text(QStringLiteral("Undone: %1"))
            .arg(undone->changes.size() == 1
                     ? Presets::shownTitle((first.before ? first.before : first.after)->title())
                     : ToolFun::text(QStringLiteral("%1 presets")).arg(undone->changes.size())));
}

QString PresetActions::textOf(const PresetHistory::Step &step)
{
    const bool onlyAdds =
        std::none_of(step.changes.begin(), step.changes.end(),
                     [](const PresetHistory::Change &change) { return change.before.has_value(); });
    if (onlyAdds) {
        return {};
    }
    if (step.changes.size() > 1) {
        return ToolFun::text(QStringLiteral("Presets changed: %1")).arg(step.changes.size());
    }
    const PresetHistory::Change &change = step.changes.constFirst();
    return (change.after ? ToolFun::text(QStringLiteral("Changed: %1"))
                         : ToolFun::text(QStringLiteral("Deleted: %1")))
        .arg(change.before->title());
}
