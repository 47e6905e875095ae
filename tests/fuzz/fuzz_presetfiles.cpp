#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/parsers/noformatidparser.h"
#include "formats/parsers/widthformatidparser.h"
#include "tests/fuzz/fuzzing.h"

#include <QLoggingCategory>

#include <sys/mman.h>
#include <unistd.h>

namespace {

/*! The path of an in-memory file that holds the bytes until the next call. */
QString pathTo(const QByteArray &bytes)
{
    static const int file = memfd_create("presets", MFD_CLOEXEC);
    require(ftruncate(file, bytes.size()) == 0);
    require(pwrite(file, bytes.constData(), size_t(bytes.size()), 0) == bytes.size());
    return QStringLiteral("/proc/self/fd/%1").arg(file);
}

void parseWith(IFormatsParser &parser, const QString &path)
{
    FormatListModel formats;
    FormatDetailModel recently;
    parser.parseVideo(path, &formats, true);
    parser.parseAudio(path, &formats, true);
    parser.parseDevice(path, &formats, true);
    parser.parseRecently(path, &recently, true);
    formats.toVariantListForSave();
    static_cast<void>(recently.toVariantList());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    return 0;
}

/*! Reads the user's files with both parsers, and saves them. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = pathTo(inputBytes(data, size));
    WidthFormatIdParser withIds;
    parseWith(withIds, path);
    NoFormatIdParser withoutIds;
    parseWith(withoutIds, path);
    return 0;
}
