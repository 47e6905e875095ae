#include "host/check/cataloguelint.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/convert/outputsettings.h"
#include "host/media/mediafacts.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

const QString keepsSource = QStringLiteral("0");
const QString extensionKey = QStringLiteral("extension");
const QString kbpsUnit = QStringLiteral("%1 kbps");
const QString levelsKey = QStringLiteral("videoOptions.levelList");

/*! A value that a preset chooses, and the list of those that it offers. */
struct ChosenValue
{
    enum Form { Text, Size, FrameRate, WholeNumber };

    QString param;
    QString options;
    Form form;
};

const ChosenValue videoEncoder{QStringLiteral("videoParam.encoder"),
                               QStringLiteral("videoOptions.encoderList"), ChosenValue::Text};
const ChosenValue resolution{QStringLiteral("videoParam.resolution"),
                             QStringLiteral("videoOptions.resolutionList"), ChosenValue::Size};
const ChosenValue frameRate{QStringLiteral("videoParam.frameRate"),
                            QStringLiteral("videoOptions.frameRateList"), ChosenValue::FrameRate};
const ChosenValue videoBitrate{QStringLiteral("videoParam.bitrateKbps"),
                               QStringLiteral("videoOptions.bitrateKbpsList"),
                               ChosenValue::WholeNumber};
const ChosenValue audioEncoder{QStringLiteral("audioParam.encoder"),
                               QStringLiteral("audioOptions.encoderList"), ChosenValue::Text};
const ChosenValue channel{QStringLiteral("audioParam.channel"),
                          QStringLiteral("audioOptions.channelList"), ChosenValue::WholeNumber};
const ChosenValue sampleRate{QStringLiteral("audioParam.sampleRate"),
                             QStringLiteral("audioOptions.sampleRateList"),
                             ChosenValue::WholeNumber};
const ChosenValue audioBitrate{QStringLiteral("audioParam.bitrateKbps"),
                               QStringLiteral("audioOptions.bitrateKbpsList"),
                               ChosenValue::WholeNumber};

QVariant valueAt(const QVariantMap &preset, const QString &key)
{
    const QString block = key.section(QLatin1Char('.'), 0, 0);
    return preset.value(block).toMap().value(key.section(QLatin1Char('.'), 1));
}

/*! As ids write the name of a group: "HEVC MP4" is HEVCMP4. */
QString idPart(const QString &groupName)
{
    static const QRegularExpression other(QStringLiteral("[^A-Z0-9]"));
    return groupName.toUpper().remove(other);
}

bool hasForm(const QString &value, ChosenValue::Form form)
{
    static const QRegularExpression size(
        QRegularExpression::anchoredPattern(QStringLiteral("[1-9][0-9]{0,4}x[1-9][0-9]{0,4}")));
    static const QRegularExpression wholeNumber(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9]{1,7}")));
    constexpr double slowest = OutputSettings::slowestFrameRate;
    constexpr double fastest = OutputSettings::fastestFrameRate;
    switch (form) {
    case ChosenValue::Size:
        return value == keepsSource || size.match(value).hasMatch();
    case ChosenValue::FrameRate:
        return value == keepsSource || (value.toDouble() >= slowest && value.toDouble() <= fastest);
    case ChosenValue::WholeNumber:
        return wholeNumber.match(value).hasMatch();
    case ChosenValue::Text:
        break;
    }
    return true;
}

QString formText(ChosenValue::Form form)
{
    switch (form) {
    case ChosenValue::Size:
        return QStringLiteral("\"0\" or a size like \"1920x1080\"");
    case ChosenValue::FrameRate:
        return QStringLiteral("0 or frames a second from 1 to 300");
    case ChosenValue::WholeNumber:
        return QStringLiteral("a whole number from 0 to 9999999");
    case ChosenValue::Text:
        break;
    }
    return {};
}

QStringList sizesOf(const VideoCodec &codec)
{
    QStringList sizes;
    for (const VideoCodec::Frame &frame : codec.frames) {
        sizes << sizeText(frame.size);
    }
    sizes.removeDuplicates();
    return sizes;
}

/*! Whole numbers, as a catalogue's bitrates are, also where the codec's are not. */
QStringList bitratesOf(const AudioCodec &codec)
{
    QStringList bitrates;
    for (const double kbps : codec.bitrates) {
        bitrates << QString::number(qRound(kbps));
    }
    bitrates.removeDuplicates();
    return bitrates;
}

QStringList textsOf(const QVector<Ratio> &rates)
{
    QStringList texts;
    for (const Ratio &rate : rates) {
        texts << rate.toText();
    }
    return texts;
}

QStringList textsOf(const QVector<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts << QString::number(number);
    }
    return texts;
}

QStringList channelsUpTo(int count)
{
    QStringList channels;
    for (int i = 1; i <= count; ++i) {
        channels << QString::number(i);
    }
    return channels;
}

class Linter
{
public:
    Linter(const CatalogueResult &catalogue, const QStringList &pictures, const QStringList &tags)
        : m_catalogue(catalogue)
        , m_pictures(pictures)
        , m_tags(tags)
    {}

    QVector<CatalogueMistake> mistakes();

private:
    void lintGroup(const QVariantMap &group);
    void lintPreset(const QVariantMap &group);
    void lintId(const QVariantMap &group);
    void lintChosenValue(const ChosenValue &chosen);
    void lintLevels();
    void lintVideo(const Container &container);
    void lintAudio(const Container &container);
    QStringList lintEncoders(const ChosenValue &encoder, const QStringList &allowed,
                             const QString &track);

    /*!
     * Notes each value of an option list that \a owner, a codec or kind of file that stands under
     * \a ownerKey, can't have; an empty list allows all. In \a unit "%1" is the value.
     */
    void allowOnly(const QStringList &allowed, const ChosenValue &chosen, const QString &unit,
                   const QString &owner, const QString &ownerKey);
    [[nodiscard]] QString fileText() const;

    void note(const QString &key, const QString &reason, const QString &otherKey = {});
    void noteOption(int element, const QString &key, const QString &reason,
                    const QString &otherKey = {});
    void noteAt(const CataloguePlace &place, const QString &reason, const QString &addition = {});
    [[nodiscard]] QString presetText(const QString &key, const QString &otherKey) const;

    const CatalogueResult &m_catalogue;
    const QStringList &m_pictures;
    const QStringList &m_tags;
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
    const QString category = group.value(QStringLiteral("category")).toString();
    const QString name = group.value(QStringLiteral("name")).toString();
    const CataloguePlace place = m_catalogue.groupPlaces.value({category, name});
    const auto member = [&place](const char *key) {
        return CataloguePlace{place.source, place.path + QLatin1Char('.') + QLatin1String(key)};
    };

    if (!m_tags.contains(category.toLower())) {
        noteAt({place.source, QStringLiteral("category")},
               QStringLiteral("must be one of %1, in whatever case, to be shown")
                   .arg(m_tags.join(QStringLiteral(", "))));
    }
    if (m_groupNames.contains(name)) {
        noteAt(member("name"),
               QStringLiteral("another category has a group \"%1\", too, and a format is found by "
                              "its name only; give this one a name of its own")
                   .arg(name));
    }
    m_groupNames.insert(name);
    const bool isLookedUp =
        QStringList{QStringLiteral("video"), QStringLiteral("audio")}.contains(category.toLower());
    if (isLookedUp && name != name.toUpper()) {
        noteAt(member("name"), QStringLiteral("must be in upper case, as video and audio formats "
                                              "are looked up so"));
    }

    const QString icon = group.value(QStringLiteral("icon")).toString();
    if (!m_pictures.contains(icon)) {
        noteAt(member("icon"),
               icon.isEmpty()
                   ? QStringLiteral("is missing; the format has no picture")
                   : QStringLiteral("there is no picture \"%1\" in formats/qml/image").arg(icon));
    }
    const QVariantList presets = m_catalogue.catalogue.presets.value({category, name});
    if (presets.isEmpty()) {
        noteAt(member("presets"), QStringLiteral("holds no preset"));
    }
    for (const QVariant &preset : presets) {
        m_preset = preset.toMap();
        m_places = m_catalogue.presetPlaces.value(m_preset.value(QStringLiteral("id")).toString());
        lintPreset(group);
    }
}

void Linter::lintPreset(const QVariantMap &group)
{
    lintId(group);
    for (const ChosenValue &chosen : {videoEncoder, resolution, frameRate, videoBitrate,
                                      audioEncoder, channel, sampleRate, audioBitrate}) {
        lintChosenValue(chosen);
    }
    lintLevels();
    const QString extension = m_preset.value(extensionKey).toString();
    if (const Container *container = Container::find(extension)) {
        lintVideo(*container);
        lintAudio(*container);
    } else {
        note(extensionKey,
             QStringLiteral("files of the kind \".%1\" can't be written").arg(extension));
    }
}

void Linter::lintId(const QVariantMap &group)
{
    const QString start = group.value(QStringLiteral("category")).toString() + QLatin1Char('_') +
                          idPart(group.value(QStringLiteral("name")).toString()) + QLatin1Char('_');
    const QRegularExpression form(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(start) + QStringLiteral("[0-9]{3}")));
    if (!form.match(m_preset.value(QStringLiteral("id")).toString()).hasMatch()) {
        note(QStringLiteral("id"), QStringLiteral("must be \"%1\" and three digits").arg(start));
    }
}

void Linter::lintChosenValue(const ChosenValue &chosen)
{
    const QStringList offered = valueAt(m_preset, chosen.options).toStringList();
    for (int i = 0; i < offered.size(); ++i) {
        const QString &value = offered.at(i);
        if (!hasForm(value, chosen.form)) {
            noteOption(i, chosen.options,
                       QStringLiteral("must be %1, not %2").arg(formText(chosen.form), value));
        }
        if (offered.indexOf(value) < i) {
            noteOption(i, chosen.options, QStringLiteral("%1 stands there twice").arg(value));
        }
    }
    const QVariant value = valueAt(m_preset, chosen.param);
    if (value.isValid() && !offered.contains(value.toString())) {
        note(chosen.param,
             QStringLiteral("%1 is none of the values that %2 offers")
                 .arg(value.toString(), chosen.options),
             chosen.options);
    }
}

void Linter::lintLevels()
{
    const QStringList offered = valueAt(m_preset, videoBitrate.options).toStringList();
    const QVariantList levels = valueAt(m_preset, levelsKey).toList();
    for (int i = 0; i < levels.size(); ++i) {
        if (!offered.contains(levels.at(i).toString())) {
            noteOption(i, levelsKey,
                       QStringLiteral("%1 is none of the values that %2 offers")
                           .arg(levels.at(i).toString(), videoBitrate.options),
                       videoBitrate.options);
        }
    }
    const double high = levels.value(0).toDouble();
    const double middle = levels.value(1).toDouble();
    const double low = levels.value(2).toDouble();
    if (high < low || (middle != 0 && (high < middle || middle < low))) {
        note(levelsKey, QStringLiteral("must descend from the high to the low bitrate; only the "
                                       "middle one may be 0 all the same"));
    }
}

/*! The codecs that the preset may be written with; "0" may come out as the container's usual one.
 */
QStringList Linter::lintEncoders(const ChosenValue &encoder, const QStringList &allowed,
                                 const QString &track)
{
    QStringList names = valueAt(m_preset, encoder.options).toStringList();
    if (allowed.isEmpty() && !names.isEmpty()) {
        note(encoder.options, QStringLiteral("%1 holds no %2").arg(fileText(), track),
             extensionKey);
        return {};
    }
    allowOnly(allowed, encoder, QStringLiteral("%1"), fileText(), extensionKey);
    if (names.removeAll(keepsSource) > 0) {
        names += allowed.constFirst();
    }
    return names;
}

void Linter::lintVideo(const Container &container)
{
    const QStringList names =
        lintEncoders(videoEncoder, container.videoCodecs, QStringLiteral("picture"));
    bool takesBitrates = names.isEmpty();
    for (const QString &name : names) {
        const VideoCodec codec = videoCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        const QString &owner = videoEncoder.options;
        allowOnly(textsOf(codec.frameRates), frameRate, QStringLiteral("%1 frames a second"), name,
                  owner);
        allowOnly(sizesOf(codec), resolution, QStringLiteral("the size %1"), name, owner);
    }
    if (!takesBitrates) {
        allowOnly({keepsSource}, videoBitrate, kbpsUnit, names.join(QStringLiteral(", ")),
                  videoEncoder.options);
    }
}

void Linter::lintAudio(const Container &container)
{
    const QString channelUnit = QStringLiteral("%1-channel sound");
    const QString sampleRateUnit = QStringLiteral("%1 Hz");
    const QString &owner = audioEncoder.options;
    if (!container.audioCodecs.isEmpty() && valueAt(m_preset, audioEncoder.param).isNull()) {
        note(extensionKey,
             QStringLiteral("%1 holds sound, but there are no audio settings (in the preset %2)")
                 .arg(fileText(), m_preset.value(QStringLiteral("id")).toString()));
    }
    const QStringList names =
        lintEncoders(audioEncoder, container.audioCodecs, QStringLiteral("sound"));
    bool takesBitrates = names.isEmpty();
    for (const QString &name : names) {
        const AudioCodec codec = audioCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        if (codec.isOnlyCopied) {
            note(owner, QStringLiteral("%1 can only be copied from a source").arg(name));
        }
        allowOnly(channelsUpTo(codec.maxChannels), channel, channelUnit, name, owner);
        allowOnly(textsOf(codec.sampleRates), sampleRate, sampleRateUnit, name, owner);
        allowOnly(bitratesOf(codec), audioBitrate, kbpsUnit, name, owner);
    }
    if (!takesBitrates) {
        allowOnly({keepsSource}, audioBitrate, kbpsUnit, names.join(QStringLiteral(", ")), owner);
    }
    if (container.channels > 0) {
        allowOnly({QString::number(container.channels)}, channel, channelUnit, fileText(),
                  extensionKey);
    }
    allowOnly(textsOf(container.sampleRates), sampleRate, sampleRateUnit, fileText(), extensionKey);
}

void Linter::allowOnly(const QStringList &allowed, const ChosenValue &chosen, const QString &unit,
                       const QString &owner, const QString &ownerKey)
{
    const QStringList offered = valueAt(m_preset, chosen.options).toStringList();
    for (int i = 0; i < offered.size() && !allowed.isEmpty(); ++i) {
        const QString &value = offered.at(i);
        const QString text =
            chosen.form == ChosenValue::FrameRate ? Ratio::fromFrameRate(value).toText() : value;
        // What isn't of the form has a mistake of its own.
        if (value != keepsSource && hasForm(value, chosen.form) && !allowed.contains(text)) {
            noteOption(i, chosen.options,
                       QStringLiteral("%1 can't have %2, only %3")
                           .arg(owner, unit.arg(value), allowed.join(QStringLiteral(", "))),
                       ownerKey);
        }
    }
}

QString Linter::fileText() const
{
    return QStringLiteral("a .%1 file").arg(m_preset.value(extensionKey).toString());
}

void Linter::note(const QString &key, const QString &reason, const QString &otherKey)
{
    noteAt(m_places.value(key), reason, presetText(key, otherKey));
}

void Linter::noteOption(int element, const QString &key, const QString &reason,
                        const QString &otherKey)
{
    CataloguePlace place = m_places.value(key);
    place.path += QStringLiteral("[%1]").arg(element);
    noteAt(place, reason, presetText(key, otherKey));
}

/*! Each mistake once, also when several presets inherit it: \a addition tells them apart no more.
 */
void Linter::noteAt(const CataloguePlace &place, const QString &reason, const QString &addition)
{
    const QString text = CatalogueMistake{place, reason}.text();
    if (!m_noted.contains(text)) {
        m_noted.insert(text);
        m_mistakes.append({place, reason + addition, true});
    }
}

/*! Names the preset where its value under a key clashes with one that stands elsewhere. */
QString Linter::presetText(const QString &key, const QString &otherKey) const
{
    const auto holder = [this](const QString &each) {
        const CataloguePlace place = m_places.value(each);
        QString path = place.path;
        path.chop(path.endsWith(each) ? each.size() : 0);
        return place.source + path;
    };
    if (otherKey.isEmpty() || holder(key) == holder(otherKey)) {
        return {};
    }
    return QStringLiteral(" (in the preset %1)")
        .arg(m_preset.value(QStringLiteral("id")).toString());
}

} // namespace

QVector<CatalogueMistake> lintCatalogue(const CatalogueResult &catalogue,
                                        const QStringList &pictures, const QStringList &tags)
{
    return Linter(catalogue, pictures, tags).mistakes();
}
