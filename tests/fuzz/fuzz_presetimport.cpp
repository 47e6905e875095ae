#include "host/presets/exchange/presetfile.h"
#include "tests/fuzz/fuzzing.h"

/*! Reads a file of presets of this or another program, and writes what it held as one of ours. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString name = QStringLiteral("a file");
    const Result<PortablePresets> read = readPresets(inputBytes(data, size), name);
    if (!read) {
        require(!read.error().text.isEmpty());
        return 0;
    }
    for (const RefusedPreset &refused : read->refused) {
        require(!refused.reason.isEmpty());
    }
    const QStringList names = valueNames();
    for (const PortablePreset &preset : read->presets) {
        for (auto value = preset.values.begin(); value != preset.values.end(); ++value) {
            require(names.contains(value.key()));
        }
        for (const Finding &finding : preset.findings) {
            require(finding.text.isEmpty() == (finding.verdict == Finding::Kept));
        }
    }
    const Result<PortablePresets> again = readPresets(presetFile(read->presets), name);
    require(again && again->refused.isEmpty());
    require(again->presets.size() == read->presets.size());
    for (int i = 0; i < again->presets.size(); ++i) {
        require(again->presets.at(i).values.keys() == read->presets.at(i).values.keys());
    }
    return 0;
}
