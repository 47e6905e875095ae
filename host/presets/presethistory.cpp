#include "host/presets/presethistory.h"

#include <QJsonObject>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace {

const QLatin1String idKey("id");
const QLatin1String beforeKey("before");
const QLatin1String afterKey("after");
const QLatin1String formatKey("format");
const QLatin1String titleKey("title");
const QLatin1String rowKey("row");
const QLatin1String recordKey("record");
const QLatin1String noteKey("note");
const QLatin1String whenKey("when");
const QLatin1String changesKey("changes");

using Presets = QMap<QString, OwnPreset>;

QJsonValue jsonOf(const std::optional<OwnPreset> &preset)
{
    if (!preset) {
        return QJsonValue::Null;
    }
    return QJsonObject{{formatKey, preset->format},
                       {rowKey, preset->row},
                       {recordKey, preset->record},
                       {noteKey, preset->note.toJson()}};
}

std::optional<OwnPreset> presetFrom(const QJsonValue &value)
{
    if (!value.isObject()) {
        return std::nullopt;
    }
    const QJsonObject json = value.toObject();
    return OwnPreset{json.value(formatKey).toObject(), json.value(rowKey).toInt(),
                     json.value(recordKey).toObject(),
                     PresetNote::fromJson(json.value(noteKey).toObject())};
}

std::optional<OwnPreset> presetWith(const Presets &presets, const QString &id)
{
    const auto preset = presets.find(id);
    return preset == presets.end() ? std::nullopt : std::make_optional(*preset);
}

bool isSame(const std::optional<OwnPreset> &one, const std::optional<OwnPreset> &other)
{
    return one && other ? one->isSameAs(*other) : one.has_value() == other.has_value();
}

} // namespace

QString PresetHistory::Change::text() const
{
    const QString form = !before  ? tr("added \"%1\" (%2)")
                         : !after ? tr("deleted \"%1\" (%2)")
                                  : tr("changed \"%1\" (%2)");
    return form.arg((before ? before : after)->title(), id);
}

QString PresetHistory::Step::text() const
{
    constexpr int mostNamed = 3;
    QStringList texts;
    for (const Change &change : changes.mid(0, mostNamed)) {
        texts << change.text();
    }
    if (changes.size() > mostNamed) {
        texts << tr("%1 more").arg(changes.size() - mostNamed);
    }
    return texts.join(QStringLiteral(", "));
}

void PresetHistory::note(const Presets &before, const Presets &after, const QDateTime &when)
{
    QStringList ids = before.keys() + after.keys();
    ids.removeDuplicates();
    Step step{when, {}};
    for (const QString &id : qAsConst(ids)) {
        const Change change{id, presetWith(before, id), presetWith(after, id)};
        if (!isSame(change.before, change.after)) {
            step.changes.append(change);
        }
    }
    if (!step.changes.isEmpty()) {
        m_steps.prepend(step);
        dropOldest();
    }
}

void PresetHistory::dropOldest()
{
    int kept = 0;
    for (int changes = 0; kept < std::min(m_steps.size(), mostSteps); ++kept) {
        changes += m_steps.at(kept).changes.size();
        if (kept > 0 && changes > mostChanges) {
            break;
        }
    }
    m_steps.resize(kept);
}

Result<PresetHistory::Step> PresetHistory::undo(OwnPresets &presets)
{
    const Presets now = presets.all();
    const auto isAs = [&now](const Step &step, std::optional<OwnPreset> Change::*state) {
        return std::all_of(step.changes.begin(), step.changes.end(),
                           [&now, state](const Change &change) {
                               return isSame(change.*state, presetWith(now, change.id));
                           });
    };
    while (!m_steps.isEmpty() && isAs(m_steps.constFirst(), &Change::before)) {
        m_steps.removeFirst();
    }
    if (m_steps.isEmpty()) {
        return failed(tr("there is nothing to undo"), Error::WrongUsage);
    }
    const Step step = m_steps.constFirst();
    if (!isAs(step, &Change::after)) {
        return failed(tr("what was done last (%1) can't be undone: another program has changed "
                         "these presets since")
                          .arg(step.text()));
    }
    // From the first row on, so that each finds the row that it had.
    QVector<Change> changes = step.changes;
    std::sort(changes.begin(), changes.end(), [](const Change &one, const Change &other) {
        return (one.before ? one.before->row : 0) < (other.before ? other.before->row : 0);
    });
    for (const Change &change : qAsConst(changes)) {
        if (!change.before) {
            presets.remove(change.after->format.value(titleKey).toString(), change.id);
            continue;
        }
        const Result<> put = presets.put(*change.before);
        if (!put) {
            return failed(put);
        }
    }
    m_steps.removeFirst();
    return step;
}

QJsonArray PresetHistory::toJson() const
{
    QJsonArray entries;
    for (const Step &step : m_steps) {
        QJsonArray changes;
        for (const Change &change : step.changes) {
            changes.append(QJsonObject{{idKey, change.id},
                                       {beforeKey, jsonOf(change.before)},
                                       {afterKey, jsonOf(change.after)}});
        }
        entries.append(
            QJsonObject{{whenKey, step.when.toString(Qt::ISODate)}, {changesKey, changes}});
    }
    return entries;
}

void PresetHistory::read(const QJsonArray &entries)
{
    for (const QJsonValue &value : entries) {
        const QJsonObject entry = value.toObject();
        Step step{QDateTime::fromString(entry.value(whenKey).toString(), Qt::ISODate), {}};
        const QJsonArray changes = entry.value(changesKey).toArray();
        for (const QJsonValue &each : changes) {
            const QJsonObject change = each.toObject();
            step.changes.append({change.value(idKey).toString(),
                                 presetFrom(change.value(beforeKey)),
                                 presetFrom(change.value(afterKey))});
        }
        const bool isWhole =
            std::all_of(step.changes.begin(), step.changes.end(), [](const Change &change) {
                return !change.id.isEmpty() && (change.before || change.after);
            });
        if (isWhole && !step.changes.isEmpty() && m_steps.size() < mostSteps) {
            m_steps.append(step);
        }
    }
}
