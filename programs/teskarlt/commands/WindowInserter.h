// WindowInserter.h - inserts windows into one drawing, one after the other.
#pragma once

#include <string>
#include <vector>

#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/WindowModule.h"

namespace teskarlt {

struct InsertedWindow {
  CommandOutcome outcome;
  const RoofFace* face;              // lives as long as the inserter; null where the user gave the plane
  std::vector<std::string> misfits;  // why it does not fit, as WindowFit tells it
};

class WindowInserter {
 public:
  // Loads the drawing that the options name, and the module. Throws Error.
  explicit WindowInserter(const WindowOptions& options);

  // Inserts the window that the options describe. Throws Error with the reason when it is refused; the
  // drawing is what it was before then.
  InsertedWindow Insert(const WindowOptions& options);

  const dxf::Document& Drawing() const { return drawing_; }

 private:
  const WindowModule module_;
  dxf::Document drawing_;
  const DrawingUnit& unit_;
  const std::vector<RoofFace> faces_;
  WindowNumbers numbers_;
  WindowFit fit_;
  Catalogues catalogues_;
};

}  // namespace teskarlt
