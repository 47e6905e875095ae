#ifndef FORMATS_PARSERS_IFORMATSPARSER_H
#define FORMATS_PARSERS_IFORMATSPARSER_H

#include "formats/formatsglobal.h"

class FormatDetailModel;
class FormatListModel;
class QString;

/*!
 * Fills the models from the export catalogue and from JSON files. The models stay the caller's.
 *
 * The file operations append to what the model holds and store \a flag as each preset's
 * userDefine. They return false, with one debug line that says why, when the file cannot be opened
 * or holds no non-empty JSON array, and without a line for a null model or an empty path.
 */
class VEX_FORMATS_EXPORT IFormatsParser
{
    Q_DISABLE_COPY(IFormatsParser)

public:
    IFormatsParser() = default;
    virtual ~IFormatsParser() = default;

    /*! A preset file: a list of formats, each with its presets. */
    virtual bool parseVideo(const QString &path, FormatListModel *model, bool flag) = 0;
    /*! An audio list file: the same with audio-only presets. */
    virtual bool parseAudio(const QString &path, FormatListModel *model, bool flag) = 0;
    /*! A preset file of devices; its presets are never user-defined, whatever \a flag says. */
    virtual bool parseDevice(const QString &path, FormatListModel *model, bool flag) = 0;
    /*! A recently-used file: a list of presets. */
    virtual bool parseRecently(const QString &path, FormatDetailModel *model, bool flag) = 0;
    /*! The formats of one export category; false only for a null model. */
    virtual bool parseVideoNew(const QString &category, FormatListModel *model) = 0;
};

#endif
