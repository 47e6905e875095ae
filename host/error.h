#ifndef HOST_ERROR_H
#define HOST_ERROR_H

#include <QString>

#include <tl/expected.hpp>

/*! Why something couldn't be done. */
struct Error
{
    enum Kind {
        Failed,
        WrongUsage,     //!< an invalid request: nothing was tried
        InUse,          //!< another process has it: it may be free later
        EncoderMissing, //!< the encoder exists, but this ffmpeg lacks it
        Cancelled       //!< by the caller: there is nothing to report
    };

    QString text = {}; //!< one line: what happened, and how to fix it
    Kind kind = Failed;
};

/*! The value that an operation returns, or why it failed. */
template <typename Value = void>
using Result = tl::expected<Value, Error>;

[[nodiscard]] inline tl::unexpected<Error> failed(const QString &text,
                                                  Error::Kind kind = Error::Failed)
{
    return tl::make_unexpected(Error{text, kind});
}

/*! The same failure, for a caller that returns another type. */
template <typename Value>
[[nodiscard]] tl::unexpected<Error> failed(const Result<Value> &cause)
{
    return tl::make_unexpected(cause.error());
}

#endif
