#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What a fuzzer calls with whatever comes to its mind. Returns 0; a fault ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace FuzzTarget {

/// The input without a copy, for as long as the call lasts.
inline QByteArray content(const std::uint8_t* bytes, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
}

/// Ends the program when what a reader promises does not hold.
inline void demand(bool holds, const char* promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

/// A file that holds the input while the program runs, replaced at every call. For readers of paths.
QString file(const char* suffix, const std::uint8_t* bytes, std::size_t size);

} // namespace FuzzTarget
