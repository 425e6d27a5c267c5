// CatalogueEditor.cpp - changes of a catalogue as splices of its bytes.
#include "teskarlt/catalogue/CatalogueEditor.h"

#include <algorithm>
#include <cstring>
#include <functional>

#include <fmt/format.h>

#include "platform/CodePage.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

constexpr std::string_view HEAD =
    "# key; width cm; length cm; frame width cm; frame depth cm; opening code; description\n";
constexpr char END_OF_TEXT = '\x1A';

platform::FileBytes BytesOf(std::string_view text) {
  platform::FileBytes bytes;
  bytes.bytes = std::make_unique<char[]>(text.size());
  bytes.size = text.size();
  std::memcpy(bytes.bytes.get(), text.data(), text.size());
  return bytes;
}

std::string HeaderOf(const std::string& maker) {
  std::string header = fmt::format("{} {}", HeaderKeyword(), maker);
  if (MakerOf(header) != maker)
    throw Error(fmt::format("\"{}\" cannot be the name of a maker", maker), {.value = maker});
  return header;
}

}  // namespace

Catalogue NewCatalogue(const std::string& path) {
  Catalogue catalogue;
  catalogue.path = path;
  catalogue.file = BytesOf(HEAD);
  return catalogue;
}

CatalogueEncoding EncodingForChanges(const Catalogue& catalogue, const std::string& said) {
  const std::optional<CatalogueEncoding> own = EncodingOf(catalogue.file.View());
  if (said.empty()) return own.value_or(CatalogueEncoding::Utf8);
  const CatalogueEncoding wanted = EncodingNamed(said);
  if (wanted != ReadableLike(wanted)) {
    throw Error(fmt::format("catalogues are in UTF-8 or code page 1250, not in {}", NameOf(wanted)),
                {.value = said});
  }
  if (own && *own != wanted) {
    throw Error(fmt::format("the catalogue is in {}, not in {}", NameOf(*own), NameOf(wanted)),
                {.file = catalogue.path, .value = said});
  }
  return wanted;
}

std::optional<std::size_t> SectionOf(const Catalogue& catalogue, std::string_view maker) {
  const auto find = [&](const auto& isSame) -> std::optional<std::size_t> {
    for (std::size_t i = 0; i < catalogue.sections.size(); ++i) {
      if (isSame(CatalogueText(MakerOf(catalogue.sections[i])), maker)) return i;
    }
    return std::nullopt;
  };
  const auto exact = find(std::equal_to<>());
  return exact ? exact : find(dxf::SameName);
}

CatalogueEditor::CatalogueEditor(const Catalogue& catalogue, CatalogueEncoding encoding)
    : catalogue_(catalogue),
      text_(catalogue.file.View()),
      encoding_(encoding),
      lineEnd_(catalogue.hasWindowsLineEnds ? "\r\n" : "\n"),
      additions_(catalogue.sections.size()) {
  if (text_.ends_with(END_OF_TEXT)) text_.remove_suffix(1);
}

std::string CatalogueEditor::Encoded(const std::string& utf8, std::string_view name) const {
  if (encoding_ == CatalogueEncoding::Utf8) return utf8;
  try {
    return platform::CodePage(static_cast<int>(encoding_)).FromUtf8(utf8);
  } catch (const Error& error) {
    throw Error(fmt::format("{}: {}", name, error.Message()),
                {.file = catalogue_.path, .value = error.Place().value});
  }
}

std::string CatalogueEditor::EncodedLine(const std::string& line, std::string_view name) const {
  std::string bytes = Encoded(line, name);
  const std::size_t most = LONGEST_LINE - lineEnd_.size();  // the module counts a return and the line end
  if (bytes.size() > most) {
    throw Error(fmt::format("{}: its line would have {} bytes; a line of a catalogue has at most {}", name,
                            bytes.size(), most),
                {.file = catalogue_.path, .value = line});
  }
  return bytes;
}

std::string& CatalogueEditor::LinesOfNew(const std::string& maker) {
  const auto known = std::find_if(newSections_.begin(), newSections_.end(),
                                  [&](const NewSection& section) { return section.maker == maker; });
  if (known != newSections_.end()) return known->lines;
  newSections_.push_back({maker, EncodedLine(HeaderOf(maker), maker) + lineEnd_});
  return newSections_.back().lines;
}

void CatalogueEditor::AddMaker(const std::string& maker) {
  if (!SectionOf(catalogue_, maker)) LinesOfNew(maker);
}

void CatalogueEditor::Add(const CatalogueWindow& window) {
  const std::string line =
      EncodedLine(LineOf(window.texts), window.maker + "/" + window.texts[FIELD_KEY]) + lineEnd_;
  const std::optional<std::size_t> section = SectionOf(catalogue_, window.maker);
  (section ? additions_[*section] : LinesOfNew(window.maker)) += line;
}

void CatalogueEditor::Change(const CatalogueItem& item, const ItemTexts& texts) {
  const std::string name = CatalogueText(item.key);
  const ItemTexts old = TextsOf(item.line);
  std::string line(item.line);
  for (std::size_t field = 0; field < FIELD_COUNT; ++field) {
    if (texts[field] != old[field]) line = WithField(line, field, Encoded(texts[field], name));
  }
  if (line.size() > LONGEST_LINE - lineEnd_.size()) EncodedLine(CatalogueText(line), name);  // throws
  WholeLine(item);                                                                           // throws
  splices_.push_back({static_cast<std::size_t>(item.line.data() - text_.data()), item.line.size(), line});
}

void CatalogueEditor::Remove(const CatalogueItem& item) {
  splices_.push_back(WholeLine(item));
}

// The item's line with its line end, to be taken out.
CatalogueEditor::Splice CatalogueEditor::WholeLine(const CatalogueItem& item) const {
  const auto begin = static_cast<std::size_t>(item.line.data() - text_.data());
  std::size_t end = begin + item.line.size();
  if (text_.substr(end).starts_with('\r')) ++end;
  const bool isWhole =
      (begin == 0 || text_[begin - 1] == '\n') && (end == text_.size() || text_[end] == '\n');
  if (!isWhole) {
    throw Error(fmt::format("the line is longer than {} bytes, and the module reads it in pieces; shorten "
                            "it with an editor of texts first",
                            LONGEST_LINE),
                {catalogue_.path, ErrorPlace::Unit::Line, item.number});
  }
  return {begin, std::min(end + 1, text_.size()) - begin, ""};
}

// The beginning of the line that follows this one.
std::size_t CatalogueEditor::OffsetBehind(std::string_view line) const {
  const auto end = static_cast<std::size_t>(line.data() - text_.data()) + line.size();
  return end >= text_.size() ? text_.size() : std::min(text_.find('\n', end), text_.size() - 1) + 1;
}

// Where the text ends without a line end, one comes before the lines.
std::string CatalogueEditor::AtLineStart(std::size_t offset, const std::string& lines) const {
  const bool isStart = offset == 0 || text_[offset - 1] == '\n';
  return isStart ? lines : lineEnd_ + lines;
}

std::vector<CatalogueEditor::Splice> CatalogueEditor::InsertedLines() const {
  std::vector<std::string_view> last = catalogue_.sections;  // the last line of each section
  for (const CatalogueItem& item : catalogue_.items)
    last[item.section] = item.line;
  std::vector<Splice> inserted;
  for (std::size_t i = 0; i < additions_.size(); ++i) {
    if (additions_[i].empty()) continue;
    const std::size_t offset = OffsetBehind(last[i]);
    inserted.push_back({offset, 0, AtLineStart(offset, additions_[i])});
  }
  for (const NewSection& section : newSections_)
    inserted.push_back({text_.size(), 0, lineEnd_ + section.lines});
  return inserted;
}

std::string CatalogueEditor::Bytes() const {
  std::vector<Splice> splices = splices_;
  const std::vector<Splice> inserted = InsertedLines();
  splices.insert(splices.end(), inserted.begin(), inserted.end());
  std::stable_sort(splices.begin(), splices.end(),
                   [](const Splice& a, const Splice& b) { return a.offset < b.offset; });
  const std::string_view old = catalogue_.file.View();
  std::string bytes;
  std::size_t taken = 0;
  for (const Splice& splice : splices) {
    bytes.append(old.substr(taken, splice.offset - taken)).append(splice.bytes);
    taken = splice.offset + splice.length;
  }
  bytes.append(old.substr(taken));
  if (EncodingOf(bytes).value_or(encoding_) != encoding_) {
    throw Error(fmt::format("these texts would not be known as {}", NameOf(encoding_)),
                {.file = catalogue_.path});
  }
  return bytes;
}

}  // namespace teskarlt
