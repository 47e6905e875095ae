#ifndef PRESETS_FITNESS_H
#define PRESETS_FITNESS_H

#include "host/media/mediafacts.h"
#include "host/presets/presetstore.h"

#include <QSet>
#include <QString>

#include <optional>

/*! A file that presets are to suit. */
struct FitnessSource
{
    QString path; //!< absolute
    MediaFacts facts;
};

/*! Tells what this machine's ffmpeg can do with presets, and with one source. */
class Fitness
{
public:
    /*! \a encoders are ffmpeg's; see EncoderList. Without a source, only they count. */
    explicit Fitness(const QSet<QString> &encoders, const std::optional<FitnessSource> &source = {})
        : m_encoders(encoders)
        , m_source(source)
    {}

    /*! Why the preset can't be used; empty if it can. */
    [[nodiscard]] QString problemWith(const FoundPreset &preset) const;
    /*! The id of the preset that is closest to \a preset and can be used: of its format, or else
     *  of its tag, in its size and codec where possible; or else the first that can be used of
     *  \a standIns and of the formats. Empty if there is none. */
    [[nodiscard]] QString nearestTo(const FoundPreset &preset, const PresetStore &store,
                                    const QStringList &standIns = {}) const;
    /*! The first of \a ids whose preset can be used; empty if there is none. */
    [[nodiscard]] QString firstUsable(const QStringList &ids, const PresetStore &store) const;

private:
    [[nodiscard]] QString closest(const QStringList &ids, const FoundPreset &preset,
                                  const PresetStore &store) const;

    QSet<QString> m_encoders;
    std::optional<FitnessSource> m_source;
};

#endif
