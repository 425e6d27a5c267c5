// Layers.cpp - reads the entries of the table of layers.
#include "teskarlt/dxf/read/Layers.h"

#include <algorithm>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

Layer ReadLayer(const TagList& entry) {
  const std::int64_t colour = std::clamp(entry.ReadableInteger(CODE_COLOUR).value_or(COLOUR_WHITE),
                                         -COLOUR_BY_LAYER, COLOUR_BY_LAYER);
  const std::int64_t flags = entry.ReadableInteger(CODE_LAYER_FLAGS).value_or(0);
  Layer layer;
  layer.isOff = colour < 0;
  layer.colour = layer.isOff ? -colour : colour;
  layer.trueColour = entry.ReadableInteger(CODE_TRUE_COLOUR);
  layer.linetype = entry.Text(CODE_LINETYPE, LINETYPE_CONTINUOUS);
  layer.isFrozen = (flags & LAYER_FROZEN) != 0;
  layer.isLocked = (flags & LAYER_LOCKED) != 0;
  return layer;
}

}  // namespace

Layers::Layers(std::span<const TagList> entries) {
  for (const TagList& entry : entries) {
    if (!SameName(entry.Type(), TABLE_LAYERS) || !entry.Has(CODE_NAME)) continue;
    layers_.try_emplace(FoldedName(entry.Text(CODE_NAME)), ReadLayer(entry));
  }
}

const Layer& Layers::Of(std::string_view name) const {
  static const Layer undeclared;
  const auto found = layers_.find(FoldedName(name));
  return found == layers_.end() ? undeclared : found->second;
}

}  // namespace teskarlt::dxf
