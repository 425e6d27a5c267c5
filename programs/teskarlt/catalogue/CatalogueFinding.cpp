// CatalogueFinding.cpp - names of the kinds of findings.
#include "teskarlt/catalogue/CatalogueFinding.h"

#include <array>

namespace teskarlt {

std::string_view KindName(CatalogueFinding::Kind kind) {
  constexpr std::array<std::string_view, 13> names = {
      "key",         "duplicate", "size",   "doubtful-size", "opening-code", "text",   "encoding",
      "line-length", "line-ends", "fields", "comment",       "section",      "outside"};
  return names.at(static_cast<std::size_t>(kind));
}

}  // namespace teskarlt
