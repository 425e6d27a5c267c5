// LayerStates.h - which layers of a drawing can be seen and changed.
#pragma once

#include <set>
#include <span>
#include <string>
#include <unordered_map>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct LayerState {
  bool isOff = false;
  bool isFrozen = false;
  bool isLocked = false;
};

// The table of layers of a drawing. Names are UTF-8 and found without regard to case.
class LayerStates {
 public:
  explicit LayerStates(const dxf::Document& drawing);

  // A layer that the drawing does not declare can be seen and changed.
  LayerState Of(const std::string& name) const;

 private:
  std::unordered_map<std::string, LayerState> states_;  // by folded name
};

// The names of the layers on which the entities lie, UTF-8.
std::set<std::string> LayersOf(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities);

}  // namespace teskarlt
