// TagDrawing.cpp - writes the entities of tags.
#include "teskarlt/windows/TagDrawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/drawing/PlanLines.h"
#include "teskarlt/drawing/PlanOutline.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodes.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

// In heights of the text.
constexpr double CIRCLE_MARGIN = 0.3;
constexpr double BOX_MARGIN = 0.5;
constexpr double TEXT_MARGIN = 0.25;

constexpr std::string_view TEXT_MARKER = "AcDbText";

struct DrawnPart {
  TagRole role;
  std::vector<dxf::TypedTag> tags;
};

struct LineEnds {
  Vec3 start;
  Vec3 end;
};

dxf::Point PointOf(const Vec3& p) {
  return {p.x, p.y, p.z};
}

double TextWidth(const TagPlan& plan) {
  const auto isLetter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
  const auto letters = std::count_if(plan.text.begin(), plan.text.end(), isLetter);
  return static_cast<double>(letters) * LETTER_WIDTH * plan.height;
}

double RadiusOf(const TagPlan& plan) {
  return ExtentOf(plan).across;
}

Vec3 TextStart(const TagPlan& plan) {
  return {plan.place.x - TextWidth(plan) / 2, plan.place.y - plan.height / 2, plan.place.z};
}

// From the border of the tag to the window; without a length where the tag lies on the window's edge.
LineEnds LeaderOf(const TagPlan& plan) {
  const TagExtent extent = ExtentOf(plan);
  const double x = plan.leaderEnd.x - plan.place.x;
  const double y = plan.leaderEnd.y - plan.place.y;
  double share = 1.0;
  if (plan.shape == TagShape::Circle) {
    if (const double length = PlanDistance(plan.leaderEnd, plan.place); length > 0)
      share = extent.across / length;
  } else {
    if (x != 0) share = std::min(share, extent.across / std::abs(x));
    if (y != 0) share = std::min(share, extent.up / std::abs(y));
  }
  share = std::min(share, 1.0);
  return {{plan.place.x + share * x, plan.place.y + share * y, plan.place.z}, plan.leaderEnd};
}

// The edges of the box in the order of their roles.
std::array<LineEnds, 4> EdgesOf(const TagPlan& plan) {
  const TagExtent extent = ExtentOf(plan);
  const auto corner = [&](double across, double up) {
    return Vec3{plan.place.x + across * extent.across, plan.place.y + up * extent.up, plan.place.z};
  };
  const std::array corners = {corner(-1, -1), corner(1, -1), corner(1, 1), corner(-1, 1)};
  return {{{corners[0], corners[1]},
           {corners[1], corners[2]},
           {corners[2], corners[3]},
           {corners[3], corners[0]}}};
}

std::vector<dxf::TypedTag> Head(std::string_view type, std::string_view marker) {
  return {{dxf::CODE_TYPE, type},
          {dxf::CODE_SUBCLASS, std::string_view("AcDbEntity")},
          {dxf::CODE_LAYER, std::string_view(TAG_LAYER)},
          {dxf::CODE_SUBCLASS, marker}};
}

std::vector<dxf::TypedTag> LineTags(const LineEnds& line) {
  std::vector<dxf::TypedTag> tags = Head(dxf::TYPE_LINE, "AcDbLine");
  tags.push_back({dxf::CODE_LINE_START, PointOf(line.start)});
  tags.push_back({dxf::CODE_LINE_END, PointOf(line.end)});
  return tags;
}

std::vector<dxf::TypedTag> CircleTags(const TagPlan& plan) {
  std::vector<dxf::TypedTag> tags = Head(dxf::TYPE_CIRCLE, "AcDbCircle");
  tags.push_back({dxf::CODE_CIRCLE_CENTRE, PointOf(plan.place)});
  tags.push_back({dxf::CODE_CIRCLE_RADIUS, RadiusOf(plan)});
  return tags;
}

// Text and style as they stand in the file; no style is the usual one.
std::vector<dxf::TypedTag> TextTags(const TagPlan& plan, std::string_view text, std::string_view style) {
  std::vector<dxf::TypedTag> tags = Head(dxf::TYPE_TEXT, TEXT_MARKER);
  tags.push_back({dxf::CODE_TEXT_POINT, PointOf(TextStart(plan))});
  tags.push_back({dxf::CODE_TEXT_ALIGNMENT_POINT, PointOf(plan.place)});
  tags.push_back({dxf::CODE_TEXT_HEIGHT, plan.height});
  tags.push_back({dxf::CODE_TEXT_CONTENT, text});
  if (!style.empty()) tags.push_back({dxf::CODE_TEXT_STYLE, style});
  tags.push_back({dxf::CODE_TEXT_ACROSS, dxf::TEXT_CENTRE});
  tags.push_back({dxf::CODE_SUBCLASS, TEXT_MARKER});
  tags.push_back({dxf::CODE_TEXT_UP, dxf::TEXT_AT_MIDDLE});
  return tags;
}

void AddData(const TagPlan& plan, DrawnPart& part) {
  part.tags.push_back({dxf::CODE_XDATA_APPLICATION, std::string_view(TAG_APPLICATION)});
  part.tags.push_back({dxf::CODE_XDATA_INTEGER16, static_cast<std::int64_t>(part.role)});
  part.tags.push_back({dxf::CODE_XDATA_INTEGER32, std::int64_t{plan.number}});
  part.tags.push_back({dxf::CODE_XDATA_POINT, PointOf(plan.put)});
}

std::vector<DrawnPart> PartsOf(const TagPlan& plan, std::string_view text, std::string_view style) {
  std::vector<DrawnPart> parts;
  parts.push_back({TagRole::Text, TextTags(plan, text, style)});
  if (plan.shape == TagShape::Circle) parts.push_back({TagRole::Circle, CircleTags(plan)});
  if (plan.shape == TagShape::Box) {
    const std::array edges = EdgesOf(plan);
    const std::array roles = {TagRole::LowerEdge, TagRole::RightEdge, TagRole::UpperEdge, TagRole::LeftEdge};
    for (std::size_t i = 0; i < edges.size(); ++i)
      parts.push_back({roles[i], LineTags(edges[i])});
  }
  parts.push_back({TagRole::Leader, LineTags(LeaderOf(plan))});
  for (DrawnPart& part : parts)
    AddData(plan, part);
  return parts;
}

// Writes a value of the entity's own tags anew where it is another one.
void Replace(const dxf::Entity& entity, int code, const std::string& value, dxf::Document& drawing) {
  dxf::TagReader reader = drawing.Reader(entity);
  for (dxf::Tag tag; reader.Next(tag) && !dxf::IsExtendedData(tag.code);) {
    if (tag.code != code) continue;
    if (tag.value != value) drawing.ReplaceValue(tag, value);
    return;
  }
}

// The number with a point, as drawings have it.
std::string RealText(double value) {
  std::string text = fmt::format("{}", value);
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

}  // namespace

TagExtent ExtentOf(const TagPlan& plan) {
  const double width = TextWidth(plan);
  if (plan.shape == TagShape::Circle) {
    const double radius =
        std::sqrt(width * width + plan.height * plan.height) / 2 + CIRCLE_MARGIN * plan.height;
    return {radius, radius};
  }
  const double margin = (plan.shape == TagShape::Box ? BOX_MARGIN : TEXT_MARGIN) * plan.height;
  return {width / 2 + margin, plan.height / 2 + margin};
}

TagPlan PlanAsDrawn(const WindowTag& tag) {
  return {.number = tag.number,
          .text = tag.text,
          .height = tag.height,
          .shape = tag.Shape(),
          .place = tag.place,
          .put = tag.put,
          .leaderEnd = tag.leaderEnd.value_or(tag.place)};
}

std::string CurrentTextStyle(const dxf::Document& drawing) {
  const std::optional<dxf::Tag> current = drawing.HeaderVariable(dxf::VARIABLE_TEXT_STYLE);
  if (!current) return {};
  const std::string name = drawing.Text(*current);
  for (const dxf::TagList& entry : drawing.TagLists(drawing.SectionText(dxf::SECTION_TABLES))) {
    const bool isStyle = dxf::SameName(entry.Type(), dxf::TABLE_TEXT_STYLES);
    if (isStyle && dxf::SameName(entry.Text(dxf::CODE_NAME), name))
      return std::string(dxf::Trimmed(current->value));
  }
  return {};
}

void DrawTag(const TagPlan& plan, const std::string& style, dxf::Document& drawing) {
  const std::string text = drawing.Encode(plan.text);
  drawing.BeginGroup({});
  for (const DrawnPart& part : PartsOf(plan, text, style))
    drawing.AddEntity(part.tags);
  drawing.EndGroup(fmt::format("BREVANTA_TAG_{}", plan.number),
                   fmt::format("Tag of roof window {}", plan.number));
}

void RedrawTag(const WindowTag& tag, const TagPlan& plan, dxf::Document& drawing) {
  const std::string text = drawing.Encode(plan.text);
  for (const DrawnPart& part : PartsOf(plan, text, {})) {
    for (const auto& [role, entity] : tag.parts) {
      if (role != part.role) continue;
      drawing.Redraw(*entity, part.tags, dxf::LinetypeOnRedraw::Kept);
      if (role == TagRole::Text && text != drawing.Encode(tag.text))
        Replace(*entity, dxf::CODE_TEXT_CONTENT, text, drawing);
      if (role == TagRole::Circle)
        Replace(*entity, dxf::CODE_CIRCLE_RADIUS, RealText(RadiusOf(plan)), drawing);
    }
  }
}

void RemoveTag(const WindowTag& tag, dxf::Document& drawing) {
  for (const TagPart& part : tag.parts)
    drawing.RemoveEntity(*part.entity);
}

}  // namespace teskarlt
