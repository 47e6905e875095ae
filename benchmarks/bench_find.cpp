// How long a keystroke of a search takes in 100,000 presets, and how much memory their index needs.
// Each figure is printed beside the most that it may be, and the exit code is 1 if one exceeds it.

#include "benchmarks/largecatalogue.h"
#include "formats/proxy/formatsproxy.h"
#include "host/presets/find/presetindex.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>
#include <malloc.h>

namespace {

constexpr int formatCount = 1000;
constexpr int presetCount = formatCount * LargeCatalogue::presetsPerFormat;
constexpr double oneFrame = 16; // ms

/*! Exits if what is to be measured didn't happen. */
void require(bool isSo, const char *otherwise)
{
    if (!isSo) {
        qFatal("%s", otherwise);
    }
}

bool report(const QString &what, double value, double limit, const char *unit)
{
    QTextStream(stdout) << QStringLiteral("%1 %2 %4, at most %3 %4\n")
                               .arg(what, -52)
                               .arg(value, 8, 'f', 1)
                               .arg(limit)
                               .arg(QLatin1String(unit));
    return value <= limit;
}

size_t allocated()
{
    const struct mallinfo2 memory = mallinfo2();
    return memory.uordblks + memory.hblkhd; // small blocks, and those mapped on their own
}

/*! The slowest of the keystrokes that type \a text, in ms; each the fastest of some tries. */
double slowestKeystroke(const PresetIndex &index, const QString &text, int expected)
{
    constexpr int shown = 200; // presets that a list can describe at once
    constexpr int tries = 5;
    double slowest = 0;
    PresetMatches matches;
    for (int length = 1; length <= text.size(); ++length) {
        double fastest = 1e9;
        for (int round = 0; round < tries; ++round) {
            QElapsedTimer clock;
            clock.start();
            matches = index.find({text.left(length), {}, {}, {}}, shown);
            fastest = std::min(fastest, double(clock.nsecsElapsed()) / 1e6);
        }
        slowest = std::max(slowest, fastest);
    }
    require(matches.count == expected, "the search found other presets than it should");
    return slowest;
}

} // namespace

int main()
{
    LargeCatalogue::serve(formatCount);
    FormatsProxy formats;
    formats.init(QString());
    const size_t before = allocated();
    QElapsedTimer clock;
    clock.start();
    const PresetIndex index(formats);
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    const double bytes = double(allocated() - before) / presetCount;

    bool isFast = report(QStringLiteral("index of 100,000 presets, built in"), seconds, 5, "s");
    isFast &= report(QStringLiteral("memory for each, without its texts"), bytes, 100, "bytes");
    const auto time = [&](const char *text, int expected) {
        const QString typed = QString::fromLatin1(text);
        isFast &= report(QStringLiteral("slowest keystroke of \"%1\"").arg(typed),
                         slowestKeystroke(index, typed, expected), oneFrame, "ms");
    };
    time("preset 1080 h264 mp4", presetCount);
    time("format77 preset",
         11 * LargeCatalogue::presetsPerFormat); // also FORMAT770 and those after it
    time("avc full hd 123x45", 1);
    time("prsset 1080 fromat500", LargeCatalogue::presetsPerFormat);
    time("h265 4k unknown words only", 0);
    return isFast ? 0 : 1;
}
