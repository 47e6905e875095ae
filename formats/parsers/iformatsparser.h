#ifndef FORMATS_PARSERS_IFORMATSPARSER_H
#define FORMATS_PARSERS_IFORMATSPARSER_H

#include "formats/formatsglobal.h"

#include <QtGlobal>

class FormatDetailModel;
class FormatListModel;
class QString;

/*!
 * Fills the models from the export catalogue and from JSON files. The caller owns the models.
 *
 * The file operations append to the model and store \a flag as each preset's userDefine. They
 * return false and log the reason as one debug line if the file cannot be opened or does not hold
 * a non-empty JSON array. For a null model or an empty path they return false and log nothing.
 */
class VEX_FORMATS_EXPORT IFormatsParser
{
    Q_DISABLE_COPY(IFormatsParser)

public:
    IFormatsParser() = default;
    virtual ~IFormatsParser() = default;

    /*! A preset file: a list of formats, each with its presets. */
    virtual bool parseVideo(const QString &path, FormatListModel *model, bool flag) = 0;
    /*! An audio list file: a list of formats, each with audio-only presets. */
    virtual bool parseAudio(const QString &path, FormatListModel *model, bool flag) = 0;
    /*! A preset file of devices; its presets are never user-defined, and \a flag is ignored. */
    virtual bool parseDevice(const QString &path, FormatListModel *model, bool flag) = 0;
    /*! A recently-used file: a list of presets. */
    virtual bool parseRecently(const QString &path, FormatDetailModel *model, bool flag) = 0;
    /*! The formats of one export category; false only for a null model. */
    virtual bool parseVideoNew(const QString &category, FormatListModel *model) = 0;
};

#endif
