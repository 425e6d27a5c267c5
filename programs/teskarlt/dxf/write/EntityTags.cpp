// EntityTags.cpp - the rules for tag lists that become entities.
#include "teskarlt/dxf/write/EntityTags.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/ExtendedData.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::dxf {
namespace {

constexpr std::size_t LONGEST_APPLICATION = 31;

[[noreturn]] void Refuse(int code, std::string_view why) {
  throw Error(fmt::format("the new entity is refused: group {} {}", code, why));
}

template <typename Value>
const Value& ValueOf(const TypedTag& tag, std::string_view kind) {
  const auto* const value = std::get_if<Value>(&tag.value);
  if (value == nullptr) Refuse(tag.code, fmt::format("holds no {}", kind));
  return *value;
}

template <typename Integer>
void CheckRange(const TypedTag& tag) {
  const auto value = ValueOf<std::int64_t>(tag, "integer");
  if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
    Refuse(tag.code, fmt::format("holds {}, which is out of its range", value));
}

void CheckFinite(int code, double value) {
  if (!std::isfinite(value)) Refuse(code, "holds a number that is not finite");
}

void CheckPoint(const TypedTag& tag) {
  const auto& point = ValueOf<Point>(tag, "point");
  for (const double coordinate : {point.x, point.y, point.z})
    CheckFinite(tag.code, coordinate);
}

void CheckApplication(std::string_view name) {
  const bool isGood =
      !name.empty() && name.size() <= LONGEST_APPLICATION &&
      std::all_of(name.begin(), name.end(), [](char byte) { return byte > ' ' && byte < 0x7F; });
  if (!isGood)
    Refuse(CODE_XDATA_APPLICATION, fmt::format("holds {}, which is no application name", Quoted(name)));
}

void CheckText(const TypedTag& tag) {
  const auto text = ValueOf<std::string_view>(tag, "text");
  const bool isLine =
      std::none_of(text.begin(), text.end(), [](char byte) { return byte >= '\0' && byte < ' '; });
  if (!isLine) Refuse(tag.code, "holds a text with a control character");
  if (tag.code == CODE_XDATA_TEXT && text.size() > LONGEST_EXTENDED_TEXT) {
    Refuse(tag.code, fmt::format("holds a text of {} bytes, and {} is the most that a drawing can hold",
                                 text.size(), LONGEST_EXTENDED_TEXT));
  }
  if (tag.code == CODE_XDATA_APPLICATION) CheckApplication(text);
}

void CheckHandle(const TypedTag& tag) {
  if (tag.code == CODE_HANDLE || tag.code == CODE_DIMSTYLE_HANDLE || tag.code == CODE_OWNER)
    Refuse(tag.code, "is given by the drawing");
  if (!ParseHandle(ValueOf<std::string_view>(tag, "handle"))) Refuse(tag.code, "holds no handle");
}

void CheckValue(const TypedTag& tag) {
  switch (KindOf(tag.code)) {
    case ValueKind::Text:
    case ValueKind::Binary:
      return CheckText(tag);
    case ValueKind::Handle:
      return CheckHandle(tag);
    case ValueKind::Point:
      return CheckPoint(tag);
    case ValueKind::Real:
      return CheckFinite(tag.code, ValueOf<double>(tag, "number"));
    case ValueKind::Integer16:
      return CheckRange<std::int16_t>(tag);
    case ValueKind::Integer32:
      return CheckRange<std::int32_t>(tag);
    case ValueKind::Integer64:
      return CheckRange<std::int64_t>(tag);
    case ValueKind::Boolean:
      return CheckRange<bool>(tag);
    case ValueKind::None:
      Refuse(tag.code, "is not one that an entity can have");
  }
}

void CheckType(std::span<const TypedTag> tags) {
  if (tags.empty()) throw Error("the new entity is refused: it has no groups");
  if (tags[0].code != CODE_TYPE) Refuse(tags[0].code, "stands where its type should be");
  const auto type = ValueOf<std::string_view>(tags[0], "text");
  const bool isGood = !type.empty() && std::all_of(type.begin(), type.end(), [](char byte) {
    return (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == '_';
  });
  if (!isGood || type == TYPE_SECTION_END || type == TYPE_SECTION || type == TYPE_FILE_END)
    Refuse(CODE_TYPE, fmt::format("holds {}, which is no type of entity", Quoted(type)));
}

}  // namespace

std::string_view TextOf(const TypedTag& tag) {
  const auto* const text = std::get_if<std::string_view>(&tag.value);
  return text == nullptr ? std::string_view() : *text;
}

std::size_t ExtendedDataBegin(std::span<const TypedTag> tags) {
  const auto first = std::find_if(tags.begin(), tags.end(), [](const TypedTag& tag) {
    return IsExtendedData(tag.code) || tag.code == CODE_XDATA_MARKER;
  });
  return static_cast<std::size_t>(first - tags.begin());
}

std::size_t ShapeOf(std::span<const TypedTag> tags, Integers integers) {
  constexpr std::size_t SPREAD = 0x9E3779B9;  // an odd number whose bits look like chance
  constexpr int TURN = 5;
  std::size_t shape = tags.size();
  const auto add = [&](std::size_t value) { shape = (std::rotl(shape, TURN) ^ value) * SPREAD; };
  for (const TypedTag& tag : tags) {
    add(static_cast<std::size_t>(tag.code));
    if (const auto* const text = std::get_if<std::string_view>(&tag.value)) {
      add(std::hash<std::string_view>()(*text));
    } else if (const auto* const integer = std::get_if<std::int64_t>(&tag.value);
               integer != nullptr && integers == Integers::Count) {
      add(static_cast<std::size_t>(*integer));
    }
  }
  return shape;
}

void CheckExtendedData(std::span<const TypedTag> tags, std::size_t others) {
  bool isUnderApplication = false;
  std::size_t size = others;
  for (const TypedTag& tag : tags) {
    if (tag.code == CODE_XDATA_MARKER) continue;
    if (!IsExtendedData(tag.code)) Refuse(tag.code, "stands behind extended data");
    isUnderApplication = isUnderApplication || tag.code == CODE_XDATA_APPLICATION;
    if (!isUnderApplication) Refuse(tag.code, "stands before the name of an application");
    CheckValue(tag);
    size += ExtendedSize(tag.code, TextOf(tag).size());
  }
  if (size > MOST_EXTENDED_DATA) {
    throw Error(
        fmt::format("the new entity is refused: its extended data has {} bytes, and {} is the most that an "
                    "entity can hold",
                    size, MOST_EXTENDED_DATA));
  }
}

void CheckTags(std::span<const TypedTag> tags) {
  CheckType(tags);
  const std::size_t extended = ExtendedDataBegin(tags);
  for (const TypedTag& tag : tags.subspan(1, extended - 1)) {
    if (tag.code == CODE_TYPE) Refuse(CODE_TYPE, "stands twice");
    CheckValue(tag);
  }
  CheckExtendedData(tags.subspan(extended));
}

void WriteTag(TagWriter& writer, const TypedTag& tag) {
  if (const auto* const point = std::get_if<Point>(&tag.value)) return writer.Coordinates(tag.code, *point);
  if (const auto* const real = std::get_if<double>(&tag.value)) return writer.Real(tag.code, *real);
  if (const auto* const integer = std::get_if<std::int64_t>(&tag.value))
    return writer.Integer(tag.code, *integer);
  writer.Text(tag.code, TextOf(tag));
}

}  // namespace teskarlt::dxf
