// TagReader.cpp - values of tags, and what to say about a file that is damaged.
#include "teskarlt/dxf/read/TagReader.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {

double TagReader::Real(const Tag& tag) const {
  if (const auto value = ParseReal(tag.value)) return *value;
  source_->FailAt(tag.value.data(),
                  fmt::format("{} is not a number (group {})", Quoted(tag.value), tag.code));
}

std::int64_t TagReader::Integer(const Tag& tag) const {
  if (const auto value = ParseInteger(tag.value)) return *value;
  source_->FailAt(tag.value.data(),
                  fmt::format("{} is not a whole number (group {})", Quoted(tag.value), tag.code));
}

void TagReader::FailAtCode() const {
  const char* const stop = std::find(at_, end_, '\n');
  const std::string_view line(at_, static_cast<std::size_t>(stop - at_));
  source_->FailAt(at_, fmt::format("{} is not a group code", Quoted(Trimmed(line))));
}

void TagReader::FailAtCut() const {
  source_->FailAt(tagBegin_, "the file is cut short: the value of this group code is missing");
}

}  // namespace teskarlt::dxf
