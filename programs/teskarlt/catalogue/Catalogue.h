// Catalogue.h - a window catalogue as it is shown and chosen from.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileOperations.h"

namespace teskarlt {

// Views on the bytes of the file; a carriage return at the end of a line is taken off.
struct CatalogueItem {
  std::size_t section;    // index into the catalogue's sections
  std::string_view key;   // first field, without leading blanks
  std::string_view line;  // the whole line
  std::size_t number;     // of the line in the file, from 1
};

struct Catalogue {
  std::string path;                        // UTF-8
  platform::FileBytes file;                // what the views below lie in
  std::vector<std::string_view> sections;  // different header lines in the order of the file
  std::vector<CatalogueItem> items;        // in the order of the file, doubles included
  bool hasWindowsLineEnds = false;         // lines end in CR LF
  std::size_t cutLines = 0;  // lines that the module reads in pieces, being longer than 254 characters
};

// The file that a path names: a folder (also without a separator at its end) stands for the catalogue in it.
std::string CatalogueIn(const std::string& path);

// Reads a catalogue in the lines in which the module reads it. Throws Error when it is missing, not readable,
// a folder, empty, no text, or without a section.
Catalogue ReadCatalogue(const std::string& path);

// The beginning of the line that heads a section.
std::string_view HeaderKeyword();

// The longest line that the module reads as one, in bytes.
constexpr std::size_t LONGEST_LINE = 254;

// The name of a section for people: its header line without the keyword.
std::string_view MakerOf(std::string_view header);

// Catalogue bytes in UTF-8: as they stand when they are UTF-8, else from the code page of Czech catalogues.
std::string CatalogueText(std::string_view bytes);

// The field of an item line, from 0, without blanks around it; empty when there is none.
std::string_view ItemField(std::string_view line, std::size_t index);

// The item that "SECTION/KEY", or "KEY" alone, names. Section and key are compared exactly first, then
// without regard to case. Throws Error, with the names that come near, when none or several are named;
// `option` stands before the name then.
const CatalogueItem& ChooseItem(const Catalogue& catalogue, std::string_view name,
                                std::string_view option = "--window");

}  // namespace teskarlt
