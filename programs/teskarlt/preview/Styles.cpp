// Styles.cpp - reads the tables of layers and linetypes.
#include "teskarlt/preview/Styles.h"

#include <algorithm>
#include <cmath>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/preview/Record.h"

namespace teskarlt::preview {

namespace {

LayerStyle ReadLayer(const Record& record) {
  LayerStyle layer;
  constexpr std::int64_t most = COLOUR_BY_LAYER;
  const std::int64_t number = std::clamp(record.Integer(dxf::CODE_COLOUR, COLOUR_WHITE), -most, most);
  const bool isOff = number < 0;
  layer.isVisible = !isOff && (record.Integer(dxf::CODE_LAYER_FLAGS) & dxf::LAYER_FROZEN) == 0;
  layer.colour = record.Has(dxf::CODE_TRUE_COLOUR) ? ColourOfValue(record.Integer(dxf::CODE_TRUE_COLOUR))
                                                   : ColourOfNumber(isOff ? -number : number);
  layer.linetype = record.Text(dxf::CODE_LINETYPE, layer.linetype);
  return layer;
}

// Dashes are positive, gaps negative, dots 0. Ours alternate, beginning with a dash.
DashPattern ReadPattern(const Record& record, double scale) {
  DashPattern pattern;
  for (const double length : record.Reals(dxf::CODE_DASH)) {
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

Styles::Styles(const dxf::Document& drawing) {
  const double scale = LinetypeScale(drawing);
  for (const Record& record : ReadRecords(drawing, drawing.SectionText(dxf::SECTION_TABLES))) {
    const std::string name = dxf::FoldedName(record.Text(dxf::CODE_NAME));
    if (dxf::SameName(record.Type(), dxf::TABLE_LAYERS)) {
      layers_.try_emplace(name, ReadLayer(record));
    } else if (dxf::SameName(record.Type(), dxf::TABLE_LINETYPES)) {
      linetypes_.try_emplace(name, ReadPattern(record, scale));
    }
  }
}

const LayerStyle& Styles::Layer(const std::string& name) const {
  static const LayerStyle undeclared;
  const auto found = layers_.find(dxf::FoldedName(name));
  return found == layers_.end() ? undeclared : found->second;
}

const DashPattern& Styles::Linetype(const std::string& name) const {
  static const DashPattern unbroken;
  const auto found = linetypes_.find(dxf::FoldedName(name));
  return found == linetypes_.end() ? unbroken : found->second;
}

}  // namespace teskarlt::preview
