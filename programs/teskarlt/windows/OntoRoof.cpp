// OntoRoof.cpp - runs a command of the module on a roof.
#include "teskarlt/windows/OntoRoof.h"

#include <optional>
#include <string>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/SlopeReach.h"
#include "teskarlt/drawing/WindowFit.h"

namespace teskarlt {

namespace {

// The frame that would be drawn on the roof's plane without bounds; none where the dialog refuses that, too.
std::optional<Outline> FrameWithoutBounds(WindowRequest request, dxf::Document& drawing,
                                          const RunCommand& run) {
  request.facesNear = nullptr;
  const dxf::EditMark before = drawing.Mark();
  try {
    const CommandOutcome outcome = run(request);
    drawing.Rollback(before);
    return OutlineOf(*outcome.confirmed);
  } catch (const Error&) {
    return std::nullopt;
  }
}

// The highest roof with a slope under the point; null where there is none.
const RoofSurface* SlopedRoofUnder(const std::array<double, 2>& point, const Roofs& roofs) {
  const std::vector<FaceOver> faces = roofs.FacesAt(point[0], point[1]);
  const FaceOver* highest = nullptr;
  for (const FaceOver& over : faces) {
    const bool isSloped = over.surface->isPlanar && !IsFlat(FrameOf(over.surface->plane));
    if (isSloped && (highest == nullptr || over.height > highest->height)) highest = &over;
  }
  return highest == nullptr ? nullptr : highest->surface;
}

// Throws Error for a point on the flat top of a chimney, whose refusal says little of that.
void RefuseFlatTop(const WindowRequest& request, const RoofChoice& roof, const Roofs& roofs) {
  if (!request.point || !IsFlat(FrameOf(roof.surface->plane))) return;
  const RoofSurface* const sloped = SlopedRoofUnder(*request.point, roofs);
  if (sloped == nullptr) return;
  throw Error(
      fmt::format("the point lies on {}, which is flat: face {} of layer {}; --on {} takes the roof under it",
                  roof.surface->name, roof.face->name, roof.face->layer, sloped->name));
}

}  // namespace

CommandOutcome RunOntoRoof(const WindowRequest& request, const RoofChoice& roof, const Roofs& roofs,
                           dxf::Document& drawing, LengthStyle lengths, const RunCommand& run) {
  try {
    return run(request);
  } catch (const Error&) {
    if (roof.surface == nullptr || !request.facesNear) throw;
    RefuseFlatTop(request, roof, roofs);
    const std::optional<Outline> frame = FrameWithoutBounds(request, drawing, run);
    if (!frame) throw;
    const SurfaceOutline outline = OutlineOf(*roof.surface, roofs.Faces(), roofs.Tolerance());
    const SpokenUnit unit{static_cast<double>(request.unit.perMetre), lengths};
    const std::string passed = PassedEdges(*frame, outline, unit);
    if (passed.empty()) throw;
    throw Error(fmt::format("the window would leave the roof face: it {}", passed));
  }
}

}  // namespace teskarlt
