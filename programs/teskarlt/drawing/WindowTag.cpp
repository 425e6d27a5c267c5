// WindowTag.cpp - reads the tags of windows back from the extended data of their entities.
#include "teskarlt/drawing/WindowTag.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>

#include "teskarlt/drawing/PlanOutline.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodes.h"

namespace teskarlt {

namespace {

using geometry::Vec3;

constexpr double SAME_PLACE_OF_TAG = 1e-3;  // of the text's height
constexpr auto LAST_ROLE = static_cast<std::int64_t>(TagRole::LeftEdge);

// What the extended data of an entity says of its tag.
struct TagData {
  std::optional<std::int64_t> role;
  std::optional<std::int64_t> number;
  std::array<std::optional<double>, 3> put;

  bool IsComplete() const { return role && number && put[0] && put[1] && put[2]; }
};

std::string_view TypeOf(TagRole role) {
  if (role == TagRole::Text) return dxf::TYPE_TEXT;
  return role == TagRole::Circle ? dxf::TYPE_CIRCLE : dxf::TYPE_LINE;
}

void Take(const dxf::Tag& tag, TagData& data) {
  if (tag.code == dxf::CODE_XDATA_INTEGER16) data.role = dxf::ParseInteger(tag.value);
  if (tag.code == dxf::CODE_XDATA_INTEGER32) data.number = dxf::ParseInteger(tag.value);
  for (std::size_t axis = 0; axis < data.put.size(); ++axis) {
    if (tag.code == dxf::CODE_XDATA_POINT + static_cast<int>(axis) * dxf::Y_DISTANCE)
      data.put[axis] = dxf::ParseReal(tag.value);
  }
}

TagData ReadData(const dxf::Document& drawing, const dxf::Entity& entity) {
  TagData data;
  bool isOurs = false;
  dxf::TagReader reader = drawing.Reader(entity);
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_XDATA_APPLICATION) {
      isOurs = dxf::SameName(dxf::Trimmed(tag.value), TAG_APPLICATION);
    } else if (isOurs) {
      Take(tag, data);
    }
  }
  return data;
}

// What tells tags apart: number and place.
using TagKey = std::tuple<std::int32_t, double, double, double>;

struct LoosePart {
  TagPart part;
  std::int32_t number;
  Vec3 put;

  TagKey Key() const { return {number, put.x, put.y, put.z}; }
};

// Nothing for an entity that is no part of a tag, or not any more what it was in it.
std::optional<LoosePart> PartOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  if (entity.text.find(TAG_APPLICATION) == std::string_view::npos) return std::nullopt;
  const TagData data = ReadData(drawing, entity);
  if (!data.IsComplete() || *data.role < 0 || *data.role > LAST_ROLE) return std::nullopt;
  const auto role = static_cast<TagRole>(*data.role);
  if (!dxf::SameName(entity.type, TypeOf(role))) return std::nullopt;
  return LoosePart{
      {role, &entity}, static_cast<std::int32_t>(*data.number), {*data.put[0], *data.put[1], *data.put[2]}};
}

WindowTag TagWithText(const dxf::Document& drawing, const LoosePart& text) {
  const dxf::TagList tags = drawing.TagLists(text.part.entity->text).front();
  return {.number = text.number,
          .text = tags.Text(dxf::CODE_TEXT_CONTENT),
          .height = tags.Real(dxf::CODE_TEXT_HEIGHT),
          .place = tags.Point(dxf::CODE_TEXT_ALIGNMENT_POINT, tags.Point(dxf::CODE_TEXT_POINT)),
          .put = text.put,
          .parts = {text.part}};
}

void Join(const dxf::Document& drawing, const LoosePart& loose, WindowTag& tag) {
  tag.parts.push_back(loose.part);
  if (loose.part.role == TagRole::Leader)
    tag.leaderEnd = drawing.TagLists(loose.part.entity->text).front().Point(dxf::CODE_LINE_END);
}

}  // namespace

bool WindowTag::IsMoved() const {
  return PlanDistance(place, put) > SAME_PLACE_OF_TAG * height;
}

TagShape WindowTag::Shape() const {
  const auto has = [&](TagRole role) {
    return std::any_of(parts.begin(), parts.end(), [&](const TagPart& part) { return part.role == role; });
  };
  if (has(TagRole::Circle)) return TagShape::Circle;
  return has(TagRole::LowerEdge) ? TagShape::Box : TagShape::None;
}

std::vector<WindowTag> FindWindowTags(const dxf::Document& drawing) {
  std::vector<WindowTag> tags;
  std::vector<LoosePart> others;
  std::map<TagKey, std::vector<std::size_t>> tagsOf;
  for (const dxf::Entity& entity : drawing.Entities()) {
    const std::optional<LoosePart> part = PartOf(drawing, entity);
    if (!part) continue;
    if (part->part.role == TagRole::Text) {
      tagsOf[part->Key()].push_back(tags.size());
      tags.push_back(TagWithText(drawing, *part));
    } else {
      others.push_back(*part);
    }
  }
  for (const LoosePart& part : others) {
    std::vector<std::size_t>& candidates = tagsOf[part.Key()];
    if (candidates.empty()) {
      candidates.push_back(tags.size());
      tags.push_back({.number = part.number, .place = part.put, .put = part.put});
    }
    const Vec3 begin = drawing.TagLists(part.part.entity->text).front().Point(dxf::CODE_LINE_START);
    const std::size_t nearest =
        *std::min_element(candidates.begin(), candidates.end(), [&](std::size_t a, std::size_t b) {
          return PlanDistance(tags[a].place, begin) < PlanDistance(tags[b].place, begin);
        });
    Join(drawing, part, tags[nearest]);
  }
  return tags;
}

}  // namespace teskarlt
