#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// What a fuzz target implements; the fuzzer calls it with texts of its own making, the replay with
/// the files of a corpus. Aborts when something isn't as promised.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace varnello::test {

inline void Require(bool holds, const std::string& what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what.c_str());
    std::abort();
}

inline std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// A data folder for one case: empty, used by this process alone, gone afterwards.
class ScratchFolder {
public:
    ScratchFolder()
        : path(std::filesystem::temp_directory_path() /
               ("varnello-fuzz-" + std::to_string(getpid()))) {
        std::filesystem::remove_all(path);
        std::filesystem::create_directory(path);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::filesystem::path path;
};

}  // namespace varnello::test
