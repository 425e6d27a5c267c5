// Check.cpp - takes a drawing through all checks, in one pass over its tags.
#include "teskarlt/check/Check.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/check/Entities.h"
#include "teskarlt/check/ExtendedData.h"
#include "teskarlt/check/Handles.h"
#include "teskarlt/check/Linetypes.h"
#include "teskarlt/check/Markers.h"
#include "teskarlt/check/Names.h"
#include "teskarlt/check/Texts.h"
#include "teskarlt/check/Values.h"
#include "teskarlt/check/Walk.h"
#include "teskarlt/check/Windows.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/read/FileKind.h"
#include "teskarlt/dxf/read/HeaderValues.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

// From R2000 on. Programs do without CLASSES when the drawing holds nothing that needs it.
constexpr std::string_view REQUIRED_SECTIONS[] = {dxf::SECTION_HEADER, dxf::SECTION_TABLES,
                                                  dxf::SECTION_BLOCKS, dxf::SECTION_OBJECTS};

void ReadVariable(std::string_view name, const dxf::Tag& value, Header& header) {
  if (name == dxf::VARIABLE_VERSION) {
    const std::optional<int> version = dxf::VersionNumber(value.value);
    header.version = version.value_or(dxf::VERSION_R12);
    header.saysVersion = version.has_value();
  } else if (name == dxf::VARIABLE_CODE_PAGE) {
    header.codePage = dxf::CodePageOf(value.value);
  } else if (name == dxf::VARIABLE_HANDLE_SEED) {
    header.handleSeed = value;
  }
}

Header ReadHeader(const Object& section) {
  Header header;
  std::string_view variable;
  for (const dxf::Tag& tag : section.tags) {
    if (tag.code == dxf::CODE_VARIABLE) {
      variable = dxf::Trimmed(tag.value);
    } else if (!variable.empty()) {
      ReadVariable(variable, tag, header);
      variable = {};
    }
  }
  return header;
}

class Checks {
 public:
  Checks(const dxf::SourceText& source, const dxf::HandleRange& elsewhere, Findings& findings)
      : walk_(source, findings),
        findings_(findings),
        texts_(header_, findings),
        handles_(header_, elsewhere, findings),
        names_(header_, findings),
        entities_(findings) {}

  void Run() {
    for (Object object; walk_.Next(object);)
      CheckObject(object);
    if (walk_.IsDamaged()) return;  // what is missing may only be out of sight
    entities_.Finish();
    handles_.Finish();
    names_.Finish();
    CheckSections();
  }

 private:
  void CheckObject(const Object& object) {
    if (object.place == Place::Section) {
      sections_.push_back(object.section);
      sectionsEnd_ = object.Begin();
      if (dxf::SameName(object.section, dxf::SECTION_HEADER)) header_ = ReadHeader(object);
    }
    CheckValues(object, findings_);
    texts_.Check(object);
    entities_.Check(object);
    CheckLinetype(object, header_, findings_);
    CheckMarkers(object, header_, findings_);
    CheckExtendedData(object, findings_);
    CheckWindowData(object, findings_);
    handles_.Check(object);
    names_.Check(object);
  }

  void CheckSections() {
    if (header_.version < dxf::VERSION_R2000) return;
    for (const std::string_view required : REQUIRED_SECTIONS) {
      const bool isThere = std::any_of(sections_.begin(), sections_.end(),
                                       [&](std::string_view name) { return dxf::SameName(name, required); });
      if (!isThere) {
        findings_.Error(Kind::SectionMissing, sectionsEnd_,
                        fmt::format("the section {} is missing; this is the last one", required));
      }
    }
  }

  Walk walk_;
  Findings& findings_;
  Header header_;
  Texts texts_;
  Handles handles_;
  Names names_;
  Entities entities_;
  std::vector<std::string_view> sections_;
  const char* sectionsEnd_ = nullptr;
};

}  // namespace

Verdict CheckObjects(const dxf::SourceText& source, const dxf::HandleRange& elsewhere) {
  dxf::RefuseOtherFiles(source);
  Findings findings;
  Checks(source, elsewhere, findings).Run();
  return findings.Finish(source);
}

Verdict CheckDrawing(dxf::SourceText source, const FitRules& rules) {
  Verdict verdict = CheckObjects(source);
  try {
    const dxf::Document drawing = dxf::Document::FromSource(std::move(source));
    Findings ofWindows;
    CheckWindows(drawing, rules, ofWindows);
    Merge(ofWindows.Finish(drawing.Source()), verdict);
  } catch (const Error& error) {
    // Most often for damage that has been found already.
    if (verdict.errors > 0) return verdict;
    verdict.findings.push_back({1, Severity::Error, Kind::DrawingRefused, 0, error.what()});
    ++verdict.errors;
  }
  return verdict;
}

}  // namespace teskarlt::check
