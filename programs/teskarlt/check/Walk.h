// Walk.h - goes through a drawing object by object and finds what is wrong with its structure.
#pragma once

#include <string_view>
#include <vector>

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/SourceText.h"

namespace teskarlt::check {

// Damage does not stop the walk, unless lines can no longer be told apart into codes and values.
class Walk {
 public:
  // Both must outlive the walk.
  Walk(const dxf::SourceText& source, Findings& findings);

  // The next object; false at the end of the drawing.
  bool Next(Object& object);

  // The walk had to stop before the drawing's end.
  bool IsDamaged() const { return isDamaged_; }

 private:
  // Reads the tags of one object. The tag that starts the next one stays in `next_`.
  bool ReadTags();
  bool ReadTag(dxf::Tag& tag);
  void ReportBadTag();
  void Finish();
  void CheckBehindEnd();

  void Describe(Object& object);
  Place EnterSection();
  Place LeaveSection();
  Place EnterTable();
  Place LeaveTable();
  Place PlaceInside();
  void FollowBlock();
  void CloseTable();
  void CloseBlock();
  void CloseSection();

  const dxf::SourceText& source_;
  Findings& findings_;
  dxf::TagReader reader_;
  std::vector<dxf::Tag> tags_;
  dxf::Tag next_;
  bool hasNext_ = false;
  bool isDamaged_ = false;
  bool isStart_ = true;
  std::vector<std::string_view> sections_;
  std::string_view section_;  // the open one; empty: none
  const char* sectionBegin_ = nullptr;
  Place inside_ = Place::Other;  // what the open section holds
  std::string_view table_;
  const char* tableBegin_ = nullptr;  // null: none is open
  const char* blockBegin_ = nullptr;
};

}  // namespace teskarlt::check
