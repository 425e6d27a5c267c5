// Linetypes.cpp - as many dashes as announced, and from R13 on what each is made of.
#include "teskarlt/check/Linetypes.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

std::int64_t CountOf(const Object& object, int code) {
  const auto own = object.Own();
  return std::count_if(own.begin(), own.end(), [&](const dxf::Tag& tag) { return tag.code == code; });
}

}  // namespace

void CheckLinetype(const Object& object, const Header& header, Findings& findings) {
  if (object.place != Place::TableEntry || object.type != dxf::TABLE_LINETYPES) return;
  const std::int64_t dashes = CountOf(object, dxf::CODE_DASH);
  const dxf::Tag* const count = FindTag(object, dxf::CODE_DASH_COUNT);
  if (count != nullptr && dxf::ParseInteger(count->value).value_or(dashes) != dashes) {
    findings.Error(
        Kind::LinetypePattern, count->value.data(),
        fmt::format("the linetype says that it has {} dashes and has {}", dxf::Trimmed(count->value), dashes),
        object.number);
  }
  if (header.version < dxf::VERSION_R13 || CountOf(object, dxf::CODE_DASH_KIND) >= dashes) return;
  findings.Error(Kind::LinetypePattern, FindTag(object, dxf::CODE_DASH)->value.data(),
                 "the linetype does not say for each dash what it is made of (group 74)", object.number);
}

}  // namespace teskarlt::check
