#include "host/check/cataloguelint.h"
#include "tests/fuzz/fuzzing.h"

/*! Reads and checks a catalogue. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const CatalogueResult catalogue =
        readCatalogue({{QStringLiteral("own.json"), inputBytes(data, size)}});
    for (const CatalogueMistake &mistake : catalogue.mistakes + lintCatalogue(catalogue, {}, {})) {
        require(!mistake.text().isEmpty());
    }
    return 0;
}
