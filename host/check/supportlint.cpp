#include "host/check/supportlint.h"

#include "host/convert/codecs.h"
#include "host/convert/containers.h"
#include "host/media/mediafacts.h"
#include "host/media/sizetext.h"

namespace {

const QString keepsSource = QStringLiteral("0");
const QString extensionKey = QStringLiteral("extension");
const QString kbpsUnit = QStringLiteral("%1 kbps");

const CatalogueSetting &setting(CatalogueSetting::Id id)
{
    return CatalogueSetting::of(id);
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

/*! Rounded to whole numbers, as a catalogue's bitrates are. */
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

class SupportLint
{
public:
    SupportLint(CheckedPreset &preset, const Container &container)
        : m_preset(preset)
        , m_container(container)
    {}

    void lintVideo();
    void lintAudio();

private:
    QStringList lintEncoders(CatalogueSetting::Id encoder, const QStringList &supported,
                             const QString &track);

    /*! Notes each offered value that \a owner, the codec or file type set by \a ownerKey, doesn't
     *  support; an empty list allows all. \a unit has "%1" for the value. */
    void allowOnly(const QStringList &allowed, CatalogueSetting::Id id, const QString &unit,
                   const QString &owner, const QString &ownerKey);
    [[nodiscard]] QString fileText() const;

    CheckedPreset &m_preset;
    const Container &m_container;
};

/*! The codecs that the preset can use; "0" can result in the container's default one. */
QStringList SupportLint::lintEncoders(CatalogueSetting::Id encoder, const QStringList &supported,
                                      const QString &track)
{
    QStringList names = m_preset.offered(setting(encoder));
    if (supported.isEmpty() && !names.isEmpty()) {
        m_preset.note(setting(encoder).optionsPath(),
                      QStringLiteral("%1 can't contain %2").arg(fileText(), track), extensionKey);
        return {};
    }
    allowOnly(supported, encoder, QStringLiteral("%1"), fileText(), extensionKey);
    if (names.removeAll(keepsSource) > 0) {
        names += supported.constFirst();
    }
    return names;
}

void SupportLint::lintVideo()
{
    const QStringList names = lintEncoders(CatalogueSetting::VideoEncoder, m_container.videoCodecs,
                                           QStringLiteral("video"));
    bool takesBitrates = names.isEmpty();
    for (const QString &name : names) {
        const VideoCodec &codec = videoCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        const QString owner = setting(CatalogueSetting::VideoEncoder).optionsPath();
        allowOnly(textsOf(codec.frameRates), CatalogueSetting::FrameRate, QStringLiteral("%1 fps"),
                  name, owner);
        allowOnly(sizesOf(codec), CatalogueSetting::Resolution, QStringLiteral("the size %1"), name,
                  owner);
    }
    if (!takesBitrates) {
        allowOnly({keepsSource}, CatalogueSetting::VideoBitrate, kbpsUnit,
                  names.join(QStringLiteral(", ")),
                  setting(CatalogueSetting::VideoEncoder).optionsPath());
    }
}

void SupportLint::lintAudio()
{
    const QString channelUnit = QStringLiteral("%1-channel audio");
    const QString sampleRateUnit = QStringLiteral("%1 Hz");
    const QString owner = setting(CatalogueSetting::AudioEncoder).optionsPath();
    if (!m_container.audioCodecs.isEmpty() &&
        m_preset.chosen(setting(CatalogueSetting::AudioEncoder)).isNull()) {
        m_preset.note(extensionKey, QStringLiteral("%1 contains audio, but there are no audio "
                                                   "settings (in the preset %2)")
                                        .arg(fileText(), m_preset.id()));
    }
    const QStringList names = lintEncoders(CatalogueSetting::AudioEncoder, m_container.audioCodecs,
                                           QStringLiteral("audio"));
    bool takesBitrates = names.isEmpty();
    for (const QString &name : names) {
        const AudioCodec &codec = audioCodec(name);
        takesBitrates = takesBitrates || codec.takesBitrate;
        if (codec.isOnlyCopied) {
            m_preset.note(owner, QStringLiteral("%1 can only be copied from the source").arg(name));
        }
        allowOnly(channelsUpTo(codec.maxChannels), CatalogueSetting::Channels, channelUnit, name,
                  owner);
        allowOnly(textsOf(codec.sampleRates), CatalogueSetting::SampleRate, sampleRateUnit, name,
                  owner);
        allowOnly(bitratesOf(codec), CatalogueSetting::AudioBitrate, kbpsUnit, name, owner);
    }
    if (!takesBitrates) {
        allowOnly({keepsSource}, CatalogueSetting::AudioBitrate, kbpsUnit,
                  names.join(QStringLiteral(", ")), owner);
    }
    if (m_container.channels > 0) {
        allowOnly({QString::number(m_container.channels)}, CatalogueSetting::Channels, channelUnit,
                  fileText(), extensionKey);
    }
    allowOnly(textsOf(m_container.sampleRates), CatalogueSetting::SampleRate, sampleRateUnit,
              fileText(), extensionKey);
}

void SupportLint::allowOnly(const QStringList &allowed, CatalogueSetting::Id id,
                            const QString &unit, const QString &owner, const QString &ownerKey)
{
    const QStringList offered = m_preset.offered(setting(id));
    for (int i = 0; i < offered.size() && !allowed.isEmpty(); ++i) {
        const QString &value = offered.at(i);
        const QString text =
            id == CatalogueSetting::FrameRate ? Ratio::fromFrameRate(value).toText() : value;
        // A value that accepts() refuses is a mistake of its own.
        if (value != keepsSource && !allowed.contains(text) && setting(id).accepts(value)) {
            m_preset.noteOffered(
                setting(id), i,
                QStringLiteral("%1 doesn't support %2, only %3")
                    .arg(owner, unit.arg(value), allowed.join(QStringLiteral(", "))),
                ownerKey);
        }
    }
}

QString SupportLint::fileText() const
{
    return QStringLiteral("a .%1 file").arg(m_preset.extension());
}

} // namespace

void lintSupport(CheckedPreset &preset)
{
    const Container *container = Container::find(preset.extension());
    if (container == nullptr) {
        preset.note(extensionKey,
                    QStringLiteral("\".%1\" files can't be written").arg(preset.extension()));
        return;
    }
    SupportLint lint(preset, *container);
    lint.lintVideo();
    lint.lintAudio();
}
