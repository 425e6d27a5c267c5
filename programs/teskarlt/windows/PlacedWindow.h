// PlacedWindow.h - what becomes of a window that is inserted or edited.
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "inc/WindowParams.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

struct FaceName {
  std::string name;  // as RoofFace has both
  std::string layer;
  std::string roof;  // of its surface
};

struct PlacedWindow {
  std::string mark;                      // UTF-8; empty for none
  brevanta::WindowParams record{};       // as the dialog confirmed it
  WorkingUnit unit;                      // of its points
  Outline outline{};                     // of the frame, in this unit
  std::optional<FaceName> face;          // none where the user gave the plane
  std::optional<SurfaceOutline> bounds;  // of a roof that is only drawn in plan
  std::size_t faces = 0;                 // entities that came into the drawing
  std::size_t lines = 0;
  std::set<std::string> layers;      // of these entities, UTF-8
  std::vector<std::string> misfits;  // why it does not fit, as WindowFit tells it
};

// What the module's command left behind, in its unit, on the roof that was chosen for it.
PlacedWindow PlacedBy(const CommandOutcome& outcome, const WorkingUnit& unit, const RoofChoice& roof);

// What the order asks of the window's place.
FitRules RulesFor(const PlacedWindow& window, const WindowOrder& order);

// Throws Error for a window with misfits, of which there is at least one.
[[noreturn]] void RefuseMisfits(const std::vector<std::string>& misfits);

}  // namespace teskarlt
