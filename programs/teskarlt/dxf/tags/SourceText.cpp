// SourceText.cpp - the two forms of a drawing, line numbers and messages.
#include "teskarlt/dxf/tags/SourceText.h"

#include <algorithm>
#include <utility>

#include "teskarlt/dxf/tags/BinaryForm.h"

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

std::vector<std::size_t> SourceText::PlacesOf(std::span<const char* const> positions) const {
  std::vector<std::size_t> places;
  const char* counted = Text().data();
  if (IsBinary()) {
    for (const char* const position : positions)
      places.push_back(static_cast<std::size_t>(position - counted));
    return OffsetsInBinary(name_, bytes_.View(), Text(), places);
  }
  std::size_t line = 1;
  for (const char* const position : positions) {
    line += static_cast<std::size_t>(std::count(counted, position, '\n'));
    counted = position;
    places.push_back(line);
  }
  return places;
}

void SourceText::Write(const std::vector<Splice>& splices,
                       const std::function<void(std::string_view)>& sink) const {
  const std::string_view text = Text();
  if (IsBinary()) return WriteBinary(name_, bytes_.View(), text, splices, sink);
  const char* at = text.data();
  for (const Splice& splice : splices) {
    sink({at, static_cast<std::size_t>(splice.begin - at)});
    sink(splice.text);
    if (splice.more != nullptr) std::for_each(splice.more->begin(), splice.more->end(), sink);
    at = splice.end;
  }
  sink({at, static_cast<std::size_t>(text.data() + text.size() - at)});
}

ErrorPlace SourceText::PlaceOf(const char* position) const {
  return {.file = name_,
          .unit = IsBinary() ? ErrorPlace::Unit::Byte : ErrorPlace::Unit::Line,
          .position = PlacesOf({&position, 1}).front()};
}

void SourceText::FailAt(const char* position, const std::string& message) const {
  throw Error(message, PlaceOf(position));
}

void SourceText::Fail(const std::string& message) const {
  throw Error(message, {.file = name_});
}

}  // namespace teskarlt::dxf
