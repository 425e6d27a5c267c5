// TagDrawing.h - the entities of a window's tag: its text, what is around it, and the leader to the window.
#pragma once

#include <cstdint>
#include <string>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/WindowTag.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// A tag as it is to be drawn. Drawing coordinates and units.
struct TagPlan {
  std::int32_t number = 0;  // of its window
  std::string text = {};    // UTF-8
  double height = 0;        // of the text
  TagShape shape = TagShape::Circle;
  geometry::Vec3 place = {};      // the middle of the text
  geometry::Vec3 put = {};        // the same, but for a tag that somebody moved
  geometry::Vec3 leaderEnd = {};  // at the window
};

// From the middle of a tag to its sides, drawing units.
struct TagExtent {
  double across;
  double up;
};

// How much room the tag takes, by the usual width of letters.
TagExtent ExtentOf(const TagPlan& plan);

// The layer on which tags are drawn.
inline constexpr const char* TAG_LAYER = "ROOF_WINDOW_TAGS";

// The tag as it stands in the drawing.
TagPlan PlanAsDrawn(const WindowTag& tag);

// The name of the drawing's current style of texts, as it stands in the file; empty where it has no such
// style.
std::string CurrentTextStyle(const dxf::Document& drawing);

// Draws the tag on that layer with that style of texts, in a group of its own where the version has groups.
// Throws Error for a text that the drawing cannot hold.
void DrawTag(const TagPlan& plan, const std::string& style, dxf::Document& drawing);

// Gives a tag of the drawing, of the same height and shape, text and places of the plan; what else was done
// to its entities stays, and those that somebody erased stay away.
void RedrawTag(const WindowTag& tag, const TagPlan& plan, dxf::Document& drawing);

// Takes the tag out of the drawing.
void RemoveTag(const WindowTag& tag, dxf::Document& drawing);

}  // namespace teskarlt
