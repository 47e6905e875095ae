#ifndef COMMANDLINE_CONVERTOPTIONS_H
#define COMMANDLINE_CONVERTOPTIONS_H

#include "host/commandline/presetchoice.h"
#include "host/queue/batch.h"
#include "host/queue/sourcefiles.h"

/*! What the options of "convert" and "plan" ask for. */
struct ConvertRequest
{
    FoundPreset preset;
    ConversionJob prototype = {}; //!< of each job, without its source
    NameTemplate name = {};       //!< of each result; empty: the source's
    bool isMirrored = false;      //!< results lie in folders as their sources do
    SourceFiles files = {};
    int count = 0; //!< of the files

    /*! The job for the file with this \a number, from 1. */
    [[nodiscard]] ConversionJob jobFor(const SourceFile &file, int number) const;
};

/*! The options that both have. */
[[nodiscard]] QList<QCommandLineOption> convertOptions();
[[nodiscard]] Result<ConvertRequest> convertRequest(const Call &call, Noting noting);
/*! The same; an error if there are no files. */
[[nodiscard]] Result<ConvertRequest> requestForFiles(const Call &call, Noting noting);

/*! The path of the job's result, chosen now and for good. */
[[nodiscard]] Result<QString> fixedTarget(const ConversionJob &job);

/*! The option --if-exists and its value; \a usual if it isn't given. Renaming is no choice where
 *  names are \a fixed. */
[[nodiscard]] QCommandLineOption ifExistsOption(bool isFixed);
[[nodiscard]] Result<OutputTarget::IfExists> ifExistsOf(const Call &call, bool isFixed);

/*! The option --quiet. */
[[nodiscard]] QString quietFlag();
[[nodiscard]] QCommandLineOption quietOption();

/*! The option --jobs and its value; 0 if it isn't given. */
[[nodiscard]] QCommandLineOption jobsOption();
[[nodiscard]] Result<int> jobsOf(const Call &call);

#endif
