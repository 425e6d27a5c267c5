// ApplicationNumber.h - a number that an application keeps with a drawing, of no entity in it.
#pragma once

#include <optional>
#include <string_view>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Tag.h"

namespace teskarlt::dxf {

// The entry of the table APPID that declares an application. Its own extended data holds the number: the one
// place that every version has, that other programs keep, and that no entity takes along when it goes.
struct ApplicationEntry {
  const char* end = nullptr;  // where more of it can be added
  Tag number;                 // the application's first number of 32 bits; code 0 when it keeps none
};

// Nothing when the drawing declares no application of that name, which is ASCII.
std::optional<ApplicationEntry> FindApplicationEntry(const SourceText& source, const Index& index,
                                                     std::string_view name);

}  // namespace teskarlt::dxf
