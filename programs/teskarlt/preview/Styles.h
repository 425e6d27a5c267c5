// Styles.h - what the tables of a drawing say of the looks of layers and linetypes.
#pragma once

#include <string>
#include <unordered_map>

#include "teskarlt/dxf/Document.h"
#include "teskarlt/preview/Colours.h"
#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// Names are UTF-8 and found without regard to case.
class Styles {
 public:
  explicit Styles(const dxf::Document& drawing);

  // A layer that the drawing does not declare is white, continuous and visible.
  const dxf::Layer& Layer(const std::string& name) const { return layers_.Of(name); }
  // In drawing units, with the drawing's own scale; unbroken when the linetype is not declared.
  const DashPattern& Linetype(const std::string& name) const;

 private:
  dxf::Layers layers_;
  std::unordered_map<std::string, DashPattern> linetypes_;
};

Colour ColourOfLayer(const dxf::Layer& layer);

// Whether it is neither switched off nor frozen.
bool IsVisibleLayer(const dxf::Layer& layer);

}  // namespace teskarlt::preview
