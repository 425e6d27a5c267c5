// WindowChanges.cpp - compares the records of one window field by field.
#include "teskarlt/windows/WindowChanges.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string_view>

#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "window/Choices.h"
#include "window/Description.h"
#include "window/SecondPlane.h"

namespace teskarlt {

namespace {

using brevanta::FieldKind;
using brevanta::RecordField;
using brevanta::RecordPoint;
using brevanta::WindowParams;
using geometry::Vec3;

constexpr double SAME = 1e-6;  // metres, degrees and radians

bool IsPlane(const RecordField& field) {
  return field.name == "roofPlanePoints" || field.name == "secondPlanePoints";
}

// `tolerance` in drawing units.
bool LieInOnePlane(std::span<const RecordPoint> before, std::span<const RecordPoint> after,
                   double tolerance) {
  const Vec3 origin = brevanta::ToVec3(before[0]);
  const Vec3 normal = Unit(Cross(Difference(brevanta::ToVec3(before[1]), origin),
                                 Difference(brevanta::ToVec3(before[2]), origin)));
  return std::all_of(after.begin(), after.end(), [&](const RecordPoint& point) {
    return std::abs(geometry::VecDot(normal, Difference(brevanta::ToVec3(point), origin))) <= tolerance;
  });
}

bool SamePoints(std::span<const RecordPoint> before, std::span<const RecordPoint> after, double tolerance) {
  return std::equal(before.begin(), before.end(), after.begin(),
                    [&](const RecordPoint& a, const RecordPoint& b) {
                      return Distance(brevanta::ToVec3(a), brevanta::ToVec3(b)) <= tolerance;
                    });
}

bool IsSame(const RecordField& field, const WindowParams& before, const WindowParams& after) {
  switch (field.kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      return std::abs(RealIn(before, field) - RealIn(after, field)) <= SAME;
    case FieldKind::Integer:
      return IntegerIn(before, field) == IntegerIn(after, field);
    case FieldKind::Text:
      return TextIn(before, field) == TextIn(after, field);
    case FieldKind::Points: {
      const double tolerance = SAME * after.unitFactor;
      const bool areEqual = SamePoints(PointsIn(before, field), PointsIn(after, field), tolerance);
      return areEqual ||
             (IsPlane(field) && LieInOnePlane(PointsIn(before, field), PointsIn(after, field), tolerance));
    }
  }
  return false;
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// The direction of pickOffset is read in the roof's frame and described in the drawing's, where it follows
// from the roof.
bool IsDirectionOfPick(const RecordField& field) {
  return field.name == "rotation";
}

bool Matters(const RecordField& field, const WindowParams& before, const WindowParams& after) {
  if (IsDirectionOfPick(field) || IsOneOf(field.name, {"placeByHeight", "pickOffset", "insertionPoint"}))
    return false;
  if (field.name == "secondPlanePoints") return !IsUnderside(after, SAME * after.unitFactor);
  return field.name != "slopeOffset" || before.roofBuildUp == brevanta::BUILD_UP_SLOPE_OFFSET ||
         after.roofBuildUp == brevanta::BUILD_UP_SLOPE_OFFSET;
}

}  // namespace

std::vector<const RecordField*> ChangedFields(const WindowParams& before, const WindowParams& after) {
  std::vector<const RecordField*> changed;
  std::copy_if(brevanta::LISTED_FIELDS.begin(), brevanta::LISTED_FIELDS.end(), std::back_inserter(changed),
               [&](const RecordField* field) {
                 return Matters(*field, before, after) && !IsSame(*field, before, after);
               });
  return changed;
}

bool DiffersFromDescription(const WindowParams& described, const WindowParams& after) {
  return std::any_of(brevanta::DESCRIPTION.begin(), brevanta::DESCRIPTION.end(),
                     [&](const brevanta::DescriptionItem& item) {
                       const RecordField* const field = item.Field();
                       return field != nullptr && field->kind != FieldKind::Text &&
                              !IsDirectionOfPick(*field) && !IsSame(*field, described, after);
                     });
}

}  // namespace teskarlt
