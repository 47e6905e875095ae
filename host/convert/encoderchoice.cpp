#include "host/convert/encoderchoice.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(EncoderChoice)
};

} // namespace

QString codecToWrite(const QString &chosen, const QString &own, const QStringList &ownEncoders,
                     const QStringList &held, const StreamTarget &target)
{
    if (!chosen.isEmpty()) {
        return chosen;
    }
    const bool canWriteOwn =
        std::any_of(ownEncoders.begin(), ownEncoders.end(),
                    [&target](const QString &name) { return target.encoders.contains(name); });
    return held.contains(own) && canWriteOwn ? own : held.constFirst();
}

Result<QString> availableEncoder(const QStringList &names, const QString &codec,
                                 const StreamTarget &target)
{
    for (const QString &name : names) {
        if (target.encoders.contains(name)) {
            return name;
        }
    }
    // A codec that no table has may not exist at all.
    const Container &container = target.container;
    const bool isKnown =
        container.videoCodecs.contains(codec) || container.audioCodecs.contains(codec);
    return failed(Texts::tr("needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset "
                            "with another encoder or install an ffmpeg that has it")
                      .arg(names.isEmpty() ? codec : names.join(Texts::tr(" or ")), codec),
                  isKnown && !names.isEmpty() ? Error::EncoderMissing : Error::Failed);
}
