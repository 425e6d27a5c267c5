// FileEnding.h - the format that a file's name says.
#pragma once

#include <span>
#include <string_view>

namespace teskarlt {

// The one of the formats that stands behind the last dot of the path, without regard to case; null when none
// does.
const char* FormatByEnding(std::string_view path, std::span<const char* const> formats);

}  // namespace teskarlt
