#include "engine/common/text_file.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

namespace varnello {
namespace {

constexpr std::size_t kBlock = 65536;  // bytes read at a time

constexpr std::size_t kLongestLine = 65536;  // bytes; a longer one is damaged, whatever it holds

/// Whether there is something in the file's place that may be waited for or never ends.
bool IsUnfit(const std::filesystem::path& file) {
    std::error_code none;
    const auto kind = std::filesystem::status(file, none).type();
    return kind != std::filesystem::file_type::regular &&
           kind != std::filesystem::file_type::not_found;
}

constexpr std::string_view kLineEnd = "\r\n";

/// What has to be written so that `line` stands in the file as one of its own.
std::string Continuation(const std::filesystem::path& file, std::string_view line) {
    std::string whole = std::string(line).append(kLineEnd);
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(file, none);
    if (none || size == 0) return whole;
    // As much of the end as tells whether the line before it is finished, and whether it is this
    // very one, whose end didn't make it onto a full disk.
    std::string end(static_cast<std::size_t>(std::min<std::uintmax_t>(size, line.size() + 1)), ' ');
    std::ifstream in(file, std::ios::binary);
    in.seekg(-static_cast<std::streamoff>(end.size()), std::ios::end);
    if (!in.read(end.data(), static_cast<std::streamsize>(end.size()))) {
        return std::string(kLineEnd).append(whole);  // it can't be looked at
    }
    if (end.ends_with('\n')) return whole;
    const bool alone = end.size() == line.size() || end.front() == '\n';
    if (alone && end.ends_with(line)) return std::string(kLineEnd);
    return std::string(kLineEnd).append(whole);
}

}  // namespace

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool AppendLine(const std::filesystem::path& file, std::string_view line) {
    if (IsUnfit(file)) return false;
    const std::string text = Continuation(file, line);
    std::ofstream out(file, std::ios::binary | std::ios::app);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    return out.good();
}

bool ForEachLine(const std::filesystem::path& file,
                 const std::function<void(std::string_view)>& take, Progress* progress) {
    if (IsUnfit(file)) return false;
    std::ifstream in(file, std::ios::binary);
    std::error_code none;
    if (!in.is_open()) return !std::filesystem::exists(file, none) && !none;
    std::string buffer;
    std::size_t kept = 0;  // bytes of a line whose end hasn't been read yet
    bool tooLong = false;  // that line is, and what is kept of it is its rest
    const auto hand = [&](std::string_view line) {
        if (std::exchange(tooLong, false) || line.size() > kLongestLine) return;
        if (line.ends_with('\r')) line.remove_suffix(1);
        take(line);
    };
    while (in) {
        if (progress && progress->Stopped) return false;
        buffer.resize(kept + std::max(kBlock, kept));
        in.read(buffer.data() + kept, static_cast<std::streamsize>(buffer.size() - kept));
        const std::size_t filled = kept + static_cast<std::size_t>(in.gcount());
        if (progress) progress->Done += in.gcount();
        std::string_view rest(buffer.data(), filled);
        std::size_t searched = kept;
        for (std::size_t end; (end = rest.find('\n', searched)) != std::string_view::npos;) {
            hand(rest.substr(0, end));
            rest.remove_prefix(end + 1);
            searched = 0;
        }
        if (rest.size() > kLongestLine) {
            tooLong = true;
            rest = {};
        }
        kept = rest.size();
        std::copy(rest.begin(), rest.end(), buffer.begin());
    }
    if (kept > 0) hand(std::string_view(buffer).substr(0, kept));
    return !in.bad();
}

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    ForEachLine(file, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
}

}  // namespace varnello
