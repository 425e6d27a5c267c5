// CatalogueCheck.cpp - looks at a catalogue line by line, and at its windows one by one.
#include "teskarlt/catalogue/CatalogueCheck.h"

#include <algorithm>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "inc/LibraryMerge.h"
#include "platform/CodePage.h"
#include "teskarlt/catalogue/CatalogueEncoding.h"
#include "teskarlt/catalogue/ItemRules.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

using Kind = CatalogueFinding::Kind;

constexpr std::string_view END_OF_TEXT = "\x1A";

// The lines of the file as they stand in it, whatever the module makes of them.
class LineCheck {
 public:
  LineCheck(const Catalogue& catalogue, std::vector<CatalogueFinding>& findings)
      : catalogue_(catalogue), encoding_(EncodingOf(catalogue.file.View())), findings_(findings) {}

  void LookAtAll() {
    std::string_view rest = catalogue_.file.View();
    while (!rest.empty()) {
      const std::size_t length = rest.find('\n');
      const bool isLast = length == std::string_view::npos;
      LookAt(rest.substr(0, length), isLast);
      rest.remove_prefix(isLast ? rest.size() : length + 1);
    }
  }

 private:
  void LookAt(std::string_view line, bool isLast) {
    ++number_;
    const bool hasReturn = line.ends_with('\r');
    if (hasReturn) line.remove_suffix(1);
    if (!isLast) LookAtLineEnd(hasReturn);
    LookAtLength(line);
    LookAtEncoding(line);
    if (line.starts_with(HeaderKeyword())) {
      LookAtHeader(line);
    } else {
      LookAtPlace(line);
    }
  }

  void Add(Kind kind, bool isError, std::string message) {
    CatalogueFinding& finding = findings_.emplace_back();
    finding.kind = kind;
    finding.isError = isError;
    finding.message = std::move(message);
    finding.line = number_;
  }

  // Told once, at the first line that differs.
  void LookAtLineEnd(bool hasReturn) {
    if (number_ == 1) firstHasReturn_ = hasReturn;
    if (hasReturn == firstHasReturn_ || isMixedTold_) return;
    isMixedTold_ = true;
    Add(Kind::LineEnds, false,
        fmt::format("the line ends {}, unlike those before it; a merge may take such lines for others",
                    hasReturn ? "with CR LF" : "with LF alone"));
  }

  void LookAtLength(std::string_view line) {
    if (line.size() <= LONGEST_LINE) return;
    Add(Kind::LineLength, true,
        fmt::format("the line has {} bytes; what is behind the {}th is read as another line", line.size(),
                    LONGEST_LINE));
  }

  // A catalogue with one line in no UTF-8 is read in the code page, and so are its other lines.
  void LookAtEncoding(std::string_view line) {
    if (encoding_ != CatalogueEncoding::Czech) return;
    if (dxf::HoldsUtf8(line)) {
      Add(Kind::Encoding, true,
          "the line is in UTF-8 and others are not, so that its letters are read as others");
      return;
    }
    // Bytes that no character of the code page has come through as control characters of the same number.
    const std::string text = platform::CodePage(static_cast<int>(CatalogueEncoding::Czech)).ToUtf8(line);
    for (std::size_t at = 0; at < text.size();) {
      constexpr char32_t firstControl = 0x80;
      constexpr char32_t lastControl = 0x9F;
      const auto character = platform::NextCharacter(text, at);
      if (!character || *character < firstControl || *character > lastControl) continue;
      Add(Kind::Encoding, true,
          fmt::format("the byte {:02X} is no character of code page 1250",
                      static_cast<unsigned>(*character)));
      return;
    }
  }

  void LookAtHeader(std::string_view line) {
    hasSection_ = true;
    const std::string header = CatalogueText(line);
    const std::string maker = CatalogueText(MakerOf(line));
    if (MakerOf(line) == line) Add(Kind::Section, false, "the heading names no maker");
    const auto [known, isNew] = headers_.try_emplace(maker, header, number_);
    if (isNew) return;
    if (known->second.first == header) {
      Add(Kind::Section, false,
          fmt::format("the section of \"{}\" begins in line {} already; a merge gathers its windows there",
                      maker, known->second.second));
    } else {
      Add(Kind::Section, false,
          fmt::format(
              "\"{}\" has a section in line {} already, under another heading; a merge takes them for "
              "two makers",
              maker, known->second.second));
    }
  }

  void LookAtPlace(std::string_view line) {
    const bool isComment = line.starts_with(COMMENT_MARK);
    if (hasSection_ || isComment || line.find(brevanta::FIELD_DELIMITER) == std::string_view::npos) return;
    Add(Kind::Outside, false, "the line stands before the first section, where it is no window");
  }

  const Catalogue& catalogue_;
  std::optional<CatalogueEncoding> encoding_;
  std::vector<CatalogueFinding>& findings_;
  std::size_t number_ = 0;
  bool firstHasReturn_ = false;
  bool isMixedTold_ = false;
  bool hasSection_ = false;
  std::map<std::string, std::pair<std::string, std::size_t>> headers_;  // of each maker, with its line
};

class ItemCheck {
 public:
  ItemCheck(const Catalogue& catalogue, std::vector<CatalogueFinding>& findings)
      : catalogue_(catalogue), findings_(findings) {}

  void LookAtAll() {
    for (const CatalogueItem& item : catalogue_.items) {
      if (item.line == END_OF_TEXT) continue;
      if (item.key.starts_with(COMMENT_MARK)) {
        Add(Kind::Comment, false,
            "a line behind a heading is a window, also this one; comments are safe "
            "before the first section",
            item);
      } else {
        LookAtKey(item);
        LookAtFields(item);
      }
    }
  }

 private:
  void Add(Kind kind, bool isError, std::string message, const CatalogueItem& item) {
    CatalogueFinding& finding = findings_.emplace_back();
    finding.kind = kind;
    finding.isError = isError;
    finding.message = std::move(message);
    finding.line = item.number;
  }

  void LookAtKey(const CatalogueItem& item) {
    const auto [known, isNew] = lines_.try_emplace({item.section, item.key}, item.number);
    if (isNew) return;
    Add(Kind::Duplicate, true,
        fmt::format("{} has a window {} in line {} already; this one is never chosen",
                    CatalogueText(MakerOf(catalogue_.sections[item.section])), CatalogueText(item.key),
                    known->second),
        item);
  }

  void LookAtFields(const CatalogueItem& item) {
    for (CatalogueFinding& finding : FindingsOf(TextsOf(item.line))) {
      finding.line = item.number;
      findings_.push_back(std::move(finding));
    }
    const auto separators = std::count(item.line.begin(), item.line.end(), brevanta::FIELD_DELIMITER);
    if (static_cast<std::size_t>(separators) < FIELD_COUNT) return;
    Add(Kind::Fields, false,
        fmt::format("the line has {} fields; those behind the {}th are not read", separators + 1,
                    FIELD_COUNT),
        item);
  }

  const Catalogue& catalogue_;
  std::vector<CatalogueFinding>& findings_;
  std::map<std::pair<std::size_t, std::string_view>, std::size_t> lines_;  // of each key
};

}  // namespace

std::vector<CatalogueFinding> CheckCatalogue(const Catalogue& catalogue) {
  std::vector<CatalogueFinding> findings;
  LineCheck(catalogue, findings).LookAtAll();
  ItemCheck(catalogue, findings).LookAtAll();
  std::stable_sort(findings.begin(), findings.end(),
                   [](const CatalogueFinding& a, const CatalogueFinding& b) { return a.line < b.line; });
  return findings;
}

}  // namespace teskarlt
