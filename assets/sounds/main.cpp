// Makes the sound files of the game: varnello-waves OUTPUT_DIR
#include "sounds.h"
#include "wavefile.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace {

struct NamedSound {
    const char* fileName;
    Samples (*make)();
};

constexpr NamedSound namedSounds[] = {
    {"start.wav", StartSound},       {"carddown.wav", CardDownSound}, {"cardup.wav", CardUpSound},
    {"autoplay.wav", AutoPlaySound}, {"undo.wav", UndoSound},         {"win.wav", WinSound},
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: varnello-waves OUTPUT_DIR\n");
        return 2;
    }
    const std::filesystem::path folder(argv[1]);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    for (const NamedSound& sound : namedSounds) {
        const std::filesystem::path path = folder / sound.fileName;
        if (!WriteWave(path, sound.make())) {
            std::fprintf(stderr, "varnello-waves: cannot write %s\n", path.string().c_str());
            return 1;
        }
    }
    return 0;
}
