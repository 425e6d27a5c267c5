// WindowRecord.cpp - the record with which a window that stands in a drawing can be inserted again.
#include "teskarlt/drawing/WindowRecord.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vectors.h"
#include "inc/RecordPoints.h"
#include "teskarlt/Error.h"
#include "teskarlt/drawing/WindowShape.h"
#include "window/Choices.h"
#include "window/EdgeHeights.h"
#include "window/Outlines.h"
#include "window/RecordFields.h"
#include "window/SecondPlane.h"

namespace teskarlt {

namespace {

using brevanta::Outline;
using brevanta::WindowParams;
using geometry::Vec3;

constexpr double SAME_LENGTH = 0.001;  // metres
constexpr double SAME_ANGLE = 0.01;    // degrees
constexpr double ROUNDING = 1e6;       // sizes out of the geometry are whole micrometres

// The text as the record has it; one that is too long for the record stays out of it.
void StoreText(const dxf::Document& drawing, const std::string& utf8, const brevanta::RecordField& field,
               WindowReading& reading) {
  const std::string raw = drawing.Encode(utf8);
  if (raw.size() < field.size) {
    std::memcpy(FieldPlace(reading.params, field), raw.c_str(), raw.size() + 1);
    return;
  }
  reading.longText = fmt::format(
      "its {} takes {} bytes in this drawing, and an edit can keep {}; erase it and insert it anew",
      field.name, raw.size(), field.size - 1);
  reading.notes.push_back(reading.longText);
}

// The opening code of the mirrored window: hinges on the left without a word go to the right.
std::string MirroredCode(std::string_view code) {
  std::string mirrored;
  for (std::size_t at = 0; at < code.size(); ++at) {
    mirrored += code[at];
    if (code[at] != 'E') continue;
    bool hasSide = false;
    for (; at + 1 < code.size() && std::string_view("IOLR").find(code[at + 1]) != std::string_view::npos;
         ++at) {
      const char suffix = code[at + 1];
      hasSide = hasSide || suffix == 'L' || suffix == 'R';
      mirrored += suffix == 'L' ? 'R' : suffix == 'R' ? 'L' : suffix;
    }
    if (!hasSide) mirrored += 'R';
  }
  return mirrored;
}

// Puts what the shape says over what the description says.
class Reconciliation {
 public:
  Reconciliation(const WindowShape& shape, WindowReading& reading)
      : shape_(shape), reading_(reading), params_(reading.params), factor_(reading.params.unitFactor) {}

  void Run() {
    if (shape_.isMirrored) Mirror();
    TakeLength("width", "wide", shape_.width, params_.width);
    TakeLength("length", "long", shape_.length, params_.length);
    if (shape_.frameWidth) TakeLength("frameWidth", "framed", *shape_.frameWidth, params_.frameWidth);
    if (shape_.frameDepth) TakeLength("frameDepth", "deep", *shape_.frameDepth, params_.frameDepth);
    if (shape_.layerThickness)
      TakeLength("layerThickness", "deep in its roof", *shape_.layerThickness, params_.layerThickness);
    if (shape_.isLeaning) reading_.notes.emplace_back("its body is not square to its roof");
    TakeBody();
    TakePlane();
    TakePlace();
    TakeDefaults();
    if (reading_.obstacle.empty()) CheckReturn();
  }

 private:
  bool IsNear(const Vec3& a, const Vec3& b) const { return Distance(a, b) <= SAME_LENGTH * factor_; }

  void Mirror() {
    reading_.isMirrored = true;
    reading_.notes.emplace_back("it was mirrored");
    if (params_.widthAnchor != brevanta::ANCHOR_CENTRE) {
      params_.widthAnchor =
          params_.widthAnchor == brevanta::ANCHOR_START ? brevanta::ANCHOR_END : brevanta::ANCHOR_START;
      reading_.recovered.emplace_back("widthAnchor");
    }
    const std::string_view code = params_.openingCode;
    const std::string mirrored = MirroredCode(code);
    if (mirrored == code) return;
    if (mirrored.size() >= sizeof params_.openingCode) {
      reading_.obstacle = fmt::format("it was mirrored, and no opening code is long enough for its hinges");
      return;
    }
    std::memcpy(params_.openingCode, mirrored.c_str(), mirrored.size() + 1);
    reading_.recovered.emplace_back("openingCode");
  }

  // `drawn` in working units.
  void TakeLength(const char* field, const char* word, double drawn, double& described) {
    const double metres = std::round(drawn / factor_ * ROUNDING) / ROUNDING;
    if (std::abs(metres - described) <= SAME_LENGTH) return;
    reading_.notes.push_back(
        fmt::format("it is {:g} m {} in the drawing and {:g} m by its description", metres, word, described));
    described = metres;
    reading_.recovered.emplace_back(field);
  }

  void TakeBody() {
    params_.bodyAsFaces = shape_.frameDepth ? brevanta::BODY_AS_FACES : brevanta::LINES_ONLY;
    reading_.recovered.emplace_back("bodyAsFaces");
    if (shape_.skirtHeight) {
      params_.skirtHeight = std::round(*shape_.skirtHeight / factor_ * ROUNDING) / ROUNDING;
      reading_.recovered.emplace_back("skirtHeight");
    } else {
      reading_.defaults.emplace_back("skirtHeight");
    }
  }

  // Whether the window lies in the roof plane of its description. That plane is looked at where the window
  // is: its points may be far away.
  bool LiesOnRoof() const {
    const auto roof = brevanta::PlaneThrough(params_.roofPlanePoints);
    if (!roof || !shape_.keepsDirections) return false;
    return std::all_of(shape_.outline.begin(), shape_.outline.end(), [&](const Vec3& corner) {
      return std::abs(VecDot(roof->normal, Difference(corner, roof->corners[0]))) <= SAME_LENGTH * factor_;
    });
  }

  // The window lies in its roof's plane. Only a second plane of the user's own leaves the two apart.
  void TakePlane() {
    if (LiesOnRoof()) {
      TakePitch();
      if (UsesSecondPlane(params_)) TakeThickness();
      return;
    }
    if (HasOwnSecondPlane(params_, SAME_LENGTH * factor_)) {
      if (IsNear(Anchor(), ToVec3(params_.storedPoint))) return;
      reading_.obstacle = "it was moved, and its second plane is not the roof's underside";
      return;
    }
    TakePitch();
    const std::array<Vec3, 3> corners = PlaneOfWindow();
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const Vec3& corner = corners[i];
      params_.roofPlanePoints[i] = brevanta::ToRecordPoint(corner);
      params_.secondPlanePoints[i] =
          brevanta::ToRecordPoint(brevanta::OnUnderside(corner, shape_.Normal(), params_));
    }
    reading_.recovered.emplace_back("roofPlanePoints");
    reading_.recovered.emplace_back("secondPlanePoints");
  }

  // Three points of the plane that the window lies in now. Where that one is parallel to the plane of its
  // description, it is exactly so: on a nearly flat roof the last digits decide which way the window runs.
  std::array<Vec3, 3> PlaneOfWindow() const {
    std::array<Vec3, 3> corners = {shape_.outline[0], shape_.outline[1], shape_.outline[3]};
    const auto described = shape_.keepsDirections ? PlacingPlane(params_) : std::nullopt;
    if (!described) return corners;
    const auto heightOver = [&](const Vec3& p) { return PointOver(*described, ToLocal(*described, p)).z; };
    for (std::size_t i = 1; i < corners.size(); ++i)
      corners[i].z = corners[0].z + (heightOver(corners[i]) - heightOver(corners[0]));
    return corners;
  }

  // A window that would not come back where it stands is not changed.
  void CheckReturn() {
    constexpr double RETURNS = 0.01;  // metres; more than all that counts as rounding
    Outline again = brevanta::DrawnFrame(params_);
    if (shape_.isMirrored) std::reverse(again.begin(), again.end());
    for (std::size_t i = 0; i < again.size(); ++i) {
      if (Distance(again[i], shape_.outline[i]) <= RETURNS * factor_) continue;
      reading_.obstacle = "it lies as no window is drawn on its roof";
      return;
    }
  }

  void TakePitch() {
    const double pitch = shape_.Pitch();
    if (std::abs(pitch - params_.pitch) <= SAME_ANGLE) return;
    reading_.notes.push_back(fmt::format(
        "its pitch is {:.2f} degrees in the drawing and {:.2f} by its description", pitch, params_.pitch));
    reading_.recovered.emplace_back("pitch");
    params_.pitch = pitch;
  }

  // Of a scaled window the second plane still is the underside, of a thicker layer.
  void TakeThickness() {
    std::array<double, 3> depths{};
    for (std::size_t i = 0; i < depths.size(); ++i) {
      depths[i] =
          VecDot(shape_.Normal(), Difference(shape_.outline[0], ToVec3(params_.secondPlanePoints[i])));
    }
    const auto [least, most] = std::minmax_element(depths.begin(), depths.end());
    if (*most - *least > SAME_LENGTH * factor_ || *least <= 0) return;
    TakeLength("layerThickness", "deep in its roof", depths[0], params_.layerThickness);
  }

  // Where the window is anchored if it has no offset along the slope.
  Vec3 Anchor() const {
    const double before = brevanta::HalvesBeforeAnchor(params_) / 2.0;
    const double part = shape_.isMirrored ? 1.0 - before : before;
    const Vec3 onEdge = Moved(shape_.outline[0], shape_.Across(), part * shape_.width);
    return OnPlacingPlane(onEdge, shape_.Normal(), geometry::DegToRad(shape_.Pitch()), params_);
  }

  void TakePlace() {
    Vec3 anchor = Anchor();
    const Vec3 stored = ToVec3(params_.storedPoint);
    if (params_.roofBuildUp == brevanta::BUILD_UP_SLOPE_OFFSET) anchor = TakeSlopeOffset(anchor, stored);
    const Vec3 xAxis = shape_.Across();
    const double turned =
        std::atan2(shape_.isMirrored ? -xAxis.y : xAxis.y, shape_.isMirrored ? -xAxis.x : xAxis.x);
    const double rotation = turned < 0 ? turned + geometry::TWO_PI : turned;
    const bool isTurned = std::abs(std::remainder(rotation - params_.rotation, geometry::TWO_PI)) >
                          geometry::DegToRad(SAME_ANGLE);
    if (isTurned) {
      params_.rotation = rotation;
      reading_.recovered.emplace_back("rotation");
    }
    if (IsNear(anchor, stored)) return;
    reading_.notes.push_back(
        fmt::format("it stands {:g} m from the place in its description",
                    std::round(Distance(anchor, stored) / factor_ / SAME_LENGTH) * SAME_LENGTH));
    params_.storedPoint = brevanta::ToRecordPoint(anchor);
    reading_.recovered.emplace_back("storedPoint");
    params_.lowerEdgeHeight = anchor.z / factor_;
    reading_.recovered.emplace_back("lowerEdgeHeight");
  }

  // The offset is what lies between the anchor and the lower edge, where the anchor is still below the edge.
  Vec3 TakeSlopeOffset(const Vec3& edge, const Vec3& stored) {
    const double offset = VecDot(Difference(edge, stored), shape_.Up());
    if (IsNear(Moved(stored, shape_.Up(), offset), edge)) {
      params_.slopeOffset = std::round(offset / factor_ * ROUNDING) / ROUNDING;
      reading_.recovered.emplace_back("slopeOffset");
      return stored;
    }
    params_.slopeOffset = brevanta::DEFAULT_SLOPE_OFFSET;
    reading_.defaults.emplace_back("slopeOffset");
    return Moved(edge, shape_.Up(), -params_.slopeOffset * factor_);
  }

  void TakeDefaults() {
    if (params_.roofBuildUp != brevanta::BUILD_UP_SLOPE_OFFSET) {
      params_.slopeOffset = brevanta::DEFAULT_SLOPE_OFFSET;
      reading_.defaults.emplace_back("slopeOffset");
    }
    params_.placeByHeight = brevanta::PLACED_AT_POINT;  // the place says it
    params_.pickOffset = 0.0;
    reading_.defaults.insert(reading_.defaults.end(), {"placeByHeight", "pickOffset"});
    params_.upperEdgeHeight =
        brevanta::EdgeHeight(params_, brevanta::UPPER_FROM_LOWER, static_cast<int>(factor_)) / factor_;
    reading_.recovered.emplace_back("upperEdgeHeight");
  }

  const WindowShape& shape_;
  WindowReading& reading_;
  WindowParams& params_;
  double factor_;  // working units per metre
};

}  // namespace

WindowReading ReadWindow(const dxf::Document& drawing, const DrawnWindow& window) {
  WindowReading reading;
  reading.params = window.params;
  if (!window.isComplete) {
    reading.obstacle = "its description is damaged";
    return reading;
  }
  for (const DrawnText& drawn : DRAWN_TEXTS)
    StoreText(drawing, window.*drawn.text, *brevanta::FindRecordField(drawn.field), reading);
  reading.obstacle = EntityMismatch(window);
  if (!reading.obstacle.empty()) return reading;
  WindowReading described = reading;
  try {
    const WindowShape shape = ShapeOf(drawing, window);
    described.outline = reading.outline = shape.outline;
    Reconciliation(shape, reading).Run();
  } catch (const Error& error) {
    reading.obstacle = error.what();
  }
  if (reading.obstacle.empty()) return reading;
  described.obstacle = std::move(reading.obstacle);
  return described;
}

WindowReading ReadEditableWindow(const dxf::Document& drawing, const DrawnWindow& window) {
  WindowReading reading = ReadWindow(drawing, window);
  const std::string& reason = reading.obstacle.empty() ? reading.longText : reading.obstacle;
  if (!reason.empty()) throw Error(fmt::format("window {} cannot be changed: {}", window.number, reason));
  return reading;
}

std::optional<double> FallDirection(const brevanta::WindowParams& params) {
  constexpr double FLAT = 0.01;  // degrees
  constexpr double FULL_TURN = 360.0;
  if (params.pitch < FLAT) return std::nullopt;
  return std::fmod(geometry::RadToDeg(params.rotation) + 0.75 * FULL_TURN, FULL_TURN);
}

}  // namespace teskarlt
