#include "host/commandline/progresstext.h"
#include "host/media/mediafacts.h"
#include "tests/fuzz/fuzzing.h"

/*! Parses ffmpeg's progress reports, in pieces of the length that the first byte gives. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = inputBytes(data, size);
    const QByteArray report = input.mid(1);
    const int pieceSize = input.isEmpty() ? 1 : 1 + uchar(input.at(0));
    const double total = 60;
    ProgressReader whole(total);
    ProgressReader cut(total);
    const bool isNew = whole.feed(report);
    bool isNewInPieces = false;
    for (int start = 0; start < report.size(); start += pieceSize) {
        isNewInPieces = cut.feed(report.mid(start, pieceSize)) || isNewInPieces;
    }
    const Progress &progress = whole.progress();
    require(isNew == isNewInPieces);
    require(progress.done == cut.progress().done && progress.speed == cut.progress().speed);
    require(progress.done == plausibleSeconds(progress.done));
    require(progress.percent() >= 0 && progress.percent() <= 100);
    require(progress.timeLeft() == -1 || progress.timeLeft() >= 0);
    require(!progressText(progress).isEmpty() && progressBar(progress).size() == 22);
    return 0;
}
