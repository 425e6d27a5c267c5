// Record.cpp - reads records and finds the values among their tags.
#include "teskarlt/preview/Record.h"

#include <algorithm>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::preview {

namespace {

dxf::TagReader ValueReader(const dxf::Document& drawing) {
  return {drawing.Source(), {}};
}

}  // namespace

const dxf::Tag* Record::Find(int code) const {
  const auto found =
      std::find_if(tags_.begin(), tags_.end(), [&](const dxf::Tag& tag) { return tag.code == code; });
  return found == tags_.end() ? nullptr : &*found;
}

double Record::RealOf(const dxf::Tag& tag) const {
  return ValueReader(*drawing_).Real(tag);
}

std::int64_t Record::IntegerOf(const dxf::Tag& tag) const {
  return ValueReader(*drawing_).Integer(tag);
}

double Record::Real(int code, double otherwise) const {
  const dxf::Tag* const tag = Find(code);
  return tag == nullptr ? otherwise : RealOf(*tag);
}

std::int64_t Record::Integer(int code, std::int64_t otherwise) const {
  const dxf::Tag* const tag = Find(code);
  return tag == nullptr ? otherwise : IntegerOf(*tag);
}

std::string Record::Text(int code, const std::string& otherwise) const {
  const dxf::Tag* const tag = Find(code);
  return tag == nullptr ? otherwise : drawing_->Text(*tag);
}

geometry::Vec3 Record::Point(int code, const geometry::Vec3& otherwise) const {
  return {Real(code, otherwise.x), Real(code + dxf::Y_DISTANCE, otherwise.y),
          Real(code + dxf::Z_DISTANCE, otherwise.z)};
}

std::vector<double> Record::Reals(int code) const {
  std::vector<double> values;
  for (const dxf::Tag& tag : tags_) {
    if (tag.code == code) values.push_back(RealOf(tag));
  }
  return values;
}

std::vector<geometry::Vec3> Record::Points(int code) const {
  std::vector<geometry::Vec3> points;
  for (const dxf::Tag& tag : tags_) {
    if (tag.code == code) {
      points.push_back({RealOf(tag), 0, 0});
    } else if (!points.empty() && tag.code == code + dxf::Y_DISTANCE) {
      points.back().y = RealOf(tag);
    } else if (!points.empty() && tag.code == code + dxf::Z_DISTANCE) {
      points.back().z = RealOf(tag);
    }
  }
  return points;
}

std::vector<Record> ReadRecords(const dxf::Document& drawing, std::string_view range) {
  std::vector<Record> records;
  bool isOwn = true;  // not within an embedded object
  dxf::TagReader reader(drawing.Source(), range);
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_TYPE) {
      records.emplace_back(drawing, dxf::Trimmed(tag.value));
      isOwn = true;
    } else if (tag.code == dxf::CODE_EMBEDDED_OBJECT) {
      isOwn = false;
    } else if (isOwn && !records.empty() && !dxf::IsExtendedData(tag.code)) {
      records.back().Add(tag);
    }
  }
  return records;
}

}  // namespace teskarlt::preview
