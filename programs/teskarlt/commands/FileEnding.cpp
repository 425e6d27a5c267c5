// FileEnding.cpp - the format that a file's name says.
#include "teskarlt/commands/FileEnding.h"

#include <algorithm>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

const char* FormatByEnding(std::string_view path, std::span<const char* const> formats) {
  const std::size_t dot = path.find_last_of('.');
  if (dot == std::string_view::npos) return nullptr;
  const auto found = std::find_if(formats.begin(), formats.end(), [&](const char* format) {
    return dxf::SameName(path.substr(dot + 1), format);
  });
  return found == formats.end() ? nullptr : *found;
}

}  // namespace teskarlt
