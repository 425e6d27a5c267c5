// SourceText.cpp - line numbers and messages.
#include "teskarlt/dxf/SourceText.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"

namespace teskarlt::dxf {

SourceText::SourceText(std::string name, platform::FileBytes bytes)
    : name_(std::move(name)), bytes_(std::move(bytes)) {}

std::string_view SourceText::Tags() const {
  constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
  const std::string_view text = Text();
  return text.starts_with(BYTE_ORDER_MARK) ? text.substr(BYTE_ORDER_MARK.size()) : text;
}

std::size_t SourceText::LineOf(const char* position) const {
  return 1 + static_cast<std::size_t>(std::count(Text().data(), position, '\n'));
}

void SourceText::FailAt(const char* position, const std::string& message) const {
  throw Error(fmt::format("{}:{}: {}", name_, LineOf(position), message));
}

void SourceText::Fail(const std::string& message) const {
  throw Error(fmt::format("{}: {}", name_, message));
}

}  // namespace teskarlt::dxf
