// TagList.cpp - divides a range of tags into lists and finds values among them.
#include "teskarlt/dxf/read/TagList.h"

#include <algorithm>

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {

const Tag* TagList::Find(int code) const {
  const auto found =
      std::find_if(tags_.begin(), tags_.end(), [&](const Tag& tag) { return tag.code == code; });
  return found == tags_.end() ? nullptr : &*found;
}

double TagList::RealOf(const Tag& tag) const {
  return TagReader(*source_, {}).Real(tag);
}

std::int64_t TagList::IntegerOf(const Tag& tag) const {
  return TagReader(*source_, {}).Integer(tag);
}

double TagList::Real(int code, double otherwise) const {
  const Tag* const tag = Find(code);
  return tag == nullptr ? otherwise : RealOf(*tag);
}

std::int64_t TagList::Integer(int code, std::int64_t otherwise) const {
  const Tag* const tag = Find(code);
  return tag == nullptr ? otherwise : IntegerOf(*tag);
}

std::string TagList::Text(int code, std::string_view otherwise) const {
  const Tag* const tag = Find(code);
  return tag == nullptr ? std::string(otherwise) : codec_->Decode(tag->value);
}

geometry::Vec3 TagList::Point(int code, const geometry::Vec3& otherwise) const {
  return {Real(code, otherwise.x), Real(code + Y_DISTANCE, otherwise.y),
          Real(code + Z_DISTANCE, otherwise.z)};
}

bool TagList::HasPoint(int code) const {
  return Has(code) || Has(code + Y_DISTANCE) || Has(code + Z_DISTANCE);
}

std::optional<std::int64_t> TagList::ReadableInteger(int code) const {
  const Tag* const tag = Find(code);
  return tag == nullptr ? std::nullopt : ParseInteger(tag->value);
}

std::vector<double> TagList::Reals(int code) const {
  std::vector<double> values;
  for (const Tag& tag : tags_) {
    if (tag.code == code) values.push_back(RealOf(tag));
  }
  return values;
}

std::vector<geometry::Vec3> TagList::Points(int code) const {
  std::vector<geometry::Vec3> points;
  for (const Tag& tag : tags_) {
    if (tag.code == code) {
      points.push_back({RealOf(tag), 0, 0});
    } else if (!points.empty() && tag.code == code + Y_DISTANCE) {
      points.back().y = RealOf(tag);
    } else if (!points.empty() && tag.code == code + Z_DISTANCE) {
      points.back().z = RealOf(tag);
    }
  }
  return points;
}

std::vector<TagList> ReadTagLists(const SourceText& source, const TextCodec& codec, std::string_view range) {
  std::vector<TagList> lists;
  bool isOwn = true;  // not within an embedded object
  TagReader reader(source, range);
  for (Tag tag; reader.Next(tag);) {
    if (tag.code == CODE_TYPE) {
      lists.emplace_back(source, codec, Trimmed(tag.value));
      isOwn = true;
    } else if (tag.code == CODE_EMBEDDED_OBJECT) {
      isOwn = false;
    } else if (isOwn && !lists.empty() && !IsExtendedData(tag.code)) {
      lists.back().Add(tag);
    }
  }
  return lists;
}

}  // namespace teskarlt::dxf
