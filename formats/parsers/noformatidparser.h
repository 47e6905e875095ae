#ifndef FORMATS_PARSERS_NOFORMATIDPARSER_H
#define FORMATS_PARSERS_NOFORMATIDPARSER_H

#include "formats/parsers/iformatsparser.h"

#include <QObject>

/*!
 * Reads an older shape of the data, whose presets carry no id and whose option lists are each
 * packed into one text, "chosen:offered,offered". Keeps no state between calls.
 */
class VEX_FORMATS_EXPORT NoFormatIdParser : public QObject, public IFormatsParser
{
    // No Q_OBJECT: it has nothing to offer to a meta-object.
    Q_DISABLE_COPY(NoFormatIdParser)

public:
    explicit NoFormatIdParser(QObject *parent = nullptr);

    /*! Adds a format row for every object, also for a title that is already there. */
    bool parseVideo(const QString &path, FormatListModel *model, bool flag) override;
    /*! A lossless entry gives one preset, any other three: "high", "mid" and "low". */
    bool parseAudio(const QString &path, FormatListModel *model, bool flag) override;
    bool parseDevice(const QString &path, FormatListModel *model, bool flag) override;
    /*! Such data has no recently-used file: true, and nothing is read. */
    bool parseRecently(const QString &path, FormatDetailModel *model, bool flag) override;
    /*! Every format is tagged "video". */
    bool parseVideoNew(const QString &category, FormatListModel *model) override;
};

#endif
