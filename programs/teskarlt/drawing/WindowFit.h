// WindowFit.h - whether windows fit: into their roof faces, and beside each other.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "inc/WindowParams.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/LengthText.h"
#include "teskarlt/drawing/Obstacles.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/SurfaceOutline.h"
#include "window/Outlines.h"

namespace teskarlt {

// Corners of a frame on its roof: from an end of the lower edge up, across and down. Drawing units.
using Outline = brevanta::Outline;

// The outline of a window as its entities show it; none where they show no window any more.
std::optional<Outline> DrawnOutline(const dxf::Document& drawing, const DrawnWindow& window);

// The outline of the frame that the module draws for a confirmed record, whose `storedPoint` is its place.
Outline OutlineOf(const brevanta::WindowParams& record);

// Two windows of one plane that cover the same piece of it. Edges may touch; both measures of the piece must
// be greater than `tolerance`, and the windows' planes no farther apart (drawing units).
bool Overlap(const Outline& a, const Outline& b, double tolerance);

// The face on which a window stands by its record; null when the roof is not there any more.
const RoofFace* FaceUnder(const brevanta::WindowParams& window, const Roofs& roofs);

// How much of the outline, from 0 to 1, lies on the surfaces in whose plane it lies, within the tolerance and
// what the surface itself lies off it.
double CoveredPart(const Outline& outline, const Roofs& roofs);

// How far those surfaces lie off the outline's plane within it, at its corners and at those of their faces;
// drawing units.
double UnevennessIn(const Outline& outline, const Roofs& roofs);

// True for the part of a window that lies on its roof but for what rounding leaves.
constexpr bool IsWhole(double part) {
  return part >= 1.0 - 1e-6;
}

constexpr double REFIT_REACH = 1.0;  // metres; a roof that is farther from a window was never its own

// What is asked of a window besides that nothing stands in its way.
struct FitRules {
  double clearance = 0.0;                     // metres to windows, edges of the roof and obstacles
  bool isPlaneGiven = false;                  // by the user: no roof face need lie in it
  std::optional<SurfaceOutline> bounds = {};  // of such a plane, where its edges are known
  LengthStyle lengths = LengthStyle::Metres;  // in which misfits are said
};

// The roofs of a drawing and the windows that stand on them.
class WindowFit {
 public:
  // The roofs must outlive the object.
  explicit WindowFit(const Roofs& roofs) : roofs_(roofs) {}

  // Adds the windows of the drawing but `except`, as far as their entities show an outline.
  void AddAll(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows,
              const DrawnWindow* except = nullptr);
  void Add(std::int32_t number, const Outline& outline);
  // Takes a window that was added with that outline out; does nothing when there is none.
  void Remove(std::int32_t number, const Outline& outline);

  // The outline of a window that was added; none when there is no such number.
  std::optional<Outline> OutlineOf(std::int32_t number) const;

  // What is wrong with a window that is to come or stands there, for people: "it passes the ridge by 0.120
  // m", "it overlaps window 3 by 0.200 m", "it meets face 2F of layer CHIMNEY by 0.310 m; the nearest free
  // place is 0.400 m to the left", which is told of places up to 10 m away. Of a window with a second plane
  // of its own only the windows that it overlaps are told; roof faces have no part in it where the drawing
  // has none.
  std::vector<std::string> Misfits(const brevanta::WindowParams& record, const Outline& outline,
                                   const FitRules& rules = {}) const;

 private:
  struct Place {
    std::int32_t number;
    Outline outline;
    double leastY;
    double mostY;
  };

  // Where a window is to be, in the spoken unit.
  struct Site {
    Outline outline;
    const RoofSurface* surface;  // in whose plane it lies; null for none
    Plane plane;                 // of the surface, or else of the outline
    double clearance;
    SpokenUnit unit;
  };

  using Sentences = std::vector<std::string>;

  Site SiteOf(const Outline& outline, double clearance, const SpokenUnit& unit) const;
  // The windows that cover a piece of the outline, by their numbers.
  std::vector<const Place*> PlacesOver(const Outline& outline) const;
  // Those that lie within that distance of the outline along x and y, and maybe some more.
  std::vector<const Place*> PlacesAround(const Outline& outline, double distance) const;
  Sentences WindowsMet(const Site& site) const;
  Sentences EdgesPassed(const Site& site) const;
  static Sentences BoundsPassed(const Site& site, const SurfaceOutline& bounds);
  const std::vector<Obstacle>& ObstaclesOf(const RoofSurface& surface) const;
  // Those of the surface; without one, those around the outline on its plane.
  std::vector<Obstacle> ObstaclesAt(const Site& site) const;
  // "; the nearest free place is 0.400 m to the left": the shortest way along the eaves or the slope to a
  // place on the roof where nothing is met; empty for none.
  std::string FreePlace(const Site& site, const std::vector<Obstacle>& obstacles) const;

  const Roofs& roofs_;
  std::multimap<double, Place> places_;                                              // by the least x
  double widest_ = 0.0;                                                              // along x
  mutable std::unordered_map<const RoofSurface*, std::vector<Obstacle>> obstacles_;  // as far as asked for
};

}  // namespace teskarlt
