// WindowShape.cpp - reads a window's shape from the ends of its lines and the corners of its faces.
#include "teskarlt/drawing/WindowShape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "geometry/Matrix4.h"
#include "geometry/RoofPlane.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/WindowParts.h"
#include "window/Choices.h"
#include "window/Outlines.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

using geometry::Vec3;
using Corners = PartCorners;

constexpr double SAME_DIRECTION = 1e-4;  // sine of the angle
constexpr double STEEPEST = 1e-6;        // least upward part of a roof's normal

// Reads the shape of one window.
class ShapeReader {
 public:
  ShapeReader(const dxf::Document& drawing, const DrawnWindow& window)
      : window_(window), tolerance_(SAME_PLACE * window.params.unitFactor) {
    WindowParts parts = ReadParts(drawing, window.entities, window.unit);
    PutInOrder(HasSymbol(), tolerance_, parts);
    lines_ = std::move(parts.lines);
    faces_ = std::move(parts.faces);
    skirtFaces_ = faces_.size() == brevanta::FACES_WITH_SKIRT ? brevanta::FACES_OF_SKIRT : 0;
  }

  WindowShape Read() const {
    WindowShape shape{};
    shape.outline = HasSymbol() ? OutlineOfSymbol() : faces_.empty() ? OutlineOfOpening() : OutlineOfBody();
    CheckRectangle(shape.outline);
    shape.length = Distance(shape.outline[0], shape.outline[1]);
    shape.width = Distance(shape.outline[0], shape.outline[3]);
    CheckStand(shape);
    TakeSide(shape);
    TakeBody(shape);
    TakeFrame(shape);
    CheckParts(shape);
    return shape;
  }

 private:
  [[noreturn]] static void Fail(const std::string& what) { throw Error(what); }
  bool HasSymbol() const { return DrawsSymbol(window_.params); }
  bool IsNear(const Vec3& a, const Vec3& b) const { return Distance(a, b) <= tolerance_; }

  // Four lines, each from the end of the one before it.
  Corners Chain(std::size_t first) const {
    Corners corners{};
    for (std::size_t k = 0; k < corners.size(); ++k) {
      corners[k] = lines_[first + k][0];
      if (!IsNear(lines_[first + k][1], lines_[first + (k + 1) % corners.size()][0])) FailApart();
    }
    return corners;
  }

  [[noreturn]] static void FailApart() { Fail("its parts were moved apart"); }

  Corners OutlineOfSymbol() const {
    const Corners outline = Chain(lines_.size() - brevanta::LINES_OF_OUTLINE);
    if (!faces_.empty() && !std::equal(outline.begin(), outline.end(), OutlineOfBody().begin(),
                                       [&](const Vec3& a, const Vec3& b) { return IsNear(a, b); }))
      FailApart();
    return outline;
  }

  // The first faces stand on it.
  Corners OutlineOfBody() const {
    Corners outline{};
    for (std::size_t k = 0; k < outline.size(); ++k)
      outline[k] = faces_[k][0];
    return outline;
  }

  // Only the upper edge is drawn; the opening tells the direction and, with what the roof's layer adds to it,
  // the length.
  Corners OutlineOfOpening() const {
    const Corners opening = Chain(0);
    const Corners& topEdge = lines_[brevanta::UPPER_EDGE_OF_FRAME];
    const Vec3 up = Unit(Difference(opening[1], opening[0]));
    const double length = Distance(opening[0], opening[1]) - Lengthening(up);
    return {Moved(topEdge[0], up, -length), topEdge[0], topEdge[1], Moved(topEdge[1], up, -length)};
  }

  // How far the opening lies below the window, square to the roof.
  double Depth() const {
    const Corners& topEdge = lines_[brevanta::UPPER_EDGE_OF_FRAME];
    const Vec3 normal = Cross(Difference(lines_[0][1], lines_[0][0]), Difference(topEdge[1], topEdge[0]));
    return std::abs(geometry::VecDot(Unit(normal), Difference(topEdge[0], lines_[0][0])));
  }

  // How much longer than the window its opening is.
  double Lengthening(const Vec3& up) const {
    const double tangent = up.z / std::hypot(up.x, up.y);
    const auto [lower, upper] = brevanta::RevealLengthsOf(window_.params, Depth(), tangent);
    return lower + (tangent != 0.0 ? upper : 0.0);
  }

  void CheckRectangle(const Corners& outline) const {
    const Vec3 up = Difference(outline[1], outline[0]);
    const Vec3 across = Difference(outline[3], outline[0]);
    const double size = geometry::VecLength(up) * geometry::VecLength(across);
    if (!(size > 0.0)) Fail("it was squeezed to a line");
    if (!IsNear(outline[2], Sum(outline[1], across)) ||
        std::abs(geometry::VecDot(up, across)) > SAME_DIRECTION * size)
      Fail("it is no rectangle any more");
  }

  static void CheckStand(const WindowShape& shape) {
    const Vec3 across = shape.Across();
    if (shape.Normal().z < STEEPEST) Fail("it stands upright, as in a wall");
    if (std::abs(across.z) > SAME_DIRECTION) Fail("its lower edge is not horizontal any more");
    if (shape.Up().z < -SAME_DIRECTION) Fail("it stands upside down");
  }

  // Which way the module would lay the window into the plane of its description, or into its own where it has
  // left that one. Handedness does not tell a mirrored window: on some nearly flat roofs the module lays
  // windows the other way round.
  void TakeSide(WindowShape& shape) const {
    const Corners& outline = shape.outline;
    const auto described = brevanta::PlacingPlane(window_.params);
    shape.keepsDirections = described && LiesAlong(*described, shape);
    const auto plane =
        shape.keepsDirections ? described : geometry::RoofPlaneThrough(outline[0], outline[1], outline[3]);
    if (!plane) Fail("it was squeezed to a line");
    if (!LiesAlong(*plane, shape))
      Fail("it lies turned on a flat roof, where a window lies along the x axis");
    shape.isMirrored = geometry::VecDot(shape.Across(), InWorld(*plane, {1, 0, 0})) < 0;
  }

  static Vec3 InWorld(const geometry::RoofPlane& plane, const Vec3& direction) {
    Vec3 world{};
    MatTransformVector(plane.localToWorld, direction, world);
    return world;
  }

  // Whether the window's edges run as the module draws them in that plane, mirrored or not.
  static bool LiesAlong(const geometry::RoofPlane& plane, const WindowShape& shape) {
    const brevanta::LocalSlope slope = brevanta::SlopeOf(plane);
    const Vec3 up =
        InWorld(plane, {0, slope.ySide * geometry::Cosine(slope.angle), geometry::Sine(slope.angle)});
    const Vec3 across = Cross(InWorld(plane, {1, 0, 0}), shape.Across());
    return Distance(up, shape.Up()) <= SAME_DIRECTION && geometry::VecLength(across) <= SAME_DIRECTION;
  }

  // Skirt and frame, by the walls that stand on the outline.
  void TakeBody(WindowShape& shape) const {
    const Vec3 normal = shape.Normal();
    if (!HasSymbol()) shape.layerThickness = Depth();
    if (faces_.empty()) {
      if (!HasSymbol()) return;
      const Vec3 rise = Difference(lines_[0][1], shape.outline[0]);  // the symbol lies where the frame begins
      shape.skirtHeight = geometry::VecDot(normal, rise);
      shape.isLeaning = Leans(rise, *shape.skirtHeight);
      return;
    }
    const Corners& wall = faces_[skirtFaces_];  // from the foot up
    const Vec3 rise = Difference(wall[3], wall[0]);
    shape.frameDepth = geometry::VecDot(normal, rise);
    shape.skirtHeight = geometry::VecDot(normal, Difference(wall[0], shape.outline[0]));
    if (*shape.frameDepth < 0) Fail("it stands upside down");
    shape.glassDepth = geometry::VecDot(normal, Difference(wall[3], faces_.back()[0]));
    shape.isLeaning = Leans(rise, *shape.frameDepth);
  }

  bool Leans(const Vec3& rise, double height) const {
    constexpr double VISIBLE = 0.1;  // of the tolerance
    return geometry::VecLength(rise) - height > VISIBLE * tolerance_;
  }

  // Nothing of a window reaches beyond its frame, and its lines lie where the frame begins.
  void CheckParts(const WindowShape& shape) const {
    if (shape.isLeaning) return;
    const auto isWithin = [&](const Vec3& point, double height) {
      const Vec3 offset = Difference(point, shape.outline[0]);
      const auto reaches = [&](const Vec3& direction, double most) {
        const double along = geometry::VecDot(direction, offset);
        return along >= -tolerance_ && along <= most + tolerance_;
      };
      return reaches(shape.Across(), shape.width) && reaches(shape.Up(), shape.length) &&
             reaches(shape.Normal(), height);
    };
    const double skirt = shape.skirtHeight.value_or(0.0);
    for (const Corners& face : faces_) {
      for (const Vec3& corner : face)
        if (!isWithin(corner, skirt + shape.frameDepth.value_or(0.0))) FailApart();
    }
    if (!HasSymbol()) return;
    for (const Corners& line : lines_)
      if (!isWithin(line[0], skirt) || !isWithin(line[1], skirt)) FailApart();
  }

  // From the frame's corner to the sash's, along both edges.
  void TakeFrame(WindowShape& shape) const {
    if (!HasSymbol() && faces_.empty()) return;
    const Vec3& corner = HasSymbol() ? lines_[brevanta::FIRST_LINE_OF_SASH][0]
                                     : faces_[skirtFaces_ + brevanta::FIRST_FACE_OF_RING][3];
    const Vec3 diagonal = Difference(corner, shape.outline[0]);
    const double side = geometry::VecDot(diagonal, shape.Across());
    const double bottom = geometry::VecDot(diagonal, shape.Up());
    if (std::abs(side - bottom) <= tolerance_) shape.frameWidth = (side + bottom) / 2;
  }

  const DrawnWindow& window_;
  double tolerance_;  // working units
  std::vector<Corners> lines_;
  std::vector<Corners> faces_;
  std::size_t skirtFaces_ = 0;
};

}  // namespace

Vec3 WindowShape::Across() const {
  return Unit(Difference(outline[3], outline[0]));
}

Vec3 WindowShape::Up() const {
  return Unit(Difference(outline[1], outline[0]));
}

Vec3 WindowShape::Normal() const {
  const Vec3 normal = Cross(Across(), Up());
  return Unit(normal.z < 0 ? Scaled(normal, -1.0) : normal);
}

double WindowShape::Pitch() const {
  const Vec3 up = Up();
  return geometry::RadToDeg(std::atan2(up.z, std::hypot(up.x, up.y)));
}

WindowShape ShapeOf(const dxf::Document& drawing, const DrawnWindow& window) {
  return ShapeReader(drawing, window).Read();
}

}  // namespace teskarlt
