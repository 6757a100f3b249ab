#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>

#include "script/scripted_table.h"

// varnello-script DIRECTORY < script: plays a script of commands on a table without a window.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: varnello-script DIRECTORY < script\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    bool usable = std::filesystem::is_directory(folder, error);
    if (usable) {
        const std::filesystem::directory_iterator look(folder, error);
        usable = !error;
    }
    if (!usable) {
        std::cerr << "varnello-script: the folder " << argv[1] << " can't be used\n";
        return 2;
    }
    std::ios::sync_with_stdio(false);
    varnello::script::ScriptedTable table(folder, std::cout);
    for (std::string line; std::getline(std::cin, line);) table.Run(line);
    return 0;
}
