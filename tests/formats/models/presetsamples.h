#ifndef TESTS_FORMATS_MODELS_PRESETSAMPLES_H
#define TESTS_FORMATS_MODELS_PRESETSAMPLES_H

#include "formats/models/formatdetailmodel.h"

#include <QJsonDocument>
#include <QStringList>

inline FormatDetailModelData presetWithId(const QString &id, bool userDefine = false)
{
    FormatDetailModelData preset;
    preset.id = id;
    preset.userDefine = userDefine;
    return preset;
}

/*! A preset with a distinct, non-default value in every field. */
inline FormatDetailModelData samplePreset()
{
    FormatDetailModelData preset;
    preset.id = QStringLiteral("Video_MP4_7");
    preset.extension = QStringLiteral("mp4");
    preset.title = QStringLiteral("Same as source");
    preset.icon = QStringLiteral("mp4.png");
    preset.socialType = QStringLiteral("short");
    preset.userDefine = true;
    preset.videoEncoder = QStringLiteral("hevc");
    preset.videoEncoders = {QStringLiteral("h264"), QStringLiteral("hevc")};
    preset.videoFrameRate = QStringLiteral("30");
    preset.videoFrameRates = {24, 30};
    preset.videoResolution = QStringLiteral("1920x1080");
    preset.videoResolutions = {QStringLiteral("640x480"), QStringLiteral("1920x1080")};
    preset.videoBitrate = QStringLiteral("4500");
    preset.videoBitrateLow = QStringLiteral("2000");
    preset.videoBitrateMid = QStringLiteral("4000");
    preset.videoBitrateHigh = QStringLiteral("8000");
    preset.videoBitrates = {1000, 2000, 4000};
    preset.audioEncoder = QStringLiteral("mp3");
    preset.audioEncoders = {QStringLiteral("aac"), QStringLiteral("mp3")};
    preset.audioSampleRate = QStringLiteral("44100");
    preset.audioSampleRates = {22050, 44100};
    preset.audioChannel = QStringLiteral("2");
    preset.audioChannels = {1, 2};
    preset.audioBitrate = QStringLiteral("128");
    preset.audioBitrates = {96, 128};
    preset.isLoseless = true;
    preset.supportMultiTrack = true;
    preset.outPutNode = {{QStringLiteral("id"), QStringLiteral("Video_MP4")},
                         {QStringLiteral("nothing"), QVariant()}};
    preset.param = QStringLiteral("-shortest");
    return preset;
}

/*!
 * The preset's fields by name. They are bound in declaration order, so that adding, removing or
 * moving a field breaks the build or the tests.
 */
inline QVariantMap fieldsOf(const FormatDetailModelData &preset)
{
    const auto &[id, extension, title, icon, socialType, userDefine, videoEncoder, videoEncoders,
                 videoFrameRate, videoFrameRates, videoResolution, videoResolutions, videoBitrate,
                 videoBitrateLow, videoBitrateMid, videoBitrateHigh, videoBitrates, audioEncoder,
                 audioEncoders, audioSampleRate, audioSampleRates, audioChannel, audioChannels,
                 audioBitrate, audioBitrates, isLoseless, supportMultiTrack, outPutNode, param] =
        preset;
    return {
        {QStringLiteral("id"), id},
        {QStringLiteral("extension"), extension},
        {QStringLiteral("title"), title},
        {QStringLiteral("icon"), icon},
        {QStringLiteral("socialType"), socialType},
        {QStringLiteral("userDefine"), userDefine},
        {QStringLiteral("videoEncoder"), videoEncoder},
        {QStringLiteral("videoEncoders"), videoEncoders},
        {QStringLiteral("videoFrameRate"), videoFrameRate},
        {QStringLiteral("videoFrameRates"), videoFrameRates},
        {QStringLiteral("videoResolution"), videoResolution},
        {QStringLiteral("videoResolutions"), videoResolutions},
        {QStringLiteral("videoBitrate"), videoBitrate},
        {QStringLiteral("videoBitrateLow"), videoBitrateLow},
        {QStringLiteral("videoBitrateMid"), videoBitrateMid},
        {QStringLiteral("videoBitrateHigh"), videoBitrateHigh},
        {QStringLiteral("videoBitrates"), videoBitrates},
        {QStringLiteral("audioEncoder"), audioEncoder},
        {QStringLiteral("audioEncoders"), audioEncoders},
        {QStringLiteral("audioSampleRate"), audioSampleRate},
        {QStringLiteral("audioSampleRates"), audioSampleRates},
        {QStringLiteral("audioChannel"), audioChannel},
        {QStringLiteral("audioChannels"), audioChannels},
        {QStringLiteral("audioBitrate"), audioBitrate},
        {QStringLiteral("audioBitrates"), audioBitrates},
        {QStringLiteral("isLoseless"), isLoseless},
        {QStringLiteral("supportMultiTrack"), supportMultiTrack},
        {QStringLiteral("outPutNode"), outPutNode},
        {QStringLiteral("param"), param},
    };
}

inline QStringList idsOf(const FormatDetailModel &presets)
{
    QStringList ids;
    for (int row = 0; row < presets.rowCount(); ++row) {
        ids.append(presets.getId(row));
    }
    return ids;
}

/*!
 * A map or a list as JSON, which distinguishes strings, numbers, booleans and null: as variants,
 * "1", 1 and true compare equal.
 */
inline QStringList asLines(const QVariant &mapOrList)
{
    const QByteArray json = QJsonDocument::fromVariant(mapOrList).toJson();
    return QString::fromUtf8(json).split(QLatin1Char('\n'));
}

#endif
