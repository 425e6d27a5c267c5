// CatalogueEditor.h - changes single windows of a catalogue, and leaves every other byte of it as it is.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/catalogue/CatalogueEncoding.h"
#include "teskarlt/catalogue/ItemFields.h"

namespace teskarlt {

// A catalogue that lies nowhere yet: a comment that tells the fields, and no section.
Catalogue NewCatalogue(const std::string& path);

// The encoding in which changes of a catalogue are written: its own. One in ASCII has none; it becomes what
// `said` names, UTF-8 without it. Throws Error where `said` is not the catalogue's, or none of catalogues.
CatalogueEncoding EncodingForChanges(const Catalogue& catalogue, const std::string& said);

// The section of the maker, compared exactly first, then without regard to case; nothing for an unknown one.
std::optional<std::size_t> SectionOf(const Catalogue& catalogue, std::string_view maker);

// Gathers changes. Each function throws Error, naming window and character, for a text that the encoding does
// not hold, and for a line that the module would not read as one.
class CatalogueEditor {
 public:
  // The catalogue must outlive the editor, and stay where it is.
  CatalogueEditor(const Catalogue& catalogue, CatalogueEncoding encoding);

  // An empty section at the end of the catalogue, unless the maker has one.
  void AddMaker(const std::string& maker);
  // Behind the last window of its maker, in a section of its own where the maker has none.
  void Add(const CatalogueWindow& window);
  // Puts a whole line in the place of the item's: only fields that differ get other bytes.
  void Change(const CatalogueItem& item, const ItemTexts& texts);
  void Remove(const CatalogueItem& item);

  // The changed catalogue. Throws Error where its bytes would be read in another encoding.
  std::string Bytes() const;

 private:
  struct Splice {
    std::size_t offset;
    std::size_t length;
    std::string bytes;
  };
  struct NewSection {
    std::string maker;
    std::string lines;  // encoded, the header first
  };

  std::string Encoded(const std::string& utf8, std::string_view name) const;
  std::string EncodedLine(const std::string& line, std::string_view name) const;
  std::string& LinesOfNew(const std::string& maker);
  Splice WholeLine(const CatalogueItem& item) const;
  std::size_t OffsetBehind(std::string_view line) const;
  std::string AtLineStart(std::size_t offset, const std::string& lines) const;
  std::vector<Splice> InsertedLines() const;

  const Catalogue& catalogue_;
  std::string_view text_;  // of the catalogue, without an end-of-text character
  CatalogueEncoding encoding_;
  std::string lineEnd_;
  std::vector<Splice> splices_;
  std::vector<std::string> additions_;  // to each section, encoded
  std::vector<NewSection> newSections_;
};

}  // namespace teskarlt
