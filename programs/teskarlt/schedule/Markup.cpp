// Markup.cpp - texts within HTML and XML.
#include "teskarlt/schedule/Markup.h"

#include <utility>

namespace teskarlt::schedule {

namespace {

constexpr std::pair<std::string_view, std::string_view> REPLACED[] = {
    {"&", "&amp;"},
    {"<", "&lt;"},
    {">", "&gt;"},
    {"\"", "&quot;"},
    {"\xEF\xBF\xBE", "\xEF\xBF\xBD"},  // U+FFFE and U+FFFF are no characters
    {"\xEF\xBF\xBF", "\xEF\xBF\xBD"},
};

}  // namespace

std::string EscapedMarkup(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  while (!text.empty()) {
    std::pair<std::string_view, std::string_view> taken{text.substr(0, 1), text.substr(0, 1)};
    for (const auto& replaced : REPLACED)
      if (text.starts_with(replaced.first)) taken = replaced;
    escaped += taken.second;
    text.remove_prefix(taken.first.size());
  }
  return escaped;
}

}  // namespace teskarlt::schedule
