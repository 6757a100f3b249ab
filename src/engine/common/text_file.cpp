#include "engine/common/text_file.h"

#include <fstream>

namespace varnello {
namespace {

bool EndsInsideLine(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in.seekg(-1, std::ios::end)) return false;
    return in.get() != '\n';
}

}  // namespace

bool AppendLine(const std::filesystem::path& file, std::string_view line) {
    std::string text = EndsInsideLine(file) ? "\r\n" : "";
    text.append(line).append("\r\n");
    std::ofstream out(file, std::ios::binary | std::ios::app);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    return out.good();
}

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    std::ifstream in(file, std::ios::binary);
    for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace varnello
