#ifndef TESTS_FORMATS_PROXY_SAMPLECATALOGUE_H
#define TESTS_FORMATS_PROXY_SAMPLECATALOGUE_H

#include "tests/formats/fakecatalogue.h"

#include <QJsonDocument>

/*! Two video formats, one of them without presets, and an audio format with a Chinese title. */
inline FakeCatalogue sampleCatalogue()
{
    const auto map = [](const char *json) {
        return QJsonDocument::fromJson(json).toVariant().toMap();
    };
    FakeCatalogue catalogue;
    catalogue.categories = {QStringLiteral("Video"), QStringLiteral("Audio")};
    catalogue.groups = {
        {QStringLiteral("Video"),
         {{map(R"({"name": "MP4", "icon": "mp4.png"})"),
           {map(R"({
                "id": "video_mp4_source", "extension": "mp4", "title": "Same as source",
                "videoParam": {"encoder": "h264", "bitrateKbps": 0, "frameRate": 0,
                               "resolution": "0"},
                "videoOptions": {"encoderList": ["h264", "hevc"], "bitrateKbpsList": [0, 1500],
                                 "frameRateList": [0, 30], "resolutionList": ["0", "1280x720"],
                                 "levelList": [3000, 2000, 1000]},
                "audioParam": {"channel": 2, "encoder": "aac", "bitrateKbps": 128,
                               "sampleRate": 44100},
                "audioOptions": {"channelList": [1, 2], "encoderList": ["aac"],
                                 "bitrateKbpsList": [0, 128, 256],
                                 "sampleRateList": [44100, 48000]}
            })"),
            map(R"({"id": "video_mp4_720p", "extension": "mp4", "title": "HD 720p"})")}},
          {map(R"({"name": "AVI", "icon": "avi.png"})"), {}}}},
        {QStringLiteral("Audio"),
         {{map(R"({"name": "\u97f3\u9891", "icon": "audio.png"})"), {map(R"({
                "id": "audio_yinpin_source", "extension": "mp3", "title": "\u97f3\u8d28",
                "audioParam": {"channel": 2, "encoder": "mp3", "bitrateKbps": 320,
                               "sampleRate": 44100},
                "audioOptions": {"channelList": [2], "encoderList": ["mp3"],
                                 "bitrateKbpsList": [0, 320], "sampleRateList": [44100]}
            })")}}}},
    };
    return catalogue;
}

#endif
