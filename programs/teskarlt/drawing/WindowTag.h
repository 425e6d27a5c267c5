// WindowTag.h - the tags of windows that a drawing holds: marks beside their windows in the plan.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Application of the extended data that each entity of a tag carries: what it is in the tag (1070), the
// number of the window (1071), and the place at which the tag was put (1010).
inline constexpr const char* TAG_APPLICATION = "TK_LT_TAG";

// What an entity is in its tag; the numbers stand in drawings.
enum class TagRole : std::int16_t { Text, Leader, Circle, LowerEdge, RightEdge, UpperEdge, LeftEdge };

// What a tag has around its text.
enum class TagShape { Circle, Box, None };

struct TagPart {
  TagRole role;
  const dxf::Entity* entity;
};

// Drawing coordinates and units.
struct WindowTag {
  std::int32_t number = 0;                       // of its window
  std::string text = {};                         // UTF-8
  double height = 0;                             // of the text; 0 for a tag that has lost its text
  geometry::Vec3 place = {};                     // the middle of the text
  geometry::Vec3 put = {};                       // where that was when the tag was drawn
  std::optional<geometry::Vec3> leaderEnd = {};  // at the window; none without a leader
  std::vector<TagPart> parts = {};               // at most one of a role, but in copies by other programs

  bool HasText() const { return height > 0; }
  // Whether somebody put it elsewhere since it was drawn.
  bool IsMoved() const;
  // What of it is left by now.
  TagShape Shape() const;
};

// The tags in the order of their texts, and behind them those without texts. Tags that another program copied
// are told apart by where they lie. The drawing must outlive the result.
std::vector<WindowTag> FindWindowTags(const dxf::Document& drawing);

}  // namespace teskarlt
