#include "formats/models/formatdetailmodel.h"
#include "formats/models/formatlistmodel.h"
#include "formats/parsers/noformatidparser.h"
#include "formats/parsers/widthformatidparser.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryFile>

#include <cstdlib>

namespace {

QString pathOf(const QByteArray &bytes)
{
    static QTemporaryFile file;
    if (!file.open() || !file.resize(0) || file.write(bytes) != bytes.size()) {
        std::abort();
    }
    file.close();
    return file.fileName();
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
    recently.toVariantList();
}

} // namespace

/*! The user's files, by both parsers, and what is saved of them. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    const QString path = pathOf(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    WidthFormatIdParser withIds;
    parseWith(withIds, path);
    NoFormatIdParser withoutIds;
    parseWith(withoutIds, path);
    return 0;
}
