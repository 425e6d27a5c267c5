// RefitWindows.cpp - puts windows back onto roofs that have changed.
#include "teskarlt/windows/RefitWindows.h"

#include <cmath>
#include <optional>
#include <set>
#include <utility>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/LengthText.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/drawing/WindowShape.h"
#include "teskarlt/windows/ClosedLayers.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/WindowChoice.h"
#include "teskarlt/windows/WorkedDrawing.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;

// A floor is no roof for a window that had a pitch, nor is a roof that falls the other way.
bool CanFollow(const Plane& plane, const geometry::Vec3& normal) {
  constexpr double FLAT = 1.0;  // degrees
  if (std::hypot(normal.x, normal.y) <= geometry::Sine(geometry::DegToRad(FLAT))) return true;
  return Pitch(plane) > FLAT && plane.normal.x * normal.x + plane.normal.y * normal.y > 0.0;
}

// A face over or under a window's place.
struct NearFace {
  const RoofFace* face = nullptr;  // null when there is none
  double height = 0.0;             // over the place, in drawing units; negative under it
};

// Of the faces that a roof with that normal can have become, the one nearest in height.
NearFace NearestFace(const RecordPoint& place, const geometry::Vec3& normal, const Roofs& roofs) {
  NearFace nearest;
  for (const FaceOver& over : roofs.FacesAt(place.x, place.y)) {
    if (!over.surface->isPlanar || !CanFollow(over.surface->plane, normal)) continue;
    const double difference = over.height - place.z;
    if (nearest.face == nullptr || std::abs(difference) < std::abs(nearest.height))
      nearest = {over.face, difference};
  }
  return nearest;
}

// What becomes of a window: it goes onto the face; or it stays, for a reason or because it fits.
struct Verdict {
  const RoofFace* face = nullptr;
  std::string reasonToStay;
};

class Refitter {
 public:
  Refitter(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit,
           const RefitOrder& order)
      : order_(order), module_(module), work_(drawing, unit), report_{work_.unit, {}, {}, {}, 0} {}

  RefitReport Run() {
    for (const DrawnWindow* const window : Chosen()) {
      try {
        Refit(*window);
      } catch (const Error& error) {
        report_.problems.push_back({window->number, error.what()});
      }
    }
    FindMisfits();
    return report_;
  }

 private:
  std::vector<const DrawnWindow*> Chosen() const {
    std::vector<const DrawnWindow*> chosen;
    if (order_.numbers.empty()) {
      for (const DrawnWindow& window : work_.windows)
        chosen.push_back(&window);
    }
    for (const int number : std::set<int>(order_.numbers.begin(), order_.numbers.end()))
      chosen.push_back(&ChooseWindow(work_.windows, work_.drawing.FileName(), number));
    return chosen;
  }

  void Refit(const DrawnWindow& window) {
    const WindowReading reading = ReadWindow(work_.drawing, window);
    if (!reading.obstacle.empty()) throw Error("it cannot be changed: " + reading.obstacle);
    const auto [face, reasonToStay] = VerdictOn(window, reading);
    if (!reasonToStay.empty()) {
      report_.staying.push_back({window.number, "it stays where it is: " + reasonToStay});
      return;
    }
    if (face == nullptr) {
      ++report_.fitting;
      return;
    }
    if (!reading.longText.empty()) throw Error("it cannot be changed: " + reading.longText);
    ChooseWindow(work_.windows, work_.drawing.FileName(), window.number);  // refuses copies
    if (!order_.isLockedToo) RefuseClosedLayers(work_.drawing, window);
    const CommandOutcome outcome = module_.Edit(work_.drawing, RequestFor(window, reading, *face));
    report_.refitted.push_back({reading.params, *outcome.confirmed, face->name, {}});
    moved_.insert(&window);
  }

  // Throws Error for a window that can neither stay nor go.
  Verdict VerdictOn(const DrawnWindow& window, const WindowReading& reading) const {
    const bool hasOwnSecondPlane = HasOwnSecondPlane(reading.params, work_.tolerance);
    if (hasOwnSecondPlane && FaceUnder(reading.params, work_.roofs) != nullptr) return {};
    const WindowShape shape = ShapeOf(work_.drawing, window);
    const double covered = hasOwnSecondPlane ? 0.0 : CoveredPart(shape.outline, work_.roofs);
    if (IsWhole(covered)) return {};
    if (covered > 0.0) {
      throw Error(
          WindowFit(work_.roofs).Misfits(reading.params, shape.outline, {.lengths = order_.lengths}).front() +
          "; move it or make it smaller");
    }
    const NearFace nearest = NearestFace(reading.params.storedPoint, shape.Normal(), work_.roofs);
    if (std::string reason = ReasonToStay(nearest); !reason.empty()) return {nullptr, std::move(reason)};
    if (hasOwnSecondPlane)
      throw Error("its roof was changed, and its second plane is not the roof's underside");
    return {nearest.face, {}};
  }

  // Empty where the face can have been the window's roof.
  std::string ReasonToStay(const NearFace& nearest) const {
    if (nearest.face == nullptr) return "no roof face that falls its way lies over or under its place";
    const SpokenUnit unit{static_cast<double>(work_.unit.perMetre), order_.lengths};
    const double distance = std::abs(nearest.height);
    if (distance <= order_.reach * unit.perMetre) return {};
    return fmt::format("the nearest roof face, {}, lies {} {} it, and --reach is {}", nearest.face->name,
                       LengthText(distance, unit), nearest.height > 0 ? "over" : "under",
                       LengthText(order_.reach, {1.0, order_.lengths}));
  }

  WindowRequest RequestFor(const DrawnWindow& window, const WindowReading& reading,
                           const RoofFace& face) const {
    WindowRequest request;
    request.unit = work_.unit;
    request.edited = reading.params;
    request.replaced = window.entities;
    request.parts = PartsByRole(work_.drawing, window);
    request.numbersInUse = &work_.numbers;
    request.markOf = [&](const brevanta::WindowParams&) { return window.mark; };
    request.point = {reading.params.storedPoint.x, reading.params.storedPoint.y};
    if (order_.keeps == RefitKeeps::Height)
      request.answers["lowerEdgeHeight"] = fmt::format("{}", reading.params.lowerEdgeHeight);
    PutRoof(OnFace(face, work_.roofs), request);
    return request;
  }

  // What the windows overlap in their new places.
  void FindMisfits() {
    WindowFit fit(work_.roofs);
    for (const DrawnWindow& window : work_.windows) {
      const std::optional<Outline> outline =
          moved_.contains(&window) ? std::nullopt : DrawnOutline(work_.drawing, window);
      if (outline) fit.Add(window.number, *outline);
    }
    for (Refitted& window : report_.refitted) {
      const Outline outline = OutlineOf(window.after);
      window.misfits =
          fit.Misfits(window.after, outline, {.clearance = order_.clearance, .lengths = order_.lengths});
      fit.Add(window.after.markerValue, outline);
    }
  }

  const RefitOrder& order_;
  const WindowModule& module_;
  const WorkedDrawing work_;
  std::set<const DrawnWindow*> moved_;
  RefitReport report_;
};

}  // namespace

double Shift(const Refitted& window) {
  const RecordPoint& a = window.before.storedPoint;
  const RecordPoint& b = window.after.storedPoint;
  return std::hypot(b.x - a.x, b.y - a.y) / window.after.unitFactor;
}

double Rise(const Refitted& window) {
  return (window.after.storedPoint.z - window.before.storedPoint.z) / window.after.unitFactor;
}

RefitReport RefitWindows(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit,
                         const RefitOrder& order) {
  return Refitter(module, drawing, unit, order).Run();
}

}  // namespace teskarlt
