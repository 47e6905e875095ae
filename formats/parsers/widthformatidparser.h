#ifndef FORMATS_PARSERS_WIDTHFORMATIDPARSER_H
#define FORMATS_PARSERS_WIDTHFORMATIDPARSER_H

#include "formats/parsers/iformatsparser.h"

#include <QObject>

/*! Reads the current form of the data: presets have an id. Keeps no state between calls. */
class VEX_FORMATS_EXPORT WidthFormatIdParser : public QObject, public IFormatsParser
{
    // No Q_OBJECT: there are no signals, slots or properties.
    Q_DISABLE_COPY(WidthFormatIdParser)

public:
    explicit WidthFormatIdParser(QObject *parent = nullptr);

    bool parseVideo(const QString &path, FormatListModel *model, bool flag) override;
    bool parseAudio(const QString &path, FormatListModel *model, bool flag) override;
    bool parseDevice(const QString &path, FormatListModel *model, bool flag) override;
    bool parseRecently(const QString &path, FormatDetailModel *model, bool flag) override;
    bool parseVideoNew(const QString &category, FormatListModel *model) override;
};

#endif
