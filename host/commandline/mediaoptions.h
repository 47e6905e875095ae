#ifndef COMMANDLINE_MEDIAOPTIONS_H
#define COMMANDLINE_MEDIAOPTIONS_H

#include "host/commandline/commandline.h"
#include "host/convert/conversion.h"

/*! The options that choose what of the source is written, and how large. */
[[nodiscard]] QList<QCommandLineOption> mediaOptions();
/*! Takes their values over into \a job. */
[[nodiscard]] Result<> readMediaOptions(const Call &call, ConversionJob &job);

/*! The option --sample. */
[[nodiscard]] QCommandLineOption sampleOption();
/*! The part "10s@40%" of each source that it asks for; the middle without "@40%". */
[[nodiscard]] Result<std::optional<SamplePart>> wantedSample(const Call &call);

#endif
