#ifndef FUZZ_FUZZING_H
#define FUZZ_FUZZING_H

#include <QByteArray>

#include <cstdlib>

/*! The engine's input, copied so that the sanitizers see reads beyond its end. */
[[nodiscard]] inline QByteArray inputBytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size));
}

/*! Stops the run, which counts as a finding, where what always holds doesn't. */
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

#endif
