#include "host/presets/presetcomparison.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PresetComparison)
};

} // namespace

Result<PresetComparison> compareToBase(PresetStore &store, const QString &id)
{
    const std::optional<FoundPreset> preset = store.find(id);
    const PresetNote note = store.notes().of(id);
    if (!preset || note.base.isEmpty()) {
        return failed(Texts::tr("nothing is known of the base of preset %1").arg(id));
    }
    const QVariantMap base = store.own().baseOf(id);
    return PresetComparison{*preset,
                            note.base,
                            !base.isEmpty(),
                            valuesOf(preset->map),
                            base.isEmpty() ? note.baseValues : valuesOf(base),
                            note.baseValues};
}

QStringList differingNames(const PresetValues &one, const PresetValues &other)
{
    const QStringList all = valueNames();
    QStringList names;
    std::copy_if(
        all.begin(), all.end(), std::back_inserter(names),
        [&one, &other](const QString &name) { return one.value(name) != other.value(name); });
    return names;
}

void resetToBase(PresetStore &store, const PresetComparison &compared, const QStringList &names)
{
    PresetValues values = compared.own;
    for (const QString &name : names) {
        if (compared.base.contains(name)) {
            values.insert(name, compared.base.value(name));
        } else {
            values.remove(name);
        }
    }
    const QVariantMap &map = compared.preset.map;
    store.own().change(compared.preset.className, map.value(QStringLiteral("id")).toString(),
                       map.value(QStringLiteral("title")).toString(), values);
}
