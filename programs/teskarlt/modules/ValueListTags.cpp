// ValueListTags.cpp - an entity from the module's typed value list to the tags of a drawing.
#include "teskarlt/modules/ValueListTags.h"

#include <cstddef>
#include <string_view>

#include <fmt/format.h>

#include "inc/StringModule.h"
#include "inc/ValueList.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Codes.h"

namespace teskarlt {

namespace {

constexpr std::size_t MOST_TAGS = 10000;  // far above any entity; a list that closes on itself ends here

using NodeValue = decltype(dxf::TypedTag::value);

NodeValue TextOf(const brevanta::ValueNode& node) {
  if (node.value.text == nullptr) {
    throw Error(fmt::format("the module handed over an entity without a text in group {}", node.typeCode));
  }
  const std::string_view text = node.value.text;
  if (node.typeCode == dxf::CODE_LAYER && text.empty()) {
    throw Error(fmt::format("the module gave an entity no layer, since it could not open {} at that moment",
                            brevanta::RESOURCE_MODULE));
  }
  return text;
}

NodeValue ValueOf(const brevanta::ValueNode& node) {
  const std::uint32_t kind = brevanta::TypeCodeKind(node.typeCode);
  const auto is = [kind](std::uint32_t other) { return brevanta::SameValueKind(kind, other); };
  const brevanta::NodeValue& value = node.value;
  if ((kind & brevanta::KIND_UNDEFINED) == 0) {
    if (is(brevanta::KIND_TEXT)) return TextOf(node);
    if (is(brevanta::KIND_POINT)) return dxf::Point{value.point[0], value.point[1], value.point[2]};
    if (is(brevanta::KIND_REAL)) return value.real;
    if (is(brevanta::KIND_LONG)) return std::int64_t{value.longInteger};
    if (is(brevanta::KIND_INTEGER64)) return value.wideInteger;
    const bool isShort = is(brevanta::KIND_SHORT) || is(brevanta::KIND_INTEGER16) || is(brevanta::KIND_FLAG);
    if (isShort) return std::int64_t{value.shortInteger};
  }
  throw Error(fmt::format("the module handed over an entity with a group {}, which no drawing can hold",
                          node.typeCode));
}

}  // namespace

std::vector<dxf::TypedTag> TagsOf(const brevanta::ValueNode* list) {
  std::vector<dxf::TypedTag> tags;
  for (; list != nullptr; list = list->next) {
    if (tags.size() == MOST_TAGS) throw Error("the module handed over an entity without an end");
    if (list->typeCode != dxf::CODE_XDATA_MARKER) tags.push_back({list->typeCode, ValueOf(*list)});
  }
  return tags;
}

}  // namespace teskarlt
