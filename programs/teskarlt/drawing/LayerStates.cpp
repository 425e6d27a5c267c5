// LayerStates.cpp - reads the table of layers.
#include "teskarlt/drawing/LayerStates.h"

#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

constexpr int CODE_FLAGS = 70;
constexpr int CODE_COLOUR = 62;  // negative: the layer is off
constexpr std::int64_t FROZEN = 1;
constexpr std::int64_t LOCKED = 4;

}  // namespace

LayerStates::LayerStates(const dxf::Document& drawing) {
  dxf::TagReader reader(drawing.Source(), drawing.SectionText("TABLES"));
  bool isLayer = false;
  LayerState* layer = nullptr;
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_TYPE) {
      isLayer = dxf::SameName(tag.value, "LAYER");
      layer = nullptr;
    } else if (isLayer && layer == nullptr && tag.code == dxf::CODE_NAME) {
      layer = &states_[dxf::FoldedName(drawing.Text(tag))];
    } else if (layer != nullptr && tag.code == CODE_FLAGS) {
      const std::int64_t flags = dxf::ParseInteger(tag.value).value_or(0);
      layer->isFrozen = (flags & FROZEN) != 0;
      layer->isLocked = (flags & LOCKED) != 0;
    } else if (layer != nullptr && tag.code == CODE_COLOUR) {
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
