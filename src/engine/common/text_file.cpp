#include "engine/common/text_file.h"

#include <algorithm>
#include <fstream>

namespace varnello {
namespace {

constexpr std::size_t kBlock = 65536;  // bytes read at a time

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

void ForEachLine(const std::filesystem::path& file,
                 const std::function<void(std::string_view)>& take) {
    std::ifstream in(file, std::ios::binary);
    std::string buffer;
    std::size_t kept = 0;  // bytes of a line whose end hasn't been read yet
    const auto hand = [&](std::string_view line) {
        if (line.ends_with('\r')) line.remove_suffix(1);
        take(line);
    };
    while (in) {
        buffer.resize(kept + std::max(kBlock, kept));
        in.read(buffer.data() + kept, static_cast<std::streamsize>(buffer.size() - kept));
        const std::size_t filled = kept + static_cast<std::size_t>(in.gcount());
        std::string_view rest(buffer.data(), filled);
        std::size_t searched = kept;
        for (std::size_t end; (end = rest.find('\n', searched)) != std::string_view::npos;) {
            hand(rest.substr(0, end));
            rest.remove_prefix(end + 1);
            searched = 0;
        }
        kept = rest.size();
        std::copy(rest.begin(), rest.end(), buffer.begin());
    }
    if (kept > 0) hand(std::string_view(buffer).substr(0, kept));
}

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    ForEachLine(file, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

}  // namespace varnello
