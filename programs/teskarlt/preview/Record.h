// Record.h - the tags of one entity, vertex or table entry, and the values among them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt::preview {

// Views on the bytes of the drawing, which must outlive it. Codes may come in any order; the first tag of a
// code counts. Throws Error with the line for a value that is malformed.
class Record {
 public:
  Record(const dxf::Document& drawing, std::string_view type) : drawing_(&drawing), type_(type) {}

  std::string_view Type() const { return type_; }
  const std::vector<dxf::Tag>& Tags() const { return tags_; }
  void Add(const dxf::Tag& tag) { tags_.push_back(tag); }

  double Real(int code, double otherwise = 0) const;
  std::int64_t Integer(int code, std::int64_t otherwise = 0) const;
  std::string Text(int code, const std::string& otherwise = {}) const;
  bool Has(int code) const { return Find(code) != nullptr; }
  // x, y and z of `code`, `code` + 10 and `code` + 20; missing ones are taken from `otherwise`.
  geometry::Vec3 Point(int code, const geometry::Vec3& otherwise = {0, 0, 0}) const;

  // Values of a repeated tag.
  double RealOf(const dxf::Tag& tag) const;
  std::int64_t IntegerOf(const dxf::Tag& tag) const;
  std::vector<double> Reals(int code) const;
  std::vector<geometry::Vec3> Points(int code) const;

 private:
  const dxf::Tag* Find(int code) const;

  const dxf::Document* drawing_;
  std::string_view type_;
  std::vector<dxf::Tag> tags_;
};

// The records in a range of the drawing's tags, each from its group 0 on; extended data and embedded objects
// are left out.
std::vector<Record> ReadRecords(const dxf::Document& drawing, std::string_view range);

}  // namespace teskarlt::preview
