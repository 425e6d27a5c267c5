// TagWriter.h - puts tags into a text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "teskarlt/dxf/tags/TypedTag.h"

namespace teskarlt::dxf {

// Appends to a text that stays the caller's. Group codes are padded to three columns; integers and handles
// are written without padding. Numbers do not depend on the locale.
class TagWriter {
 public:
  TagWriter(std::string& out, std::string_view lineEnd) : out_(out), lineEnd_(lineEnd) {}

  void Text(int code, std::string_view raw);
  void Integer(int code, std::int64_t value);
  // The shortest digits that are read back as the same
  // number, always with a decimal point. The value is finite.
  void Real(int code, double value);
  // x at `code`, y at `code` + 10, z at `code` + 20.
  void Coordinates(int code, const Point& point);
  void Handle(int code, std::uint64_t handle);

 private:
  void Code(int code);
  void Value(std::string_view text);

  std::string& out_;
  std::string_view lineEnd_;
};

}  // namespace teskarlt::dxf
