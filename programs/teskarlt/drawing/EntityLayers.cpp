// EntityLayers.cpp - reads the layers of entities.
#include "teskarlt/drawing/EntityLayers.h"

#include "teskarlt/dxf/tags/Codes.h"

namespace teskarlt {

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
