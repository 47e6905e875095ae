#ifndef COMMANDLINE_FITNESS_H
#define COMMANDLINE_FITNESS_H

#include "host/error.h"
#include "host/media/mediafacts.h"
#include "host/presets/presetstore.h"

#include <QCommandLineOption>
#include <QSet>
#include <QString>

#include <optional>

/*! Tells what this machine's ffmpeg can do with presets, and with one source. */
class Fitness
{
public:
    /*! Asks ffmpeg for its encoders, and looks at the source unless \a source is empty. Fails
     *  where that can't be read. Waits for both. */
    [[nodiscard]] static Result<Fitness> of(const QString &source);

    /*! Why the preset can't be used; empty if it can. */
    [[nodiscard]] QString problemWith(const FoundPreset &preset) const;
    /*! The id of the preset that is closest to \a preset and can be used: of its format, or else
     *  of its tag, in its size and codec where possible. Empty if there is none. */
    [[nodiscard]] QString nearestTo(const FoundPreset &preset, const PresetStore &store) const;

private:
    QString m_source;
    std::optional<MediaFacts> m_facts;
    QSet<QString> m_encoders;
};

/*! One line that names a preset, its problem and what can be used instead. */
[[nodiscard]] QString problemInWords(const QString &id, const QString &problem,
                                     const QString &instead);
/*! The option --for of several subcommands. */
[[nodiscard]] QCommandLineOption sourceOption();

#endif
