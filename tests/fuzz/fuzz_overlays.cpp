#include "host/catalogue/overlays.h"
#include "tests/fuzz/fuzzing.h"
#include "utility/cataloguefiles.h"

namespace {

/*! The catalogue's maps and places hold the same presets. */
void requireConsistent(const CatalogueResult &result)
{
    int presets = 0;
    for (const QVariant &category : result.catalogue.categories) {
        for (const QVariant &group : result.catalogue.groups.value(category.toString())) {
            const QString name = group.toMap().value(QStringLiteral("name")).toString();
            require(result.groupPlaces.contains({category.toString(), name}));
            for (const QVariant &preset :
                 result.catalogue.presets.value({category.toString(), name})) {
                const QString id = preset.toMap().value(QStringLiteral("id")).toString();
                require(result.presetPlaces.contains(id));
                ++presets;
            }
        }
    }
    require(presets == result.presetPlaces.size());
}

} // namespace

/*! Applies an overlay to the built-in catalogue. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const CatalogueResult builtIn = readCatalogueAt(builtInCataloguePath());
    const OverlaidCatalogue overlaid =
        withOverlays(builtIn, {{QStringLiteral("own.json"), inputBytes(data, size)}});
    requireConsistent(overlaid.result);
    for (const CatalogueMistake &mistake : overlaid.result.mistakes) {
        require(!mistake.text().isEmpty());
    }
    for (auto alias = overlaid.aliases.begin(); alias != overlaid.aliases.end(); ++alias) {
        require(overlaid.result.presetPlaces.contains(*alias));
        require(!overlaid.result.presetPlaces.contains(alias.key()));
    }
    return 0;
}
