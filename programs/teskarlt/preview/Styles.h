// Styles.h - what the tables of a drawing say of its layers and linetypes.
#pragma once

#include <string>
#include <unordered_map>

#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/preview/Colours.h"
#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

struct LayerStyle {
  Colour colour = ColourOfNumber(COLOUR_WHITE);
  std::string linetype{dxf::LINETYPE_CONTINUOUS};
  bool isVisible = true;  // neither switched off nor frozen
};

// Names are found without regard to case.
class Styles {
 public:
  explicit Styles(const dxf::Document& drawing);

  // A layer that the drawing does not declare is white, unbroken and visible.
  const LayerStyle& Layer(const std::string& name) const;
  // In drawing units, with the drawing's own scale; unbroken when the linetype is not declared.
  const DashPattern& Linetype(const std::string& name) const;

 private:
  std::unordered_map<std::string, LayerStyle> layers_;
  std::unordered_map<std::string, DashPattern> linetypes_;
};

}  // namespace teskarlt::preview
