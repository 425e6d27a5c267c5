// Tag.h - the pair of lines that every drawing interchange file is made of.
#pragma once

#include <string_view>

namespace teskarlt::dxf {

// A view on the file's bytes: valid as long as the document is.
struct Tag {
  int code = 0;            // group code
  std::string_view value;  // the value's bytes as they stand, without the line end
};

}  // namespace teskarlt::dxf
