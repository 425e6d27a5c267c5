// Findings.cpp - sorts findings by place and counts their lines.
#include "teskarlt/check/Findings.h"

#include <algorithm>
#include <iterator>

namespace teskarlt::check {

void Findings::Add(Severity severity, Kind kind, const char* place, std::string message,
                   std::uint64_t handle) {
  ++(severity == Severity::Error ? errors_ : warnings_);
  if (++counts_[static_cast<std::size_t>(kind)] > MOST_OF_A_KIND) return;
  placed_.push_back({place, {0, severity, kind, handle, std::move(message)}});
}

Verdict Findings::Finish(const dxf::SourceText& source) {
  std::stable_sort(placed_.begin(), placed_.end(),
                   [](const Placed& a, const Placed& b) { return a.place < b.place; });
  Verdict verdict;
  verdict.isBinary = source.IsBinary();
  verdict.errors = errors_;
  verdict.warnings = warnings_;
  for (std::size_t i = 0; i < counts_.size(); ++i)
    verdict.unlisted[i] = counts_[i] - std::min(counts_[i], MOST_OF_A_KIND);
  std::vector<const char*> positions;
  std::transform(placed_.begin(), placed_.end(), std::back_inserter(positions),
                 [](const Placed& placed) { return placed.place; });
  const std::vector<std::size_t> places = source.PlacesOf(positions);
  for (std::size_t i = 0; i < placed_.size(); ++i) {
    placed_[i].finding.place = places[i];
    verdict.findings.push_back(std::move(placed_[i].finding));
  }
  return verdict;
}

void Merge(Verdict later, Verdict& verdict) {
  std::move(later.findings.begin(), later.findings.end(), std::back_inserter(verdict.findings));
  std::stable_sort(verdict.findings.begin(), verdict.findings.end(),
                   [](const Finding& a, const Finding& b) { return a.place < b.place; });
  verdict.errors += later.errors;
  verdict.warnings += later.warnings;
  for (std::size_t i = 0; i < verdict.unlisted.size(); ++i)
    verdict.unlisted[i] += later.unlisted[i];
}

}  // namespace teskarlt::check
