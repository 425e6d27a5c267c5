// EntityTags.cpp - the rules for group lists that become entities.
#include "teskarlt/dxf/write/EntityTags.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Tag.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

constexpr std::size_t LONGEST_APPLICATION = 31;
constexpr int FIRST_XDATA_CODE = 1000;

// What CAD programs hold of extended data in an entity, in bytes, all applications together.
constexpr std::size_t MOST_EXTENDED_DATA = 16383;
constexpr std::size_t SIZE_OF_CODE = 2;

[[noreturn]] void Refuse(int code, std::string_view why) {
  throw Error(fmt::format("the new entity is refused: group {} {}", code, why));
}

template <typename Value>
const Value& ValueOf(const Group& group, std::string_view kind) {
  const auto* const value = std::get_if<Value>(&group.value);
  if (value == nullptr) Refuse(group.code, fmt::format("holds no {}", kind));
  return *value;
}

template <typename Integer>
void CheckRange(const Group& group) {
  const auto value = ValueOf<std::int64_t>(group, "integer");
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
    Refuse(group.code, fmt::format("holds {}, which is out of its range", value));
}

void CheckFinite(int code, double value) {
  if (!std::isfinite(value)) Refuse(code, "holds a number that is not finite");
}

void CheckPoint(const Group& group) {
  const auto& point = ValueOf<Point>(group, "point");
  for (const double coordinate : {point.x, point.y, point.z})
    CheckFinite(group.code, coordinate);
}

void CheckApplication(std::string_view name) {
  const bool isGood =
      !name.empty() && name.size() <= LONGEST_APPLICATION &&
      std::all_of(name.begin(), name.end(), [](char byte) { return byte > ' ' && byte < 0x7F; });
  if (!isGood)
    Refuse(CODE_XDATA_APPLICATION, fmt::format("holds {}, which is no application name", Quoted(name)));
}

void CheckText(const Group& group) {
  const auto text = ValueOf<std::string_view>(group, "text");
  if (text.find('\0') != std::string_view::npos) Refuse(group.code, "holds a text with a zero byte");
  if (group.code == CODE_XDATA_APPLICATION) CheckApplication(text);
}

void CheckHandle(const Group& group) {
  if (group.code == CODE_HANDLE || group.code == CODE_DIMSTYLE_HANDLE || group.code == CODE_OWNER)
    Refuse(group.code, "is given by the drawing");
  if (!ParseHandle(ValueOf<std::string_view>(group, "handle"))) Refuse(group.code, "holds no handle");
}

void CheckValue(const Group& group) {
  switch (KindOf(group.code)) {
    case ValueKind::Text:
      return CheckText(group);
    case ValueKind::Handle:
      return CheckHandle(group);
    case ValueKind::Point:
      return CheckPoint(group);
    case ValueKind::Real:
      return CheckFinite(group.code, ValueOf<double>(group, "number"));
    case ValueKind::Integer16:
      return CheckRange<std::int16_t>(group);
    case ValueKind::Integer32:
      return CheckRange<std::int32_t>(group);
    case ValueKind::Integer64:
      return CheckRange<std::int64_t>(group);
    case ValueKind::Boolean:
      return CheckRange<bool>(group);
    case ValueKind::None:
      Refuse(group.code, "is not one that an entity can have");
  }
}

// Bytes of a group as a binary drawing holds it. A text counts as bytes of the code page.
std::size_t SizeOf(const Group& group) {
  if (const auto* const text = std::get_if<std::string_view>(&group.value))
    return SIZE_OF_CODE + text->size() + 1;
  if (std::holds_alternative<Point>(group.value)) return SIZE_OF_CODE + sizeof(Point);
  if (std::holds_alternative<double>(group.value)) return SIZE_OF_CODE + sizeof(double);
  const bool isShort = KindOf(group.code) == ValueKind::Integer16;
  return SIZE_OF_CODE + (isShort ? sizeof(std::int16_t) : sizeof(std::int32_t));
}

void CheckType(std::span<const Group> groups) {
  if (groups.empty()) throw Error("the new entity is refused: it has no groups");
  if (groups[0].code != CODE_TYPE) Refuse(groups[0].code, "stands where its type should be");
  const auto type = ValueOf<std::string_view>(groups[0], "text");
  const bool isGood = !type.empty() && std::all_of(type.begin(), type.end(), [](char byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == '_';
  });
  if (!isGood || type == "ENDSEC" || type == "SECTION" || type == "EOF")
    Refuse(CODE_TYPE, fmt::format("holds {}, which is no type of entity", Quoted(type)));
}

}  // namespace

std::string_view TextOf(const Group& group) {
  const auto* const text = std::get_if<std::string_view>(&group.value);
  return text == nullptr ? std::string_view() : *text;
}

std::size_t ExtendedDataBegin(std::span<const Group> groups) {
  const auto first = std::find_if(groups.begin(), groups.end(), [](const Group& group) {
    return group.code >= FIRST_XDATA_CODE || group.code == CODE_XDATA_MARKER;
  });
  return static_cast<std::size_t>(first - groups.begin());
}

void CheckGroups(std::span<const Group> groups) {
  CheckType(groups);
  const std::size_t extended = ExtendedDataBegin(groups);
  for (const Group& group : groups.subspan(1, extended - 1)) {
    if (group.code == CODE_TYPE) Refuse(CODE_TYPE, "stands twice");
    CheckValue(group);
  }
  bool isUnderApplication = false;
  std::size_t size = 0;
  for (const Group& group : groups.subspan(extended)) {
    if (group.code == CODE_XDATA_MARKER) continue;
    if (group.code < FIRST_XDATA_CODE) Refuse(group.code, "stands behind extended data");
    isUnderApplication = isUnderApplication || group.code == CODE_XDATA_APPLICATION;
    if (!isUnderApplication) Refuse(group.code, "stands before the name of an application");
    CheckValue(group);
    size += SizeOf(group);
  }
  if (size > MOST_EXTENDED_DATA) {
    throw Error(
        fmt::format("the new entity is refused: its extended data has {} bytes, and {} is the most that an "
                    "entity can hold",
                    size, MOST_EXTENDED_DATA));
  }
}

void WriteGroup(TagWriter& writer, const TextCodec& codec, const Group& group) {
  if (const auto* const point = std::get_if<Point>(&group.value))
    return writer.Coordinates(group.code, *point);
  if (const auto* const real = std::get_if<double>(&group.value)) return writer.Real(group.code, *real);
  if (const auto* const integer = std::get_if<std::int64_t>(&group.value))
    return writer.Integer(group.code, *integer);
  std::string raw;
  codec.Encode(TextOf(group), raw);
  if (group.code == CODE_XDATA_TEXT && raw.size() > LONGEST_EXTENDED_TEXT) {
    Refuse(group.code, fmt::format("holds a text of {} bytes, and {} is the most that a drawing can hold",
                                   raw.size(), LONGEST_EXTENDED_TEXT));
  }
  writer.Text(group.code, raw);
}

}  // namespace teskarlt::dxf
