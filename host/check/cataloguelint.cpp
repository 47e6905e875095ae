#include "host/check/cataloguelint.h"

#include "host/check/choicelint.h"
#include "host/check/supportlint.h"

#include <QRegularExpression>
#include <QSet>

namespace {

/*! A group of the catalogue, with the places of its values. */
struct CheckedGroup
{
    QString category;
    QString name;
    QString icon;
    QVariantList presets;
    CataloguePlace place;

    CheckedGroup(const CatalogueResult &catalogue, const QVariantMap &group)
        : category(group.value(QStringLiteral("category")).toString())
        , name(group.value(QStringLiteral("name")).toString())
        , icon(group.value(QStringLiteral("icon")).toString())
        , presets(catalogue.catalogue.presets.value({category, name}))
        , place(catalogue.groupPlaces.value({category, name}))
    {}

    [[nodiscard]] CataloguePlace placeOf(const char *key) const
    {
        return {place.source, place.path + QLatin1Char('.') + QLatin1String(key)};
    }
};

void lintCategory(const CheckedGroup &group, const QStringList &tags, MistakeCollector &collector)
{
    if (!tags.contains(group.category.toLower())) {
        collector.note({group.place.source, QStringLiteral("category")},
                       QStringLiteral("must be one of %1, in upper or lower case, to be shown")
                           .arg(tags.join(QStringLiteral(", "))));
    }
}

void lintIcon(const CheckedGroup &group, const QStringList &icons, MistakeCollector &collector)
{
    if (group.icon.isEmpty()) {
        collector.note(group.placeOf("icon"), QStringLiteral("is missing; the format has no icon"));
    } else if (!icons.contains(group.icon)) {
        collector.note(
            group.placeOf("icon"),
            QStringLiteral("there is no icon \"%1\" in formats/qml/image").arg(group.icon));
    }
}

void lintName(const CheckedGroup &group, QSet<QString> &names, MistakeCollector &collector)
{
    if (names.contains(group.name)) {
        collector.note(group.placeOf("name"),
                       QStringLiteral("another category also has a group \"%1\", and formats are "
                                      "found by name only; rename this one")
                           .arg(group.name));
    }
    names.insert(group.name);
    const QString category = group.category.toLower();
    const bool isLookedUp =
        category == QLatin1String("video") || category == QLatin1String("audio");
    if (isLookedUp && group.name != group.name.toUpper()) {
        collector.note(
            group.placeOf("name"),
            QStringLiteral(
                "must be in upper case: video and audio formats are looked up that way"));
    }
}

/*! The format's name as in ids: "HEVC MP4" is HEVCMP4. */
QString idName(const CheckedPreset &preset, const CheckedGroup &group)
{
    static const QRegularExpression other(QStringLiteral("[^A-Z0-9]"));
    const QString own = preset.text(QStringLiteral("idName"));
    return own.isEmpty() ? group.name.toUpper().remove(other) : own;
}

void lintId(CheckedPreset &preset, const CheckedGroup &group)
{
    const QString start =
        group.category + QLatin1Char('_') + idName(preset, group) + QLatin1Char('_');
    const QRegularExpression form(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(start) + QStringLiteral("[0-9]{3}")));
    if (!form.match(preset.id()).hasMatch()) {
        preset.note(QStringLiteral("id"),
                    QStringLiteral("must be \"%1\" followed by three digits").arg(start));
    }
}

void lintOptionalTexts(CheckedPreset &preset)
{
    for (const CatalogueText &text : CatalogueText::all()) {
        const QString value = preset.text(text.key);
        if (!text.isRequired && !value.isEmpty() && !text.pattern.isEmpty()) {
            preset.expectForm(text.key, value, text.pattern);
        }
    }
}

void lintPresets(const CheckedGroup &group, const CatalogueResult &catalogue,
                 MistakeCollector &collector)
{
    if (group.presets.isEmpty()) {
        collector.note(group.placeOf("presets"), QStringLiteral("has no presets"));
    }
    for (const QVariant &each : group.presets) {
        const QString id = each.toMap().value(QStringLiteral("id")).toString();
        CheckedPreset preset(each.toMap(), catalogue.presetPlaces.value(id), collector);
        lintId(preset, group);
        lintOptionalTexts(preset);
        lintChoices(preset);
        lintSupport(preset);
    }
}

} // namespace

QVector<CatalogueMistake> lintCatalogue(const CatalogueResult &catalogue, const QStringList &icons,
                                        const QStringList &tags)
{
    MistakeCollector collector;
    QSet<QString> names;
    for (const QVariant &category : catalogue.catalogue.categories) {
        for (const QVariant &map : catalogue.catalogue.groups.value(category.toString())) {
            const CheckedGroup group(catalogue, map.toMap());
            lintCategory(group, tags, collector);
            lintName(group, names, collector);
            lintIcon(group, icons, collector);
            lintPresets(group, catalogue, collector);
        }
    }
    return collector.mistakes();
}
