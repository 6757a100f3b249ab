#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/common/progress.h"

namespace varnello {

/// A path as a text to show.
std::string PathText(const std::filesystem::path& path);

/// Appends `line` and CR LF in one write, so that two programs that append at once don't mix their
/// lines. A file whose last line was left unfinished, or whose end can't be looked at, gets a line
/// end first; the unfinished line may be this very one. False when the file can't be written; what
/// was on disk stays as it was.
bool AppendLine(const std::filesystem::path& file, std::string_view line);

/// Hands out the lines of a file one after the other, without their ends, LF or CR LF; the last one
/// needs none. A missing or unreadable file has no lines, nor has anything but a plain file; a line
/// of more than 64 KiB is left out. A view is good for its call only. False when there is something
/// that can't be read, or not to its end. `progress`, if any, counts the bytes that were read, and
/// stops it.
bool ForEachLine(const std::filesystem::path& file,
                 const std::function<void(std::string_view)>& take, Progress* progress = nullptr);

/// All lines of a file together.
std::vector<std::string> ReadLines(const std::filesystem::path& file);

}  // namespace varnello
