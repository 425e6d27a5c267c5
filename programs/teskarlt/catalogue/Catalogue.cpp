// Catalogue.cpp - reads window catalogues.
#include "teskarlt/catalogue/Catalogue.h"

#include <algorithm>
#include <filesystem>
#include <unordered_map>

#include <fmt/format.h>

#include "inc/LibraryMerge.h"
#include "platform/CodePage.h"
#include "platform/FileOperations.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/CatalogueEncoding.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

// The pattern of a header without its star.
constexpr std::string_view HEADER_PATTERN = brevanta::SECTION_PATTERN;
constexpr std::string_view HEADER_KEYWORD = HEADER_PATTERN.substr(0, HEADER_PATTERN.size() - 1);

bool IsUtf8(std::string_view bytes) {
  for (std::size_t position = 0; position < bytes.size();) {
    if (!platform::NextCharacter(bytes, position)) return false;
  }
  return true;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// Puts a catalogue together, line by line.
class CatalogueBuilder {
 public:
  explicit CatalogueBuilder(Catalogue& catalogue) : catalogue_(catalogue) {}

  // A line of the file; one that is too long comes in pieces, as the module reads it.
  void AddPhysicalLine(std::string_view line) {
    ++number_;
    const bool hasReturn = line.ends_with('\r');
    if (hasReturn) catalogue_.hasWindowsLineEnds = true;
    if (line.size() - (hasReturn ? 1 : 0) > LONGEST_LINE) ++catalogue_.cutLines;
    for (; line.size() > LONGEST_LINE; line.remove_prefix(LONGEST_LINE))
      AddLine(line.substr(0, LONGEST_LINE));
    AddLine(line);
  }

 private:
  void AddLine(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) return;
    if (line.starts_with(HEADER_KEYWORD)) {
      const auto [found, isNew] = sectionOf_.try_emplace(line, catalogue_.sections.size());
      if (isNew) catalogue_.sections.push_back(line);
      section_ = found->second;
      hasSection_ = true;
    } else if (hasSection_) {
      const std::string_view key = WithoutLeadingBlanks(line.substr(0, line.find(brevanta::FIELD_DELIMITER)));
      catalogue_.items.push_back({section_, key, line, number_});
    }
  }

  Catalogue& catalogue_;
  std::unordered_map<std::string_view, std::size_t> sectionOf_;
  std::size_t section_ = 0;
  bool hasSection_ = false;
  std::size_t number_ = 0;
};

}  // namespace

std::string CatalogueIn(const std::string& path) {
  if (path.ends_with('/') || path.ends_with('\\')) return path + brevanta::CATALOGUE_FILE;
  std::error_code error;
  const std::filesystem::path place(std::u8string(path.begin(), path.end()));
  if (std::filesystem::is_directory(place, error)) return path + "/" + brevanta::CATALOGUE_FILE;
  return path;
}

Catalogue ReadCatalogue(const std::string& path) {
  Catalogue catalogue;
  catalogue.path = CatalogueIn(path);
  const platform::FileState state = platform::StateOfFile(catalogue.path);
  if (state.exists && !state.isOrdinary) throw Error("this is no ordinary file", {.file = catalogue.path});
  catalogue.file = platform::ReadWholeFile(catalogue.path);
  std::string_view rest = catalogue.file.View();
  if (rest.empty()) throw Error("the catalogue is empty", {.file = catalogue.path});
  if (rest.find('\0') != std::string_view::npos) {
    throw Error("this is no catalogue; it holds NUL bytes", {.file = catalogue.path});
  }
  constexpr char endOfText = '\x1A';  // where some systems end a text file, whatever follows
  const auto end = rest.find(endOfText);
  if (end != std::string_view::npos && end + 1 != rest.size()) {
    throw Error(
        fmt::format("this is no catalogue; it holds the control character 1A in line {}",
                    std::count(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(end), '\n') + 1),
        {.file = catalogue.path});
  }
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (rest.starts_with(byteOrderMark)) {
    throw Error("the file begins with a byte order mark, which hides its first line; save it without one",
                {.file = catalogue.path});
  }
  CatalogueBuilder builder(catalogue);
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    builder.AddPhysicalLine(line);
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  }
  if (catalogue.sections.empty()) {
    throw Error(fmt::format("this is no catalogue; no line begins with {}", HEADER_KEYWORD),
                {.file = catalogue.path});
  }
  return catalogue;
}

std::string_view HeaderKeyword() {
  return HEADER_KEYWORD;
}

std::string_view MakerOf(std::string_view header) {
  std::string_view maker = header.substr(std::min(HEADER_KEYWORD.size(), header.size()));
  const auto first = maker.find_first_not_of(" :\t");
  return first == std::string_view::npos ? header : dxf::Trimmed(maker.substr(first));
}

std::string CatalogueText(std::string_view bytes) {
  if (IsUtf8(bytes)) return std::string(bytes);
  return platform::CodePage(static_cast<int>(CatalogueEncoding::Czech)).ToUtf8(bytes);
}

std::string_view ItemField(std::string_view line, std::size_t index) {
  for (; index > 0; --index) {
    const auto separator = line.find(brevanta::FIELD_DELIMITER);
    if (separator == std::string_view::npos) return {};
    line.remove_prefix(separator + 1);
  }
  return dxf::Trimmed(line.substr(0, line.find(brevanta::FIELD_DELIMITER)));
}

}  // namespace teskarlt
