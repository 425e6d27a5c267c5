// ReadPlanNotes.cpp - the roofs and roof windows of a drawing for a plan of it.
#include "teskarlt/windows/ReadPlanNotes.h"

#include <unordered_map>
#include <unordered_set>

#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowTag.h"
#include "teskarlt/windows/Placing.h"
#include "teskarlt/windows/WindowListing.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

Vec3 InMetres(const Vec3& p, double perMetre) {
  return {p.x / perMetre, p.y / perMetre, p.z / perMetre};
}

plot::PlanRoof RoofOf(const RoofSurface& surface, const Roofs& roofs) {
  const RoofFace& face = roofs.Faces()[surface.faces.front()];
  const MeasuredRoof measured = MeasuredOn({}, {.face = &face, .surface = &surface}, roofs);
  const double perMetre = measured.perMetre;
  plot::PlanRoof roof{surface.name, Pitch(surface.plane), measured.frame, measured.rings,
                      *measured.eaves / perMetre};
  roof.frame.origin = InMetres(measured.frame.origin, perMetre);
  for (SlopeRing& ring : roof.rings) {
    for (SlopePoint& corner : ring)
      corner = {corner.across / perMetre, corner.up / perMetre};
  }
  return roof;
}

// The window as it is drawn, in metres, without its roof.
plot::PlanWindow WindowOf(const ListedWindow& listed) {
  plot::PlanWindow window{ShownMark(listed.window), listed.window.number, *listed.reading.outline, {}};
  for (Vec3& corner : window.frame)
    corner = InMetres(corner, listed.reading.params.unitFactor);
  return window;
}

// The numbers of the windows whose marks the drawing shows.
std::unordered_set<std::int32_t> TaggedWindows(const dxf::Document& drawing) {
  std::unordered_set<std::int32_t> numbers;
  for (const WindowTag& tag : FindWindowTags(drawing))
    if (tag.HasText()) numbers.insert(tag.number);
  return numbers;
}

}  // namespace

plot::PlanNotes ReadPlanNotes(const dxf::Document& drawing, const DrawingUnit& unit) {
  const Roofs roofs = FindRoofs(drawing, unit.working);
  plot::PlanNotes notes;
  std::unordered_map<const RoofSurface*, std::size_t> indices;
  for (const RoofSurface& surface : roofs.Surfaces()) {
    if (!surface.isPlanar || IsFlat(surface)) continue;
    indices.emplace(&surface, notes.roofs.size());
    notes.roofs.push_back(RoofOf(surface, roofs));
  }
  const std::unordered_set<std::int32_t> tagged = TaggedWindows(drawing);
  for (const ListedWindow& listed : ListWindows(drawing, unit.working)) {
    if (!listed.reading.outline) continue;
    notes.windows.push_back(WindowOf(listed));
    notes.windows.back().hasTag = tagged.contains(listed.window.number);
    const RoofFace* const face = FaceUnder(listed.reading.params, roofs);
    const auto roof = face == nullptr ? indices.end() : indices.find(roofs.SurfaceOf(*face));
    if (roof != indices.end()) notes.windows.back().roof = roof->second;
  }
  return notes;
}

}  // namespace teskarlt
