// LayerStates.cpp - reads the table of layers.
#include "teskarlt/drawing/LayerStates.h"

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

LayerStates::LayerStates(const dxf::Document& drawing) {
  dxf::TagReader reader(drawing.Source(), drawing.SectionText(dxf::SECTION_TABLES));
  bool isLayer = false;
  LayerState* layer = nullptr;
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_TYPE) {
      isLayer = dxf::SameName(tag.value, dxf::TABLE_LAYERS);
      layer = nullptr;
    } else if (isLayer && layer == nullptr && tag.code == dxf::CODE_NAME) {
      layer = &states_[dxf::FoldedName(drawing.Text(tag))];
    } else if (layer != nullptr && tag.code == dxf::CODE_LAYER_FLAGS) {
      const std::int64_t flags = dxf::ParseInteger(tag.value).value_or(0);
      layer->isFrozen = (flags & dxf::LAYER_FROZEN) != 0;
      layer->isLocked = (flags & dxf::LAYER_LOCKED) != 0;
    } else if (layer != nullptr && tag.code == dxf::CODE_COLOUR) {
      layer->isOff = dxf::ParseInteger(tag.value).value_or(0) < 0;
    }
  }
}

LayerState LayerStates::Of(const std::string& name) const {
  const auto found = states_.find(dxf::FoldedName(name));
  return found == states_.end() ? LayerState{} : found->second;
}

std::set<std::string> LayersOf(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities) {
  std::set<std::string> layers;
  for (const dxf::Entity* const entity : entities) {
    dxf::TagReader reader = drawing.Reader(*entity);
    dxf::Tag tag;
    while (reader.Next(tag) && tag.code != dxf::CODE_LAYER) {
    }
    if (tag.code == dxf::CODE_LAYER) layers.insert(drawing.Text(tag));
  }
  return layers;
}

}  // namespace teskarlt
