// HeaderValues.h - version and code page of a drawing, by the texts of header variables.
#pragma once

#include <optional>
#include <string_view>

namespace teskarlt::dxf {

// The number of a version by the value of $ACADVER, 1015 for "AC1015"; VERSION_R12 for all before it and for
// a number that cannot be read. Nothing for a text that names no version.
std::optional<int> VersionNumber(std::string_view text);

// The name of the code page by the value of $DWGCODEPAGE, or the default one.
std::string_view CodePageOf(std::string_view text);

}  // namespace teskarlt::dxf
