#include "host/presets/exchange/presetimport.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/proxy/formatsproxy.h"
#include "host/convert/containers.h"
#include "host/presets/presetstore.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetImport)
};

const QLatin1String idKey("id");
const QLatin1String titleKey("title");
const QLatin1String extensionKey("extension");
const QLatin1String videoKey("video");
const QLatin1String videoEncoder("video-encoder");
const QLatin1String audioEncoder("audio-encoder");

struct Base
{
    QString className;
    QVariantMap map;
};

/*! The first preset of the first format that writes such files with the codec, or else at all. */
Base baseFor(const PortablePreset &preset, PresetStore &store)
{
    const FormatListModel &formats = *store.formats().formatListModel();
    const bool hasVideo = preset.values.contains(videoEncoder);
    const QString codec = preset.values.value(hasVideo ? videoEncoder : audioEncoder);
    Base first;
    for (int row = 0; row < formats.rowCount(); ++row) {
        const QString title = formats.getTitle(row);
        const FormatDetailModel *list = formats.formatDetailModel(title);
        FormatDetailModelData record;
        const bool isRight = list != nullptr && list->getModelInfoByIndex(0, record) &&
                             !record.userDefine && record.videoEncoders.isEmpty() != hasVideo &&
                             (preset.format.isEmpty() ? record.extension == preset.extension
                                                      : title == preset.format);
        if (!isRight) {
            continue;
        }
        const Base base{title, record.toVarMap()};
        const QVariantList &offered = hasVideo ? record.videoEncoders : record.audioEncoders;
        if (codec.isEmpty() || offered.contains(codec)) {
            return base;
        }
        if (first.className.isEmpty()) {
            first = base;
        }
    }
    return first;
}

/*! Why a preset can't be one of the user's; empty if it can. */
QString mistakeIn(const PortablePreset &preset, const QVariantMap &base)
{
    constexpr int longestTitle = 200;
    constexpr int longestNote = 4000;
    const auto isPlain = [](QChar letter) { return letter.isPrint(); };
    if (preset.title.trimmed().isEmpty() || preset.title.size() > longestTitle ||
        !std::all_of(preset.title.begin(), preset.title.end(), isPlain)) {
        return Texts::tr("its title must have 1 to %1 characters that can be seen")
            .arg(longestTitle);
    }
    if (preset.note.size() > longestNote) {
        return Texts::tr("its note is longer than %1 characters").arg(longestNote);
    }
    for (const PresetDetail &detail : presetDetails()) {
        const auto value = preset.values.find(detail.name);
        if (value != preset.values.end() && !detail.accepts(*value)) {
            return Texts::tr("\"%1\" isn't possible for %2").arg(value->left(40), detail.name);
        }
    }
    const Result<> valid = OutputSettings::fromPreset(withValues(base, preset.values)).validate();
    if (!valid) {
        return valid.error().text;
    }
    const Container &container = *Container::find(base.value(extensionKey).toString());
    const auto holds = [](const QStringList &codecs, const QString &codec) {
        return codec.isEmpty() || codec == QLatin1String("0") || codecs.contains(codec);
    };
    for (const QLatin1String &name : {videoEncoder, audioEncoder}) {
        const QString codec = preset.values.value(name);
        if (!holds(name == videoEncoder ? container.videoCodecs : container.audioCodecs, codec)) {
            return Texts::tr("%1 can't be written into .%2 files")
                .arg(codec, base.value(extensionKey).toString());
        }
    }
    return {};
}

/*! The values of a complete preset: its own, over those of the base. */
PresetValues completed(const PortablePreset &preset, const QVariantMap &base)
{
    PresetValues values = valuesOf(base);
    for (const PresetDetail &detail : presetDetails()) {
        values.remove(detail.name);
    }
    const PresetValues known = values;
    for (auto value = preset.values.begin(); value != preset.values.end(); ++value) {
        const bool isOfVideo = !value.key().startsWith(QLatin1String("audio-")) &&
                               value.key() != QLatin1String("channel") &&
                               value.key() != QLatin1String("sample-rate");
        // Nothing of a picture belongs into a preset for audio.
        if (known.contains(value.key()) || (isOfVideo && base.contains(videoKey))) {
            values.insert(value.key(), *value);
        }
    }
    return values;
}

PlannedImport planned(PortablePreset preset, PresetStore &store)
{
    PlannedImport plan{preset};
    const std::optional<FoundPreset> named =
        preset.base.isEmpty() ? std::nullopt : store.find(preset.base);
    const bool isFound = named && !named->isUserDefined && !named->className.isEmpty();
    const Base base = isFound ? Base{named->className, named->map} : baseFor(preset, store);
    if (base.className.isEmpty()) {
        plan.state = PlannedImport::Refused;
        plan.reason = (preset.values.contains(videoEncoder)
                           ? Texts::tr("no format here writes video into .%1 files")
                           : Texts::tr("no format here writes audio alone into .%1 files"))
                          .arg(preset.extension.left(20));
        return plan;
    }
    if (!preset.base.isEmpty() && !isFound) {
        plan.reason = Texts::tr("its base %1 isn't in this catalogue; %2 stands in for it")
                          .arg(preset.base, base.map.value(idKey).toString());
    }
    plan.className = base.className;
    plan.base = base.map;
    plan.preset.values = completed(preset, base.map);
    const QString mistake = mistakeIn(plan.preset, base.map);
    if (!mistake.isEmpty()) {
        plan.state = PlannedImport::Refused;
        plan.reason = mistake;
        return plan;
    }
    const QStringList ids = store.own().idsOf(base.className);
    for (const QString &id : ids) {
        const QVariantMap own = store.find(id)->map;
        const bool hasTitle = own.value(titleKey).toString() == preset.title;
        if (hasTitle && valuesOf(own) == plan.preset.values &&
            store.notes().of(id).text == preset.note) {
            plan.state = PlannedImport::Same;
            plan.existing = id;
            return plan;
        }
        if (hasTitle) {
            plan.state = PlannedImport::Conflict;
            plan.existing = id;
        }
    }
    return plan;
}

/*! \a title, or "title (2)" and so on where the user has such a preset in the format. */
QString freeTitle(const QString &title, const QString &className, PresetStore &store)
{
    QStringList taken;
    const QStringList ids = store.own().idsOf(className);
    for (const QString &id : ids) {
        taken << store.find(id)->map.value(titleKey).toString();
    }
    QString candidate = title;
    for (int number = 2; taken.contains(candidate); ++number) {
        candidate = QStringLiteral("%1 (%2)").arg(title).arg(number);
    }
    return candidate;
}

} // namespace

QVector<PlannedImport> planImport(PresetStore &store, const PortablePresets &presets)
{
    QVector<PlannedImport> plan;
    for (const PortablePreset &preset : presets.presets) {
        plan.append(planned(preset, store));
    }
    std::stable_partition(plan.begin(), plan.end(), [](const PlannedImport &each) {
        return each.state != PlannedImport::Refused;
    });
    for (const RefusedPreset &refused : presets.refused) {
        PlannedImport each;
        each.preset.title = refused.title;
        each.state = PlannedImport::Refused;
        each.reason = refused.reason;
        plan.append(each);
    }
    return plan;
}

Result<QStringList> importPresets(PresetStore &store, const QVector<PlannedImport> &plan,
                                  OnConflict onConflict)
{
    const auto refused = std::count_if(plan.begin(), plan.end(), [](const PlannedImport &each) {
        return each.state == PlannedImport::Refused;
    });
    if (refused > 0) {
        return failed(Texts::tr("nothing is imported, as %1 of %2 presets are refused; leave them "
                                "out with --skip-refused")
                          .arg(refused)
                          .arg(plan.size()));
    }
    OwnPresets own = store.own();
    QStringList ids;
    for (const PlannedImport &each : plan) {
        const PortablePreset &preset = each.preset;
        const bool isSkipped =
            each.state == PlannedImport::Same ||
            (each.state == PlannedImport::Conflict && onConflict == OnConflict::Skip);
        if (isSkipped) {
            continue;
        }
        const bool isReplaced =
            each.state == PlannedImport::Conflict && onConflict == OnConflict::Replace;
        QString id = each.existing;
        if (isReplaced) {
            own.change(each.className, id, preset.title, preset.values);
        } else {
            id = own.add(each.className, each.base, freeTitle(preset.title, each.className, store),
                         preset.values);
        }
        PresetNote note = store.notes().of(id);
        note.text = preset.note;
        store.notes().set(id, note);
        ids << id;
    }
    return ids;
}

Result<PortablePreset> portable(PresetStore &store, const QString &id)
{
    const std::optional<FoundPreset> preset = store.find(id);
    if (!preset || !preset->isUserDefined || preset->className.isEmpty()) {
        return failed(Texts::tr("preset %1 isn't yours; only your own can be exported").arg(id),
                      Error::WrongUsage);
    }
    const PresetNote note = store.notes().of(id);
    return PortablePreset{preset->map.value(titleKey).toString(),
                          note.text,
                          note.base,
                          preset->className,
                          preset->map.value(extensionKey).toString(),
                          valuesOf(preset->map)};
}
