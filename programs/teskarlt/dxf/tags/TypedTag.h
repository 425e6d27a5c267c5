// TypedTag.h - a tag of an entity that is to be added to a drawing.
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

namespace teskarlt::dxf {

struct Point {
  double x = 0;
  double y = 0;
  double z = 0;

  bool operator==(const Point&) const = default;
};

// Texts are as they stand in the file (TextCodec.h) and stay the caller's; they are read during the call
// alone. Coordinates in drawing units.
struct TypedTag {
  int code = 0;
  std::variant<std::string_view, std::int64_t, double, Point> value;

  bool operator==(const TypedTag&) const = default;
};

}  // namespace teskarlt::dxf
