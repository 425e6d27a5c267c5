// WindowUnit.cpp - reads the unit of windows off their glass.
#include "teskarlt/drawing/WindowUnit.h"

#include <optional>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WindowShape.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

std::optional<WindowShape> ShapeIn(const dxf::Document& drawing, const DrawnWindow& window) {
  if (!window.isComplete || !EntityMismatch(window).empty()) return std::nullopt;
  try {
    return ShapeOf(drawing, window);
  } catch (const Error&) {
    return std::nullopt;  // it shows nothing any more
  }
}

}  // namespace

const DrawingUnit* UnitOfWindows(const dxf::Document& drawing) {
  const DrawingUnit* common = nullptr;
  for (const DrawnWindow& window : FindWindows(drawing, IN_DRAWING_UNITS)) {
    const std::optional<WindowShape> shape = ShapeIn(drawing, window);
    if (!shape || !shape->glassDepth) continue;
    const DrawingUnit* const unit = UnitNear(*shape->glassDepth / brevanta::GLASS_INSET);
    if (unit == nullptr) continue;
    if (common != nullptr && common != unit) return nullptr;
    common = unit;
  }
  return common;
}

}  // namespace teskarlt
