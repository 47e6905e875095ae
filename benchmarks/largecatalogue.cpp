#include "benchmarks/largecatalogue.h"

#include <formatcodecapi.h>

#include <QHash>

namespace {

const QString category = QStringLiteral("Video");

struct Served
{
    QVariantList groups;
    QHash<QString, QVariantList> contents; // by group name
};

Served &served()
{
    static Served catalogue;
    return catalogue;
}

QVariantMap preset(int format, int number)
{
    static const QVariantMap videoOptions{
        {QStringLiteral("encoderList"),
         QVariantList{QStringLiteral("0"), QStringLiteral("h264"), QStringLiteral("hevc")}},
        {QStringLiteral("bitrateKbpsList"), QVariantList{0, 1000, 2000, 4000, 8000, 12000}},
        {QStringLiteral("frameRateList"), QVariantList{0, 24, 25, 30, 50, 60}},
        {QStringLiteral("resolutionList"),
         QVariantList{QStringLiteral("0"), QStringLiteral("1920x1080"), QStringLiteral("1280x720"),
                      QStringLiteral("854x480")}},
        {QStringLiteral("levelList"), QVariantList{8000, 4000, 2000}},
    };
    static const QVariantMap audioOptions{
        {QStringLiteral("channelList"), QVariantList{0, 1, 2}},
        {QStringLiteral("encoderList"),
         QVariantList{QStringLiteral("0"), QStringLiteral("aac"), QStringLiteral("mp3")}},
        {QStringLiteral("bitrateKbpsList"), QVariantList{0, 96, 128, 192, 256, 320}},
        {QStringLiteral("sampleRateList"), QVariantList{0, 32000, 44100, 48000}},
    };
    return {
        {QStringLiteral("id"), LargeCatalogue::presetId(format, number)},
        {QStringLiteral("extension"), QStringLiteral("mp4")},
        {QStringLiteral("title"), QStringLiteral("Preset %1x%2").arg(format).arg(number)},
        {QStringLiteral("videoParam"),
         QVariantMap{{QStringLiteral("encoder"), QStringLiteral("h264")},
                     {QStringLiteral("bitrateKbps"), 4000},
                     {QStringLiteral("frameRate"), 0},
                     {QStringLiteral("resolution"), QStringLiteral("1920x1080")}}},
        {QStringLiteral("videoOptions"), videoOptions},
        {QStringLiteral("audioParam"),
         QVariantMap{{QStringLiteral("channel"), 2},
                     {QStringLiteral("encoder"), QStringLiteral("aac")},
                     {QStringLiteral("bitrateKbps"), 192},
                     {QStringLiteral("sampleRate"), 48000}}},
        {QStringLiteral("audioOptions"), audioOptions},
    };
}

} // namespace

namespace LargeCatalogue {

void serve(int formats)
{
    served() = Served();
    for (int format = 0; format < formats; ++format) {
        const QString name = QStringLiteral("FORMAT%1").arg(format);
        served().groups.append(QVariantMap{{QStringLiteral("name"), name},
                                           {QStringLiteral("icon"), QStringLiteral("fmt_mp4")}});
        QVariantList &contents = served().contents[name];
        for (int number = 0; number < presetsPerFormat; ++number) {
            contents.append(preset(format, number));
        }
    }
}

QVariantList groups()
{
    return served().groups;
}

QVariantList contents(const QVariantMap &group)
{
    return served().contents.value(group.value(QStringLiteral("name")).toString());
}

QString presetId(int format, int preset)
{
    return QStringLiteral("Video_FORMAT%1_%2").arg(format).arg(preset, 3, 10, QLatin1Char('0'));
}

} // namespace LargeCatalogue

FormatCodecApi *FormatCodecApi::getInstance()
{
    static FormatCodecApi api;
    return &api;
}

QList<QVariant> FormatCodecApi::getExportCategoryLists()
{
    return {category};
}

QList<QVariant> FormatCodecApi::getExportGroupLists(const QString & /*category*/)
{
    return LargeCatalogue::groups();
}

QList<QVariant> FormatCodecApi::getExportGroupContents(const QMap<QString, QVariant> &group)
{
    return LargeCatalogue::contents(group);
}
