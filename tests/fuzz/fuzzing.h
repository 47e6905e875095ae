#ifndef FUZZ_FUZZING_H
#define FUZZ_FUZZING_H

#include <QByteArray>

#include <cstdlib>

/*! The engine's input, copied so that the sanitizers detect reads past its end. */
[[nodiscard]] inline QByteArray inputBytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size));
}

/*! Aborts, which counts as a finding, if an invariant doesn't hold. */
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

#endif
