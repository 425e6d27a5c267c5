// Markup.h - texts within HTML and XML.
#pragma once

#include <string>
#include <string_view>

namespace teskarlt::schedule {

// The text, one line of UTF-8, with its marks escaped, so that it can stand between tags and in quotation
// marks. Characters that XML forbids become U+FFFD.
std::string EscapedMarkup(std::string_view text);

}  // namespace teskarlt::schedule
