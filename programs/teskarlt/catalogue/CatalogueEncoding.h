// CatalogueEncoding.h - in which encoding a catalogue is written, and catalogues brought into another one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace teskarlt {

// UTF-8, or a code page by its Windows number.
enum class CatalogueEncoding : int { Utf8 = 65001, Czech = 1250 };

// UTF-8 where all of the catalogue is that, else the code page of Czech catalogues; nothing for one in ASCII,
// which is the same in both.
std::optional<CatalogueEncoding> EncodingOf(std::string_view catalogue);

// The encoding nearest to this one in which EncodingOf finds a catalogue.
constexpr CatalogueEncoding ReadableLike(CatalogueEncoding encoding) {
  return encoding == CatalogueEncoding::Czech ? CatalogueEncoding::Czech : CatalogueEncoding::Utf8;
}

// "utf-8", or a code page as "cp1252", "windows-1252", "iso8859-2", "dos852"; case does not matter. Throws
// Error for a name that is not known.
CatalogueEncoding EncodingNamed(const std::string& name);

// "UTF-8", "code page 1250".
std::string NameOf(CatalogueEncoding encoding);

// Throws Error, with the line, for bytes that are not in `from` and characters that `to` does not have;
// `file` stands for the catalogue in it.
std::string Converted(std::string_view catalogue, CatalogueEncoding from, CatalogueEncoding to,
                      const std::string& file);

}  // namespace teskarlt
