#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "../files.h"

/// What a fuzz target implements; the fuzzer calls it with texts of its own making, the replay with
/// the files of a corpus. Aborts when something isn't as promised.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace varnello::test {

inline void Require(bool holds, const std::string& what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what.c_str());
    std::abort();
}

}  // namespace varnello::test
