// Lookups must cost the same in a small and a large catalogue; init() and uninit() must stay close
// to their floor: reading, or writing, the same data without processing it. Each figure comes with
// its ratio to the floor, measured in the same run, as the counter "ratio".

#include "benchmarks/largecatalogue.h"
#include "formats/proxy/formatsproxy.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace {

constexpr int smallFormats = 10;
constexpr int largeFormats = 1000;

double seconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

// Times both alternately, so that a change of the machine's speed affects both.
void compare(benchmark::State &state, const std::function<double()> &work,
             const std::function<double()> &floor)
{
    double workSeconds = 0;
    double floorSeconds = 0;
    for (auto _ : state) {
        floorSeconds += floor();
        const double elapsed = work();
        workSeconds += elapsed;
        state.SetIterationTime(elapsed);
    }
    const auto iterations = double(state.iterations());
    state.counters["floor_s"] = floorSeconds / iterations;
    state.counters["ratio"] = workSeconds / floorSeconds;
}

void require(benchmark::State &state, bool holds, const char *what)
{
    if (!holds) {
        state.SkipWithError(what);
    }
}

std::unique_ptr<FormatsProxy> loadedFacade(int formats)
{
    LargeCatalogue::serve(formats);
    auto facade = std::make_unique<FormatsProxy>();
    facade->init(QString());
    return facade;
}

// --- lookups --------------------------------------------------------------------------------

using Lookup = bool (*)(FormatsProxy &, const QString &id); // true: found

bool getTagAndClassById(FormatsProxy &facade, const QString &id)
{
    return !facade.getTagAndClassById(id).isEmpty();
}
bool getTagName(FormatsProxy &facade, const QString &id)
{
    return !facade.getTagName(id).isEmpty();
}
bool getClassIconById(FormatsProxy &facade, const QString &id)
{
    return !facade.getClassIconById(id).isEmpty();
}
bool getFormat(FormatsProxy &facade, const QString &id)
{
    return !facade.getFormat(id).isEmpty();
}
bool isVideoFormat(FormatsProxy &facade, const QString &id)
{
    return facade.isVideoFormat(id);
}
bool containId(FormatsProxy &facade, const QString &id)
{
    return facade.formatListModel()->containId(id);
}

QStringList idsAcross(int formats, bool hit)
{
    QStringList ids;
    for (int i = 0; i < 1000; ++i) {
        const int format = i * 7919 % formats;
        const int preset = i * 31 % LargeCatalogue::presetsPerFormat;
        ids.append(LargeCatalogue::presetId(hit ? format : formats + format, preset));
    }
    return ids;
}

// Each lookup in the large catalogue against the same one in the small catalogue.
void lookUp(benchmark::State &state, Lookup function, bool hit)
{
    const auto small = loadedFacade(smallFormats);
    const auto large = loadedFacade(largeFormats);
    const QStringList smallIds = idsAcross(smallFormats, hit);
    const QStringList largeIds = idsAcross(largeFormats, hit);
    const auto timed = [&state, function, hit](FormatsProxy &facade, const QStringList &ids) {
        int found = 0;
        const double elapsed = seconds([&] {
            for (const QString &id : ids) {
                found += function(facade, id) ? 1 : 0;
            }
        });
        require(state, found == (hit ? ids.size() : 0), "a lookup gave a wrong result");
        return elapsed;
    };
    compare(
        state, [&] { return timed(*large, largeIds); }, [&] { return timed(*small, smallIds); });
    state.SetItemsProcessed(state.iterations() * largeIds.size());
}

// --- init and uninit ------------------------------------------------------------------------

// Reads each key that the import needs once and copies its value.
double readCatalogue()
{
    static const QString paramKeys[] = {QStringLiteral("encoder"), QStringLiteral("bitrateKbps")};
    static const QString videoKeys[] = {QStringLiteral("frameRate"), QStringLiteral("resolution")};
    static const QString audioKeys[] = {QStringLiteral("channel"), QStringLiteral("sampleRate")};
    static const QString optionKeys[] = {QStringLiteral("encoderList"),
                                         QStringLiteral("bitrateKbpsList")};
    static const QString videoOptionKeys[] = {QStringLiteral("frameRateList"),
                                              QStringLiteral("resolutionList"),
                                              QStringLiteral("levelList")};
    static const QString audioOptionKeys[] = {QStringLiteral("channelList"),
                                              QStringLiteral("sampleRateList")};
    static const QString entryKeys[] = {QStringLiteral("id"), QStringLiteral("extension"),
                                        QStringLiteral("title")};
    QVariant value;
    const auto read = [&value](const QVariantMap &map, const auto &keys) {
        for (const QString &key : keys) {
            value = map.value(key);
            benchmark::DoNotOptimize(value);
        }
    };
    return seconds([&] {
        const QVariantList groups = LargeCatalogue::groups();
        for (const QVariant &group : groups) {
            const QVariantList contents = LargeCatalogue::contents(group.toMap());
            for (const QVariant &element : contents) {
                const QVariantMap entry = element.toMap();
                read(entry, entryKeys);
                const QVariantMap videoParam = entry.value(QStringLiteral("videoParam")).toMap();
                read(videoParam, paramKeys);
                read(videoParam, videoKeys);
                const QVariantMap videoOptions =
                    entry.value(QStringLiteral("videoOptions")).toMap();
                read(videoOptions, optionKeys);
                read(videoOptions, videoOptionKeys);
                const QVariantMap audioParam = entry.value(QStringLiteral("audioParam")).toMap();
                read(audioParam, paramKeys);
                read(audioParam, audioKeys);
                const QVariantMap audioOptions =
                    entry.value(QStringLiteral("audioOptions")).toMap();
                read(audioOptions, optionKeys);
                read(audioOptions, audioOptionKeys);
            }
        }
    });
}

void initCatalogue(benchmark::State &state)
{
    LargeCatalogue::serve(largeFormats);
    const auto init = [&state] {
        FormatsProxy facade;
        const double elapsed = seconds([&] { facade.init(QString()); });
        require(state, facade.formatListModel()->rowCount() == largeFormats,
                "init() did not load the catalogue");
        return elapsed;
    };
    compare(state, init, readCatalogue);
}

// As many user-defined presets as the large catalogue has, in formatCache.json.
void writeUserPresets(const QString &folder)
{
    LargeCatalogue::serve(largeFormats);
    FormatsProxy facade;
    facade.init(folder);
    for (int format = 0; format < largeFormats; ++format) {
        FormatDetailModel *presets =
            facade.formatListModel()->formatDetailModel(facade.formatListModel()->getTitle(format));
        for (int row = 0; row < LargeCatalogue::presetsPerFormat; ++row) {
            FormatDetailModelData preset;
            presets->getModelInfoByIndex(row, preset);
            preset.userDefine = true;
            presets->updateModeInfo(row, preset);
        }
    }
    facade.uninit();
    LargeCatalogue::serve(0);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void initUserPresets(benchmark::State &state)
{
    const QTemporaryDir folder;
    writeUserPresets(folder.path());
    const QByteArray json = contentsOf(folder.filePath(QStringLiteral("formatCache.json")));
    const auto init = [&] {
        FormatsProxy facade;
        const double elapsed = seconds([&] { facade.init(folder.path()); });
        require(state, facade.formatListModel()->rowCount() == largeFormats,
                "init() did not load formatCache.json");
        return elapsed;
    };
    const auto floor = [&json] {
        return seconds(
            [&json] { benchmark::DoNotOptimize(QJsonDocument::fromJson(json).toVariant()); });
    };
    compare(state, init, floor);
}

void uninitUserPresets(benchmark::State &state)
{
    const QTemporaryDir folder;
    writeUserPresets(folder.path());
    const QString path = folder.filePath(QStringLiteral("formatCache.json"));
    FormatsProxy facade;
    facade.init(folder.path());
    const QVariantList list = facade.formatListModel()->toVariantListForSave();
    const QByteArray json = contentsOf(path);
    const auto uninit = [&] {
        const double elapsed = seconds([&] { facade.uninit(); });
        require(state, contentsOf(path) == json, "uninit() wrote something else");
        return elapsed;
    };
    const auto floor = [&] {
        return seconds([&] {
            QFile file(folder.filePath(QStringLiteral("floor.json")));
            if (file.open(QIODevice::WriteOnly)) {
                file.write(QJsonDocument::fromVariant(list).toJson());
            }
        });
    };
    compare(state, uninit, floor);
}

// --- adding ---------------------------------------------------------------------------------

// A thousand presets into a list of 100,000, against the same into an empty one.
void addPreset(benchmark::State &state)
{
    const auto fill = [](FormatDetailModel &presets, int from, int count) {
        FormatDetailModelData preset;
        for (int i = from; i < from + count; ++i) {
            preset.id = QString::number(i);
            presets.addModeInfo(preset);
        }
    };
    FormatDetailModel large;
    fill(large, 0, 100000);
    int next = large.rowCount();
    compare(
        state,
        [&] {
            const double elapsed = seconds([&] { fill(large, next, 1000); });
            next += 1000;
            require(state, large.rowCount() == next, "presets were not added");
            return elapsed;
        },
        [&] {
            FormatDetailModel empty;
            return seconds([&] { fill(empty, 0, 1000); });
        });
    state.SetItemsProcessed(state.iterations() * 1000);
}

// --- memory ---------------------------------------------------------------------------------

double residentBytes()
{
    const QList<QByteArray> pages = contentsOf(QStringLiteral("/proc/self/statm")).split(' ');
    return pages.value(1).toDouble() * 4096;
}

void memoryOfAPreset(benchmark::State &state)
{
    LargeCatalogue::serve(largeFormats);
    for (auto _ : state) {
        const double before = residentBytes();
        FormatsProxy facade;
        facade.init(QString());
        state.counters["bytes_per_preset"] =
            (residentBytes() - before) / (largeFormats * LargeCatalogue::presetsPerFormat);
    }
}

void registerLookup(const char *name, Lookup function)
{
    for (const bool hit : {true, false}) {
        benchmark::RegisterBenchmark((std::string(name) + (hit ? "/hit" : "/miss")).c_str(), lookUp,
                                     function, hit)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
}

} // namespace

BENCHMARK(memoryOfAPreset)->Iterations(1);
BENCHMARK(initCatalogue)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(initUserPresets)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(uninitUserPresets)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(addPreset)->UseManualTime()->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    registerLookup("getTagAndClassById", getTagAndClassById);
    registerLookup("getTagName", getTagName);
    registerLookup("getClassIconById", getClassIconById);
    registerLookup("getFormat", getFormat);
    registerLookup("isVideoFormat", isVideoFormat);
    registerLookup("containId", containId);
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
