// HeaderValues.cpp - version and code page of a drawing, by the texts of header variables.
#include "teskarlt/dxf/read/HeaderValues.h"

#include <algorithm>

#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::dxf {

// Versions before R12 have names with a point; their rules are those of R12.
std::optional<int> VersionNumber(std::string_view text) {
  constexpr std::string_view PREFIX = "AC";
  text = Trimmed(text);
  if (!text.starts_with(PREFIX)) return std::nullopt;
  text.remove_prefix(PREFIX.size());
  return std::max(static_cast<int>(ParseInteger(text).value_or(VERSION_R12)), VERSION_R12);
}

std::string_view CodePageOf(std::string_view text) {
  const std::string_view name = Trimmed(text);
  return name.empty() ? DEFAULT_CODE_PAGE : name;
}

}  // namespace teskarlt::dxf
