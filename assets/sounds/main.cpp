// Makes the sound files of the game: varnello-waves OUTPUT_DIR NAME-VARIANT...
#include "sounds.h"
#include "wavefile.h"

#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>

namespace {

// The kind and the variant that a file is called by; the kind is null when there is none.
struct Wanted {
    const SoundKind* kind = nullptr;
    int variant = 0;
};

Wanted Find(const std::string& name) {
    for (const SoundKind& kind : SoundKinds()) {
        for (int variant = 1; variant <= variantCount; ++variant) {
            if (name == std::string(kind.name) + "-" + std::to_string(variant)) {
                return {&kind, variant};
            }
        }
    }
    return {};
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: varnello-waves OUTPUT_DIR NAME-VARIANT...\n");
        return 2;
    }
    const std::filesystem::path folder(argv[1]);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    std::set<const SoundKind*> made;
    for (int i = 2; i < argc; ++i) {
        const std::string name = argv[i];
        const Wanted wanted = Find(name);
        if (!wanted.kind) {
            std::fprintf(stderr, "varnello-waves: no sound is called %s\n", name.c_str());
            return 1;
        }
        made.insert(wanted.kind);
        const std::filesystem::path path = folder / (name + ".wav");
        if (!WriteWave(path, MakeSound(*wanted.kind, wanted.variant))) {
            std::fprintf(stderr, "varnello-waves: cannot write %s\n", path.string().c_str());
            return 1;
        }
    }
    for (const SoundKind& kind : SoundKinds()) {
        if (made.contains(&kind)) continue;
        std::fprintf(stderr, "varnello-waves: nobody asks for the sound %s\n", kind.name);
        return 1;
    }
    return 0;
}
