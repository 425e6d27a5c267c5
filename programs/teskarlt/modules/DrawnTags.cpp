// DrawnTags.cpp - an entity of the module in the unit of the drawing.
#include "teskarlt/modules/DrawnTags.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <variant>

#include "teskarlt/dxf/tags/Codes.h"
#include "window/Description.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

bool NamesDescription(const dxf::TypedTag& tag) {
  const auto* const name = std::get_if<std::string_view>(&tag.value);
  return tag.code == dxf::CODE_XDATA_APPLICATION && name != nullptr &&
         *name == brevanta::DESCRIPTION_APPLICATION;
}

}  // namespace

void TakeToDrawn(const WorkingUnit& unit, std::vector<dxf::TypedTag>& tags) {
  for (dxf::TypedTag& tag : tags) {
    if (auto* const point = std::get_if<dxf::Point>(&tag.value))
      *point = {ToDrawn(point->x, unit), ToDrawn(point->y, unit), ToDrawn(point->z, unit)};
  }
  auto tag = std::find_if(tags.begin(), tags.end(), NamesDescription);
  for (std::size_t item = 0; tag != tags.end() && ++tag != tags.end() && item < brevanta::DESCRIPTION.size();
       ++item) {
    const brevanta::RecordField* const field = brevanta::DESCRIPTION[item].Field();
    auto* const real = std::get_if<double>(&tag->value);
    if (field != nullptr && real != nullptr) *real /= ItemFactor(*field, unit.perDrawingUnit);
  }
}

}  // namespace teskarlt
