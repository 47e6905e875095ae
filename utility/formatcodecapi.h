#ifndef UTILITY_FORMATCODECAPI_H
#define UTILITY_FORMATCODECAPI_H

#include "utilityglobal.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

#include <memory>

struct ExportCatalogue;

/*!
 * The export catalogue: categories of groups (output formats, device makers, video sites) of
 * presets.
 *
 * Serves the built-in catalogue, or the file or folder that the environment variable
 * VEX_EXPORT_CATALOGUE names when the instance is created. Mistakes there are reported in one line
 * on stderr and left out; if no preset is left, the built-in catalogue is served. The lists are
 * built once: a call costs one lookup, and equal option lists share their data.
 */
class VEX_UTILITY_EXPORT FormatCodecApi
{
public:
    static FormatCodecApi *getInstance();

    /*! The names of the categories, in catalogue order. */
    QList<QVariant> getExportCategoryLists();

    /*!
     * The category's groups, in catalogue order: maps of "category", "name" and "icon", all
     * strings. Empty for an unknown category.
     */
    QList<QVariant> getExportGroupLists(const QString &category);

    /*!
     * The presets of a group from getExportGroupLists(), in catalogue order; only the group's
     * "category" and "name" are read. Empty for any other map.
     *
     * A preset is a map of "id", "extension" and "title" (strings), "audioParam" and "audioOptions"
     * (maps, empty if the format has no audio) and, unless the format is audio-only, "videoParam"
     * and "videoOptions" (maps). The params hold the chosen values: "encoder" (an ffmpeg codec
     * name), "bitrateKbps", for audio "channel" and "sampleRate" (Hz), for video "frameRate" (fps)
     * and "resolution" ("1920x1080"). The options hold a list of values for each, under the same
     * key followed by "List", and for video the "levelList": the high, middle and low bitrate in
     * kbps. Encoders and resolutions are strings, everything else numbers; "0" and 0 keep the
     * source's value.
     */
    QList<QVariant> getExportGroupContents(const QMap<QString, QVariant> &group);

private:
    FormatCodecApi();
    ~FormatCodecApi();
    Q_DISABLE_COPY(FormatCodecApi)

    const std::unique_ptr<const ExportCatalogue> m_catalogue;
};

#endif
