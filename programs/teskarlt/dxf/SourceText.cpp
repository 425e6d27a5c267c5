// SourceText.cpp - the two forms of a drawing, line numbers and messages.
#include "teskarlt/dxf/SourceText.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/BinaryForm.h"

namespace teskarlt::dxf {

SourceText::SourceText(std::string name, platform::FileBytes bytes)
    : name_(std::move(name)), bytes_(std::move(bytes)) {
  if (IsBinaryForm(bytes_.View()))
    decoded_ = std::make_unique<const std::string>(TextOfBinary(name_, bytes_.View()));
}

std::string_view SourceText::Tags() const {
  constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
  const std::string_view text = Text();
  return text.starts_with(BYTE_ORDER_MARK) ? text.substr(BYTE_ORDER_MARK.size()) : text;
}

std::size_t SourceText::LineOf(const char* position) const {
  return 1 + static_cast<std::size_t>(std::count(Text().data(), position, '\n'));
}

void SourceText::Write(const std::vector<Splice>& splices,
                       const std::function<void(std::string_view)>& sink) const {
  const std::string_view text = Text();
  if (decoded_ != nullptr) return WriteBinary(name_, bytes_.View(), text, splices, sink);
  const char* at = text.data();
  for (const Splice& splice : splices) {
    sink({at, static_cast<std::size_t>(splice.begin - at)});
    sink(splice.text);
    if (splice.more != nullptr) std::for_each(splice.more->begin(), splice.more->end(), sink);
    at = splice.end;
  }
  sink({at, static_cast<std::size_t>(text.data() + text.size() - at)});
}

void SourceText::FailAt(const char* position, const std::string& message) const {
  if (decoded_ == nullptr) throw Error(fmt::format("{}:{}: {}", name_, LineOf(position), message));
  const auto offset = static_cast<std::size_t>(position - Text().data());
  throw Error(
      fmt::format("{}: byte {}: {}", name_, OffsetInBinary(name_, bytes_.View(), Text(), offset), message));
}

void SourceText::Fail(const std::string& message) const {
  throw Error(fmt::format("{}: {}", name_, message));
}

}  // namespace teskarlt::dxf
