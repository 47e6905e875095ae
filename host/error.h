#ifndef HOST_ERROR_H
#define HOST_ERROR_H

#include <QString>

#include <tl/expected.hpp>

/*! Why something couldn't be done. */
struct Error
{
    enum Kind {
        Failed,
        WrongUsage,     //!< the caller asked for what can't be: nothing was tried
        InUse,          //!< another process has it: it may be free later
        EncoderMissing, //!< the encoder exists, but this ffmpeg lacks it
        Cancelled       //!< on demand: there is nothing to tell
    };

    QString text = {}; //!< one line: what happened, and how to fix it
    Kind kind = Failed;
};

/*! What an operation gives, or why it failed. */
template <typename Value = void>
using Result = tl::expected<Value, Error>;

[[nodiscard]] inline tl::unexpected<Error> failed(const QString &text,
                                                  Error::Kind kind = Error::Failed)
{
    return tl::make_unexpected(Error{text, kind});
}

/*! The same failure, for a caller who gives something else. */
template <typename Value>
[[nodiscard]] tl::unexpected<Error> failed(const Result<Value> &cause)
{
    return tl::make_unexpected(cause.error());
}

#endif
