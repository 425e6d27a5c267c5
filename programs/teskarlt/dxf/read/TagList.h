// TagList.h - the tags of one entity, vertex, block or table entry, and the values among them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Tag.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt::dxf {

// Views on the bytes of a drawing, which must outlive it, as its codec must. Codes may come in any order; the
// first tag of a code counts. Throws Error with the line for a value that is malformed.
class TagList {
 public:
  TagList(const SourceText& source, const TextCodec& codec, std::string_view type)
      : source_(&source), codec_(&codec), type_(type) {}

  std::string_view Type() const { return type_; }         // "3DFACE"
  const std::vector<Tag>& Tags() const { return tags_; }  // behind that of the type
  void Add(const Tag& tag) { tags_.push_back(tag); }

  bool Has(int code) const { return Find(code) != nullptr; }
  double Real(int code, double otherwise = 0) const;  // `otherwise` for a value that is missing
  std::int64_t Integer(int code, std::int64_t otherwise = 0) const;
  // In UTF-8.
  std::string Text(int code, std::string_view otherwise = {}) const;
  // x, y and z of `code`, `code` + 10 and `code` + 20; missing ones are taken from `otherwise`.
  geometry::Vec3 Point(int code, const geometry::Vec3& otherwise = {0, 0, 0}) const;
  // Whether one of the three is there.
  bool HasPoint(int code) const;

  // Nothing for a value that is missing or malformed.
  std::optional<std::int64_t> ReadableInteger(int code) const;

  // Values of a repeated tag.
  double RealOf(const Tag& tag) const;
  std::int64_t IntegerOf(const Tag& tag) const;
  std::vector<double> Reals(int code) const;
  std::vector<geometry::Vec3> Points(int code) const;

 private:
  const Tag* Find(int code) const;

  const SourceText* source_;
  const TextCodec* codec_;
  std::string_view type_;
  std::vector<Tag> tags_;
};

// The lists in a range of a drawing's tags, each from its type on: of a POLYLINE its own and behind it those
// of its vertices. Extended data and embedded objects are left out.
std::vector<TagList> ReadTagLists(const SourceText& source, const TextCodec& codec, std::string_view range);

}  // namespace teskarlt::dxf
