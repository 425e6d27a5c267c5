// ClosedLayers.cpp - windows on layers that cannot be changed or seen.
#include "teskarlt/windows/ClosedLayers.h"

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/EntityLayers.h"

namespace teskarlt {

void RefuseClosedLayers(const dxf::Document& drawing, const DrawnWindow& window) {
  const dxf::Layers layersOfDrawing = drawing.ReadLayers();
  for (const std::string& layer : LayersOf(drawing, window.entities)) {
    const dxf::Layer& state = layersOfDrawing.Of(layer);
    if (!state.isLocked && !state.isFrozen) continue;
    throw Error(
        fmt::format(
            "window {} lies on the layer \"{}\", which is {}; {} it in the CAD program, or give --locked",
            window.number, layer, state.isLocked ? "locked" : "frozen", state.isLocked ? "unlock" : "thaw"),
        {.value = layer});
  }
}

std::vector<std::string> ClosedLayerWarnings(const dxf::Document& drawing,
                                             const std::set<std::string>& layers) {
  const dxf::Layers layersOfDrawing = drawing.ReadLayers();
  std::vector<std::string> warnings;
  const auto warn = [&](const std::string& layer, const char* what) {
    warnings.push_back(fmt::format("the layer \"{}\" is {}", layer, what));
  };
  for (const std::string& layer : layers) {
    const dxf::Layer& state = layersOfDrawing.Of(layer);
    if (state.isFrozen) {
      warn(layer, "frozen; what was drawn on it is not to be seen");
    } else if (state.isOff) {
      warn(layer, "switched off; what was drawn on it is not to be seen");
    }
    if (state.isLocked) warn(layer, "locked; it must be unlocked before the window can be changed");
  }
  return warnings;
}

}  // namespace teskarlt
