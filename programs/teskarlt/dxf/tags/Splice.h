// Splice.h - one change to the bytes of a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace teskarlt::dxf {

// The bytes from `begin` to `end` give way to the texts.
struct Splice {
  const char* begin;
  const char* end;
  std::string text = {};
  const std::vector<std::string_view>* more = nullptr;  // stand behind `text`; not owned
};

}  // namespace teskarlt::dxf
