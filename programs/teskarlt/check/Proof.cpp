// Proof.cpp - compares what is wrong with the changed part of a drawing before and after the change.
#include "teskarlt/check/Proof.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/check/Check.h"

namespace teskarlt::check {
namespace {

// What a whole drawing lacks is none of the changes' doing.
constexpr Kind ABOUT_THE_WHOLE[] = {Kind::SectionMissing, Kind::TableMissing, Kind::EntryMissing};
// New objects belong to what those of the drawing belong to, be it damaged.
constexpr Kind ABOUT_OWNERS[] = {Kind::OwnerMissing, Kind::OwnerDangling, Kind::OwnerKind};

template <std::size_t SIZE>
bool Holds(const Kind (&kinds)[SIZE], Kind kind) {
  return std::find(std::begin(kinds), std::end(kinds), kind) != std::end(kinds);
}

Verdict CheckedText(const std::string& name, std::string_view text) {
  platform::FileBytes bytes;
  bytes.bytes = std::make_unique_for_overwrite<char[]>(text.size() + 1);
  bytes.size = text.copy(bytes.bytes.get(), text.size());
  return CheckObjects({name, std::move(bytes)});
}

bool IsError(const Finding& finding, Kind kind) {
  return finding.severity == Severity::Error && finding.kind == kind;
}

std::size_t Errors(const Verdict& verdict, Kind kind) {
  const auto& findings = verdict.findings;
  return verdict.unlisted[static_cast<std::size_t>(kind)] +
         static_cast<std::size_t>(
             std::count_if(findings.begin(), findings.end(),
                           [&](const Finding& finding) { return IsError(finding, kind); }));
}

// Whether one of the errors is there already.
bool Has(const Verdict& verdict, const Finding& wanted) {
  return std::any_of(verdict.findings.begin(), verdict.findings.end(), [&](const Finding& finding) {
    return finding.kind == wanted.kind && finding.handle == wanted.handle &&
           finding.message == wanted.message;
  });
}

[[noreturn]] void Refuse(const std::string& file, Kind kind, const Verdict& before, const Verdict& after) {
  std::string message;
  for (const Finding& finding : after.findings) {
    if (!IsError(finding, kind) || Has(before, finding)) continue;
    message = finding.message;
    break;
  }
  throw Error(fmt::format("nothing is written because of a fault of this program: the drawing would be wrong "
                          "then ({}: {}); please report this sentence with the drawing and the command",
                          KindName(kind), message),
              {.file = file});
}

}  // namespace

void ProveChanges(const dxf::Document& drawing) {
  const dxf::Excerpts excerpts = drawing.MakeExcerpts();
  const Verdict before = CheckedText(drawing.FileName(), excerpts.loaded);
  const Verdict after = CheckedText(drawing.FileName(), excerpts.edited);
  if (after.errors == 0) return;
  for (std::size_t i = 0; i < static_cast<std::size_t>(Kind::KindCount); ++i) {
    const auto kind = static_cast<Kind>(i);
    const std::size_t old = Errors(before, kind);
    if (Errors(after, kind) <= old || Holds(ABOUT_THE_WHOLE, kind)) continue;
    if (Holds(ABOUT_OWNERS, kind) && (old > 0 || !drawing.HasModelSpaceHandle())) continue;
    Refuse(drawing.FileName(), kind, before, after);
  }
}

}  // namespace teskarlt::check
