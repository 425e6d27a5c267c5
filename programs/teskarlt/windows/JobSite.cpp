// JobSite.cpp - a drawing on which one job after the other works.
#include "teskarlt/windows/JobSite.h"

#include <algorithm>
#include <utility>

namespace teskarlt {

JobSite::JobSite(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit, Prove prove)
    : module_(module), drawing_(drawing), unit_(unit), prove_(std::move(prove)) {
  Read();
}

void JobSite::Read() {
  work_.emplace(drawing_, unit_);
  numbers_ = work_->numbers;
  marks_ = WindowMarks(work_->windows);
  fit_.emplace(work_->roofs);
  fit_->AddAll(drawing_, work_->windows);
  changed_.clear();
}

bool JobSite::IsChanged(const WindowSelection& selection) const {
  if (selection.numbers.empty()) return !changed_.empty();
  return std::any_of(selection.numbers.begin(), selection.numbers.end(), [&](const NumberRange& range) {
    const auto found = changed_.lower_bound(range.first);
    return found != changed_.end() && *found <= range.last;
  });
}

void JobSite::ReadFor(const WindowSelection& selection) {
  if (!IsChanged(selection)) return;
  Finish();
  if (prove_) prove_(drawing_);
  drawing_.Settle();
  Read();
}

void JobSite::NoteInserted(std::int32_t number, const Outline& outline, const std::string& mark) {
  numbers_.Take(number);
  marks_.Take(mark, number);
  fit_->Add(number, outline);
  changed_.insert(number);
}

void JobSite::NoteMoved(std::int32_t number, const std::optional<Outline>& from,
                        const std::optional<Outline>& to) {
  if (from) fit_->Remove(number, *from);
  if (to) fit_->Add(number, *to);
}

void JobSite::NoteErased(std::int32_t number, const std::optional<Outline>& outline,
                         const std::string& mark) {
  marks_.Release(mark, number);
  NoteMoved(number, outline, std::nullopt);
  if (number == numbers_.Highest()) kept_ = number;
  numbers_.Release(number);
  changed_.insert(number);
}

void JobSite::Finish() {
  if (kept_ != 0) KeepNumberTaken(drawing_, {}, kept_);
  kept_ = 0;
}

}  // namespace teskarlt
