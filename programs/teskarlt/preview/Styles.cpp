// Styles.cpp - reads the tables of layers and linetypes for pictures.
#include "teskarlt/preview/Styles.h"

#include <cmath>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt::preview {

namespace {

// Dashes are positive, gaps negative, dots 0. Ours alternate, beginning with a dash.
DashPattern ReadPattern(const dxf::TagList& linetype, double scale) {
  DashPattern pattern;
  for (const double length : linetype.Reals(dxf::CODE_DASH)) {
    const bool isDash = length >= 0;
    const bool dashIsNext = pattern.size() % 2 == 0;
    if (isDash != dashIsNext && !pattern.empty()) {
      pattern.back() += std::abs(length) * scale;
      continue;
    }
    if (isDash != dashIsNext) pattern.push_back(0);
    pattern.push_back(std::abs(length) * scale);
  }
  if (pattern.size() % 2 != 0) pattern.push_back(0);
  return pattern;
}

double LinetypeScale(const dxf::Document& drawing) {
  const auto variable = drawing.HeaderVariable(dxf::VARIABLE_LINETYPE_SCALE);
  const double scale = variable ? dxf::ParseReal(variable->value).value_or(1.0) : 1.0;
  return scale > 0 ? scale : 1.0;
}

}  // namespace

Styles::Styles(const dxf::Document& drawing) : layers_(drawing.ReadLayers()) {
  const double scale = LinetypeScale(drawing);
  for (const dxf::TagList& entry : drawing.TagLists(drawing.SectionText(dxf::SECTION_TABLES))) {
    if (!dxf::SameName(entry.Type(), dxf::TABLE_LINETYPES)) continue;
    linetypes_.try_emplace(dxf::FoldedName(entry.Text(dxf::CODE_NAME)), ReadPattern(entry, scale));
  }
}

const DashPattern& Styles::Linetype(const std::string& name) const {
  static const DashPattern unbroken;
  const auto found = linetypes_.find(dxf::FoldedName(name));
  return found == linetypes_.end() ? unbroken : found->second;
}

Colour ColourOfLayer(const dxf::Layer& layer) {
  return layer.trueColour ? ColourOfValue(*layer.trueColour) : ColourOfNumber(layer.colour);
}

bool IsVisibleLayer(const dxf::Layer& layer) {
  return !layer.isOff && !layer.isFrozen;
}

}  // namespace teskarlt::preview
