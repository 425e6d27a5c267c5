// DescriptionReader.h - reads the description of a window from the tags of an entity's extended data.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"
#include "window/Description.h"

namespace teskarlt {

// The whole number of a tag as the record holds it; none when it is none or too large.
std::optional<std::int32_t> IntegerOf(const dxf::Tag& tag);

// Puts the items of a description (window/Description.h) into a window's record and texts. Each tag is the
// next item of its code; what comes on top of them has no part in it.
class DescriptionReader {
 public:
  // Drawing and window must outlive the object. Lengths become metres, points those of the working unit.
  DescriptionReader(const dxf::Document& drawing, const WorkingUnit& unit, DrawnWindow& window)
      : drawing_(drawing), unit_(unit), window_(window) {}

  void Read(const dxf::Tag& tag);

  // Every item was there and could be read.
  bool IsComplete() const;

 private:
  void Store(const brevanta::DescriptionItem& item, const dxf::Tag& tag);
  double Real(const dxf::Tag& tag);
  double Coordinate(const dxf::Tag& tag);
  std::int32_t Integer(const dxf::Tag& tag);

  const dxf::Document& drawing_;
  WorkingUnit unit_;
  DrawnWindow& window_;
  std::array<bool, brevanta::DESCRIPTION.size()> isRead_{};
  brevanta::RecordPoint* point_ = nullptr;  // whose y and z come next
  bool isDamaged_ = false;
};

}  // namespace teskarlt
