// WindowUnit.cpp - reads the unit of windows off their glass.
#include "teskarlt/drawing/WindowUnit.h"

#include <cmath>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WindowShape.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

constexpr std::int32_t ANY_UNIT = 1;  // the glass is measured in drawing units
constexpr std::int32_t FACTORS[] = {1, 10, 100, 1000};
constexpr double SAME = 0.01;  // part of the depth

std::optional<WindowShape> ShapeIn(const dxf::Document& drawing, const DrawnWindow& window) {
  if (!window.isComplete || !EntityMismatch(window).empty()) return std::nullopt;
  try {
    return ShapeOf(drawing, window);
  } catch (const Error&) {
    return std::nullopt;  // it shows nothing any more
  }
}

std::optional<std::int32_t> FactorByGlass(double glassDepth) {
  for (const std::int32_t factor : FACTORS) {
    const double inset = brevanta::GLASS_INSET * factor;
    if (std::abs(glassDepth - inset) <= SAME * inset) return factor;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::int32_t> UnitFactorOfWindows(const dxf::Document& drawing) {
  std::optional<std::int32_t> common;
  for (const DrawnWindow& window : FindWindows(drawing, ANY_UNIT)) {
    const std::optional<WindowShape> shape = ShapeIn(drawing, window);
    const auto factor = shape && shape->glassDepth ? FactorByGlass(*shape->glassDepth) : std::nullopt;
    if (!factor) continue;
    if (common && common != factor) return std::nullopt;
    common = factor;
  }
  return common;
}

}  // namespace teskarlt
