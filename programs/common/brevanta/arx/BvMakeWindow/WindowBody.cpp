// WindowBody.cpp - the window's 3D body, made by lifting its outlines along the roof's normal.
#include "arx/BvMakeWindow/WindowBody.h"

#include <array>
#include <cmath>
#include <initializer_list>

#include "arx/BvMakeWindow/FaceOutput.h"
#include "arx/BvMakeWindow/OpeningSymbol.h"
#include "geometry/Trigonometry.h"
#include "window/Choices.h"
#include "window/Parts.h"

namespace brevanta {

namespace {

using Outline = std::array<GcGePoint3d, 4>;

constexpr EdgeFlags ALL_EDGES = {1, 1, 1, 1};
constexpr EdgeFlags RING_EDGES = {1, 0, 1, 0};  // hides the joints at the corners

Outline FirstFour(const Point3dArray& points) {
  return {points[0], points[1], points[2], points[3]};
}

// Writes the window's faces, if the record asks for faces.
struct BodyWriter {
  CbvMakeWindow& maker;

  // Four faces between two outlines: (a_k, a_k+1, b_k+1, b_k).
  void Between(const Outline& a, const Outline& b, const EdgeFlags& edges) const {
    for (std::size_t k = 0; k < 4; ++k) {
      const std::size_t next = (k + 1) % 4;
      Face({a[k], a[next], b[next], b[k]}, edges, NO_COLOUR);
    }
  }

  void Band(const Outline& lower, const Outline& upper) const { Between(lower, upper, ALL_EDGES); }
  void Ring(const Outline& outside, const Outline& inside) const { Between(outside, inside, RING_EDGES); }

  void Face(const Outline& corners, const EdgeFlags& edges, std::int32_t colour) const {
    if (maker.params->bodyAsFaces == BODY_AS_FACES) {
      WriteFace(maker, corners[0], corners[1], corners[2], corners[3], edges, colour);
    }
  }
};

// Shifts along the roof's normal.
struct Normal {
  double sine;
  double cosine;
  double side;

  void Lift(double distance, Outline& outline) const {
    Shift(-side * std::abs(distance * sine), std::abs(distance * cosine), outline);
  }
  void Sink(double distance, Outline& outline) const {
    Shift(side * std::abs(distance * sine), -std::abs(distance * cosine), outline);
  }

 private:
  static void Shift(double dy, double dz, Outline& outline) {
    for (GcGePoint3d& p : outline) {
      p.y += dy;
      p.z += dz;
    }
  }
};

// The frame's six points are those of the foot, but for
// entries 1 and 2, the input's corners, which nothing reads.
void RecordOutlines(CbvMakeWindow& maker, const Outline& innerFoot, const Outline& outerFoot,
                    const Point3dArray& outer) {
  maker.innerOutline.SetLength(0);
  for (const GcGePoint3d& p : innerFoot)
    maker.innerOutline.Append(p);
  maker.outerOutline.SetLength(0);
  for (const GcGePoint3d& p : {outerFoot[0], outer[1], outer[2], outerFoot[3], outerFoot[1], outerFoot[2]}) {
    maker.outerOutline.Append(p);
  }
}

}  // namespace

void MakeWindowBody(CbvMakeWindow& maker, const Point3dArray& outer, const Point3dArray& inner, double slope,
                    std::int16_t slopeSide) {
  const BodyWriter write{maker};
  const Normal normal{geometry::Sine(slope), geometry::Cosine(slope), static_cast<double>(slopeSide)};
  Outline outerFoot = FirstFour(outer);
  Outline innerFoot = FirstFour(inner);

  const double skirt = maker.Scaled(maker.params->skirtHeight);
  if (skirt > 0.0) {  // an outer wall only, on purpose
    Outline outerTop = outerFoot;
    normal.Lift(skirt, outerTop);
    write.Band(outerFoot, outerTop);
    outerFoot = outerTop;
    normal.Lift(skirt, innerFoot);
  }

  const double depth = maker.Scaled(maker.params->frameDepth);
  Outline outerTop = outerFoot;
  Outline innerTop = innerFoot;
  normal.Lift(depth, outerTop);
  normal.Lift(depth, innerTop);
  write.Band(outerFoot, outerTop);
  write.Band(innerFoot, innerTop);
  write.Ring(outerFoot, innerFoot);
  write.Ring(outerTop, innerTop);

  RecordOutlines(maker, innerFoot, outerFoot, outer);

  double inset = GLASS_INSET * maker.params->unitFactor;
  if (inset > depth) inset = depth / 2;
  normal.Sink(inset, innerTop);
  write.Face(innerTop, ALL_EDGES, GLASS_COLOUR);

  if (DrawsSymbol(*maker.params)) DrawOpeningSymbol(maker);
}

}  // namespace brevanta
