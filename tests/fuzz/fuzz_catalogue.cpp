#include "host/check/cataloguelint.h"

#include <cstdlib>

/*! A catalogue of one's own, read and checked. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    const CatalogueResult catalogue = readCatalogue({{QStringLiteral("own.json"), json}});
    for (const CatalogueMistake &mistake : catalogue.mistakes + lintCatalogue(catalogue, {}, {})) {
        if (mistake.text().isEmpty()) {
            std::abort();
        }
    }
    return 0;
}
