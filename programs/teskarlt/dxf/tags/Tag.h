// Tag.h - the pair of lines that every drawing interchange file is made of.
#pragma once

#include <string_view>

namespace teskarlt::dxf {

// A view on the file's bytes: valid as long as the document is.
struct Tag {
  int code = 0;            // group code
  std::string_view value;  // the value's bytes as they stand, without the line end
};

// Codes that steer the reading of a file.
constexpr int CODE_TYPE = 0;
constexpr int CODE_NAME = 2;
constexpr int CODE_HANDLE = 5;
constexpr int CODE_LINETYPE = 6;
constexpr int CODE_LAYER = 8;
constexpr int CODE_VARIABLE = 9;
constexpr int CODE_PAPER_SPACE = 67;
constexpr int CODE_COUNT = 70;
constexpr int CODE_SUBCLASS = 100;
constexpr int CODE_DIMSTYLE_HANDLE = 105;
constexpr int CODE_OWNER = 330;
constexpr int CODE_COMMENT = 999;
constexpr int CODE_XDATA_TEXT = 1000;
constexpr int CODE_XDATA_APPLICATION = 1001;
constexpr int CODE_XDATA_MARKER = -3;  // stands before extended data in value lists, never in a file

}  // namespace teskarlt::dxf
