#include "host/presets/find/facets.h"

#include "host/presets/find/foldedwords.h"

#include "formats/models/formatdetailmodeldata.h"
#include "formats/models/formatlistmodeldata.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/*! "0" keeps the source's value, of which nothing is known. */
bool isChosen(const QString &value)
{
    return !value.isEmpty() && value != QLatin1String("0");
}

Facet facet(Field field, const QString &text)
{
    const QString word = foldedWord(text);
    return {nameOf(field) + QLatin1Char('/') + word, field, text, {word}};
}

void addSize(QVector<Facet> &facets, const QString &resolution)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(resolution);
    if (!match.hasMatch()) {
        return;
    }
    const int width = match.captured(1).toInt();
    const int height = match.captured(2).toInt();
    // Portrait video goes by the name of the same size lying on its side.
    const QString name = QString::number(std::min(width, height));
    facets.append({QStringLiteral("size/") + name,
                   Field::Size,
                   resolution,
                   {name, name + QLatin1Char('p'), resolution}});
    if (width < height) {
        facets.append(facet(Field::Size, QStringLiteral("portrait")));
    } else if (width == height) {
        facets.append(facet(Field::Size, QStringLiteral("square")));
    }
}

void addVideo(QVector<Facet> &facets, const FormatDetailModelData &preset)
{
    if (isChosen(preset.videoEncoder)) {
        facets.append(facet(Field::Codec, preset.videoEncoder));
    }
    addSize(facets, preset.videoResolution);
    if (isChosen(preset.videoFrameRate)) {
        Facet rate = facet(Field::FrameRate, preset.videoFrameRate);
        rate.words = QStringList{rate.words.constFirst() + QStringLiteral("fps")};
        facets.append(rate);
    }
}

void addAudio(QVector<Facet> &facets, const FormatDetailModelData &preset, bool hasVideo)
{
    if (isChosen(preset.audioEncoder)) {
        facets.append(facet(Field::Codec, preset.audioEncoder));
    }
    // With video, nobody looks for a bitrate of the audio.
    if (!hasVideo && isChosen(preset.audioBitrate)) {
        Facet bitrate = facet(Field::Bitrate, preset.audioBitrate);
        const QString number = bitrate.words.constFirst();
        bitrate.words += {number + QLatin1Char('k'), number + QStringLiteral("kbps")};
        bitrate.text += QStringLiteral(" kbps");
        facets.append(bitrate);
    }
}

} // namespace

QVector<Facet> facetsOf(const FormatDetailModelData &preset, const FormatListModelData &format)
{
    Facet name = facet(Field::Format, format.title);
    name.words = foldedWords(format.title);
    QVector<Facet> facets = {name, facet(Field::Category, format.tag),
                             facet(Field::Extension, preset.extension)};
    const bool hasVideo = !preset.videoEncoders.isEmpty();
    facets.append(facet(Field::Kind, hasVideo ? QStringLiteral("video") : QStringLiteral("audio")));
    if (hasVideo) {
        addVideo(facets, preset);
    }
    addAudio(facets, preset, hasVideo);
    if (preset.userDefine) {
        facets.append(facet(Field::Kind, QStringLiteral("own")));
    }
    return facets;
}
