// TagValue.h - numbers, handles and names among the values of tags.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace teskarlt::dxf {

// A finite number as programs write it: blanks around, a leading "+", "1.", ".5", exponents with E or D.
// Nothing for anything else.
std::optional<double> ParseReal(std::string_view text);

// A decimal integer with blanks around and an optional sign; a real without fraction ("4.0") passes too.
// Nothing for anything else.
std::optional<std::int64_t> ParseInteger(std::string_view text);

// A handle: 1 to 16 hexadecimal digits, blanks around. Nothing
// for anything else. 0 is no handle but the null reference.
std::optional<std::uint64_t> ParseHandle(std::string_view text);

// The text in quotation marks for a message: control characters and bytes beyond ASCII become "?", long texts
// are cut.
std::string Quoted(std::string_view text);

// The text without blanks around it.
std::string_view Trimmed(std::string_view text);

// Names compare without regard to the case of A to Z.
bool SameName(std::string_view a, std::string_view b);

}  // namespace teskarlt::dxf
