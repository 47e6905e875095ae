#include "host/check/cataloguelint.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/textlist.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

const QString keepsSource = QStringLiteral("0");

struct ChosenValue
{
    QString param;
    QString options;
};

const QVector<ChosenValue> chosenValues{
    {QStringLiteral("videoParam.encoder"), QStringLiteral("videoOptions.encoderList")},
    {QStringLiteral("videoParam.resolution"), QStringLiteral("videoOptions.resolutionList")},
    {QStringLiteral("videoParam.frameRate"), QStringLiteral("videoOptions.frameRateList")},
    {QStringLiteral("videoParam.bitrateKbps"), QStringLiteral("videoOptions.bitrateKbpsList")},
    {QStringLiteral("audioParam.encoder"), QStringLiteral("audioOptions.encoderList")},
    {QStringLiteral("audioParam.channel"), QStringLiteral("audioOptions.channelList")},
    {QStringLiteral("audioParam.sampleRate"), QStringLiteral("audioOptions.sampleRateList")},
    {QStringLiteral("audioParam.bitrateKbps"), QStringLiteral("audioOptions.bitrateKbpsList")},
};

QVariant valueAt(const QVariantMap &preset, const QString &key)
{
    const QString block = key.section(QLatin1Char('.'), 0, 0);
    return preset.value(block).toMap().value(key.section(QLatin1Char('.'), 1));
}

/*! Unlike QVariant's own comparison, tells the text "0" from the number 0. */
bool isSame(const QVariant &one, const QVariant &other)
{
    return one.type() == other.type() && one == other;
}

/*! As ids write the name of a group: "HEVC MP4" is HEVCMP4. */
QString idPart(const QString &groupName)
{
    static const QRegularExpression other(QStringLiteral("[^A-Z0-9]"));
    return groupName.toUpper().remove(other);
}

/*! Words of a table's cell with commas between. */
QString listed(const char *cell)
{
    return words(cell).join(QStringLiteral(", "));
}

bool takes(const char *allowed, const QString &value)
{
    return *allowed == '\0' || words(allowed).contains(value);
}

bool takesFrameRate(const VideoCodec &codec, const QString &rate)
{
    const QStringList allowed = words(codec.frameRates);
    return allowed.isEmpty() ||
           std::any_of(allowed.begin(), allowed.end(), [&rate](const QString &text) {
               return Ratio::fromText(text) == Ratio::fromFrameRate(rate);
           });
}

QStringList sizesOf(const VideoCodec &codec)
{
    QStringList sizes;
    for (const VideoCodec::Frame &frame : codec.frames) {
        sizes << QStringLiteral("%1x%2").arg(frame.size.width()).arg(frame.size.height());
    }
    sizes.removeDuplicates();
    return sizes;
}

/*! A catalogue's bitrates are whole numbers, also where a codec's are not. */
bool takesBitrate(const AudioCodec &codec, const QString &kbps)
{
    const QStringList allowed = words(codec.bitrates);
    return allowed.isEmpty() ||
           std::any_of(allowed.begin(), allowed.end(), [&kbps](const QString &text) {
               return qRound(text.toDouble()) == kbps.toInt();
           });
}

class Linter
{
public:
    Linter(const CatalogueResult &catalogue, const QStringList &pictures)
        : m_catalogue(catalogue)
        , m_pictures(pictures)
    {}

    QVector<CatalogueMistake> mistakes();

private:
    void lintGroup(const QVariantMap &group);
    void lintId(const QVariantMap &group);
    void lintChosenValues();
    void lintForms();
    void lintVideo(const Container &container);
    void lintAudio(const Container &container);
    QStringList lintEncoders(const QString &key, const char *held);

    /*! Notes each value of an option list, but those that keep the source's, that isn't taken. */
    template <typename Takes>
    void lintOptions(const QString &key, Takes takesValue, const QString &reason);
    void note(const QString &key, const QString &reason, int element = -1);
    void note(const CataloguePlace &place, const QString &reason);

    const CatalogueResult &m_catalogue;
    const QStringList &m_pictures;
    QVector<CatalogueMistake> m_mistakes;
    QSet<QString> m_noted;
    QSet<QString> m_groupNames;
    // Of the preset that is looked at.
    QVariantMap m_preset;
    PresetPlaces m_places;
};

QVector<CatalogueMistake> Linter::mistakes()
{
    for (const QVariant &category : m_catalogue.catalogue.categories) {
        for (const QVariant &group : m_catalogue.catalogue.groups.value(category.toString())) {
            lintGroup(group.toMap());
        }
    }
    return m_mistakes;
}

void Linter::lintGroup(const QVariantMap &group)
{
    const QString name = group.value(QStringLiteral("name")).toString();
    const QPair<QString, QString> key(group.value(QStringLiteral("category")).toString(), name);
    CataloguePlace place = m_catalogue.groupPlaces.value(key);
    const QString groupPath = place.path;

    if (m_groupNames.contains(name)) {
        place.path = groupPath + QStringLiteral(".name");
        note(place,
             QStringLiteral("another category has a group \"%1\", too, and a format is found "
                            "by its name only; give this one a name of its own")
                 .arg(name));
    }
    m_groupNames.insert(name);

    const QString icon = group.value(QStringLiteral("icon")).toString();
    if (!m_pictures.contains(icon)) {
        place.path = groupPath + QStringLiteral(".icon");
        note(place,
             icon.isEmpty()
                 ? QStringLiteral("is missing; the format has no picture")
                 : QStringLiteral("there is no picture \"%1\" in formats/qml/image").arg(icon));
    }
    for (const QVariant &preset : m_catalogue.catalogue.presets.value(key)) {
        m_preset = preset.toMap();
        m_places = m_catalogue.presetPlaces.value(m_preset.value(QStringLiteral("id")).toString());
        lintId(group);
        lintChosenValues();
        lintForms();
        const QString extension = m_preset.value(QStringLiteral("extension")).toString();
        if (const Container *container = Container::find(extension)) {
            lintVideo(*container);
            lintAudio(*container);
        } else {
            note(QStringLiteral("extension"),
                 QStringLiteral("files of the kind \".%1\" can't be written").arg(extension));
        }
    }
}

void Linter::lintId(const QVariantMap &group)
{
    const QString start = group.value(QStringLiteral("category")).toString() + QLatin1Char('_') +
                          idPart(group.value(QStringLiteral("name")).toString()) + QLatin1Char('_');
    const QRegularExpression form(
        QStringLiteral("^%1[0-9]{3}$").arg(QRegularExpression::escape(start)));
    if (!form.match(m_preset.value(QStringLiteral("id")).toString()).hasMatch()) {
        note(QStringLiteral("id"), QStringLiteral("must be \"%1\" and three digits").arg(start));
    }
}

void Linter::lintChosenValues()
{
    for (const ChosenValue &chosen : chosenValues) {
        const QVariant value = valueAt(m_preset, chosen.param);
        const QVariantList offered = valueAt(m_preset, chosen.options).toList();
        if (value.isValid() &&
            std::none_of(offered.begin(), offered.end(),
                         [&value](const QVariant &option) { return isSame(option, value); })) {
            note(chosen.param, QStringLiteral("%1 is none of the values that %2 offers")
                                   .arg(value.toString(), chosen.options));
        }
    }
}

void Linter::lintForms()
{
    static const QRegularExpression size(QStringLiteral("^[1-9][0-9]*x[1-9][0-9]*$"));
    for (const ChosenValue &chosen : chosenValues) {
        if (chosen.param == QLatin1String("videoParam.resolution")) {
            lintOptions(
                chosen.options, [](const QString &value) { return size.match(value).hasMatch(); },
                QStringLiteral("must be \"0\" or a size like \"1920x1080\", not %1"));
        } else if (!chosen.param.endsWith(QLatin1String("encoder"))) {
            lintOptions(
                chosen.options, [](const QString &value) { return value.toDouble() > 0; },
                QStringLiteral("must not be negative, but is %1"));
        }
    }
}

/*! The codecs that the preset may be written with; "0" may come out as the container's usual one.
 */
QStringList Linter::lintEncoders(const QString &key, const char *held)
{
    const QStringList allowed = words(held);
    const QString only = allowed.isEmpty() ? QString() : QStringLiteral(", only ") + listed(held);
    lintOptions(
        key, [&allowed](const QString &value) { return allowed.contains(value); },
        QStringLiteral("a .%1 file can't hold ")
                .arg(m_preset.value(QStringLiteral("extension")).toString()) +
            QStringLiteral("%1") + only);
    QStringList codecs = valueAt(m_preset, key).toStringList();
    if (codecs.removeAll(keepsSource) > 0) {
        codecs += allowed.mid(0, 1);
    }
    return codecs;
}

void Linter::lintVideo(const Container &container)
{
    const QStringList names =
        lintEncoders(QStringLiteral("videoOptions.encoderList"), container.videoCodecs);
    bool takesBitrates = names.isEmpty();
    for (const QString &name : names) {
        const VideoCodec &codec = videoCodec(name);
        const QStringList sizes = sizesOf(codec);
        takesBitrates = takesBitrates || codec.takesBitrate;
        lintOptions(
            QStringLiteral("videoOptions.frameRateList"),
            [&codec](const QString &rate) { return takesFrameRate(codec, rate); },
            name + QStringLiteral(" can't have %1 frames a second, only ") +
                listed(codec.frameRates));
        lintOptions(
            QStringLiteral("videoOptions.resolutionList"),
            [&sizes](const QString &size) { return sizes.isEmpty() || sizes.contains(size); },
            name + QStringLiteral(" can't have the size %1, only ") +
                sizes.join(QStringLiteral(", ")));
    }
    lintOptions(
        QStringLiteral("videoOptions.bitrateKbpsList"),
        [takesBitrates](const QString &) { return takesBitrates; },
        names.join(QStringLiteral(", ")) + QStringLiteral(" can't have %1 kbps, only 0"));
}

void Linter::lintAudio(const Container &container)
{
    const QString channels = QStringLiteral("audioOptions.channelList");
    const QString sampleRates = QStringLiteral("audioOptions.sampleRateList");
    const QString bitrates = QStringLiteral("audioOptions.bitrateKbpsList");
    const QString file =
        QStringLiteral("a .%1 file").arg(m_preset.value(QStringLiteral("extension")).toString());
    const QStringList names =
        lintEncoders(QStringLiteral("audioOptions.encoderList"), container.audioCodecs);
    bool takesBitrates = names.isEmpty();
    for (const QString &name : names) {
        const AudioCodec &codec = audioCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        lintOptions(
            sampleRates, [&codec](const QString &rate) { return takes(codec.sampleRates, rate); },
            name + QStringLiteral(" can't have %1 Hz, only ") + listed(codec.sampleRates));
        lintOptions(
            channels, [&codec](const QString &count) { return count.toInt() <= codec.maxChannels; },
            name + QStringLiteral(" can't have %1-channel sound, at most ") +
                QString::number(codec.maxChannels));
        lintOptions(
            bitrates, [&codec](const QString &kbps) { return takesBitrate(codec, kbps); },
            name + QStringLiteral(" can't have %1 kbps, only ") + listed(codec.bitrates));
    }
    lintOptions(
        sampleRates,
        [&container](const QString &rate) { return takes(container.sampleRates, rate); },
        file + QStringLiteral(" can't have %1 Hz, only ") + listed(container.sampleRates));
    lintOptions(
        channels,
        [&container](const QString &count) {
            return container.channels == 0 || count.toInt() == container.channels;
        },
        file + QStringLiteral(" can't have %1-channel sound, only ") +
            QString::number(container.channels));
    lintOptions(
        bitrates, [takesBitrates](const QString &) { return takesBitrates; },
        names.join(QStringLiteral(", ")) + QStringLiteral(" can't have %1 kbps, only 0"));
}

template <typename Takes>
void Linter::lintOptions(const QString &key, Takes takesValue, const QString &reason)
{
    const QStringList options = valueAt(m_preset, key).toStringList();
    for (int i = 0; i < options.size(); ++i) {
        if (options.at(i) != keepsSource && !takesValue(options.at(i))) {
            note(key, reason.arg(options.at(i)), i);
        }
    }
}

void Linter::note(const QString &key, const QString &reason, int element)
{
    CataloguePlace place = m_places.value(key);
    if (element >= 0) {
        place.path += QStringLiteral("[%1]").arg(element);
    }
    note(place, reason);
}

void Linter::note(const CataloguePlace &place, const QString &reason)
{
    CatalogueMistake mistake{place, reason};
    mistake.isServed = true;
    if (!m_noted.contains(mistake.text())) {
        m_noted.insert(mistake.text());
        m_mistakes.append(mistake);
    }
}

} // namespace

QVector<CatalogueMistake> lintCatalogue(const CatalogueResult &catalogue,
                                        const QStringList &pictures)
{
    return Linter(catalogue, pictures).mistakes();
}
