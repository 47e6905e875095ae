#ifndef FORMATS_PARSERS_NOFORMATIDPARSER_H
#define FORMATS_PARSERS_NOFORMATIDPARSER_H

#include "formats/parsers/iformatsparser.h"

#include <QObject>

/*!
 * Reads the older form of the data: presets have no id, and each option list is packed into one
 * string, "chosen:offered,offered". Keeps no state between calls.
 */
class VEX_FORMATS_EXPORT NoFormatIdParser : public QObject, public IFormatsParser
{
    // No Q_OBJECT: there are no signals, slots or properties.
    Q_DISABLE_COPY(NoFormatIdParser)

public:
    explicit NoFormatIdParser(QObject *parent = nullptr);

    /*! Adds a format for every object, even if its title exists already. */
    bool parseVideo(const QString &path, FormatListModel *model, bool flag) override;
    /*! A lossless entry becomes one preset, any other three: "high", "mid" and "low". */
    bool parseAudio(const QString &path, FormatListModel *model, bool flag) override;
    bool parseDevice(const QString &path, FormatListModel *model, bool flag) override;
    /*! Reads nothing and returns true: this form has no recently-used file. */
    bool parseRecently(const QString &path, FormatDetailModel *model, bool flag) override;
    /*! Every format is tagged "video". */
    bool parseVideoNew(const QString &category, FormatListModel *model) override;
};

#endif
