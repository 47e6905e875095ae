#ifndef FORMATS_MODELS_FORMATDETAILMODELDATA_H
#define FORMATS_MODELS_FORMATDETAILMODELDATA_H

#include "formats/formatsglobal.h"

#include <QString>
#include <QVariant>

/*!
 * One output preset: a container with its encoder settings and the values offered for each.
 *
 * Chosen values are strings, even numbers: bitrates in kbps, sample rates in Hz, frame rates in
 * fps, resolutions as "1920x1080"; "0" keeps the source's own value. Nothing checks that a chosen
 * value is one of those offered.
 */
class VEX_FORMATS_EXPORT FormatDetailModelData
{
public:
    QString id;
    QString extension;
    QString title;
    QString icon;
    QString socialType;
    bool userDefine = false;
    QString videoEncoder = QStringLiteral("h264");
    QVariantList videoEncoders; //!< empty: an audio-only preset
    QString videoFrameRate = QStringLiteral("0");
    QVariantList videoFrameRates;
    QString videoResolution = QStringLiteral("0");
    QVariantList videoResolutions;
    QString videoBitrate = QStringLiteral("0"); //!< the catalogue's own; not in any map or role
    QString videoBitrateLow = QStringLiteral("0");
    QString videoBitrateMid = QStringLiteral("0");
    QString videoBitrateHigh = QStringLiteral("0");
    QVariantList videoBitrates;
    QString audioEncoder = QStringLiteral("aac");
    QVariantList audioEncoders;
    QString audioSampleRate = QStringLiteral("0");
    QVariantList audioSampleRates;
    QString audioChannel = QStringLiteral("0");
    QVariantList audioChannels;
    QString audioBitrate = QStringLiteral("0");
    QVariantList audioBitrates;
    bool isLoseless = false;
    bool supportMultiTrack = false;
    QVariantMap outPutNode; //!< the converter's settings, passed through
    QString param;

    /*!
     * The preset as the facade hands it out: "id", "extension", "title", "icon", "socialType",
     * "supportMultiTrack", "outPutNode", an "audio" map and, only for a preset that offers video
     * encoders, a "video" map.
     */
    [[nodiscard]] QVariantMap toVarMap() const;

    /*!
     * The preset as it is saved: toVarMap() with the video bitrates folded into one string
     * "bitrates": "high:mid:low:" and the offered ones joined by ",".
     */
    [[nodiscard]] QVariantMap toVarMapForSave() const;

    /*! The items as strings, joined by \a sep; empty for an empty list. Nothing is escaped. */
    [[nodiscard]] QString joinStringList(const QVariantList &list, const QString &sep) const;
};

#endif
