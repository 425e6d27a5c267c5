// WindowMarks.cpp - names that users give windows.
#include "teskarlt/windows/WindowMarks.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

constexpr int MOST_DIGITS = 9;

[[noreturn]] void RefusePattern(std::string_view text, std::string_view what) {
  throw Error(
      fmt::format("--mark {}: {}; a mark is a text with {{number}}, {{roof}}, {{type}} or {{run}} in it, as "
                  "{}",
                  text, what, USUAL_MARK),
      {.value = std::string(text)});
}

bool IsControl(char byte) {
  return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F';
}

// Where the mark would have to name what the window has not.
const std::string& Required(const std::string& value, const char* what, const MarkedWindow& window) {
  if (value.empty())
    throw Error(fmt::format("--mark: window {} has no {} to be named by", window.number, what));
  return value;
}

}  // namespace

MarkPattern::MarkPattern(std::string_view text) : text_(text) {
  if (text.empty() || dxf::Trimmed(text) != text || std::any_of(text.begin(), text.end(), IsControl))
    RefusePattern(text, "this is no name");
  while (!text.empty()) {
    const std::size_t brace = text.find_first_of("{}");
    if (brace != 0) pieces_.push_back({Word::Text, std::string(text.substr(0, brace))});
    if (brace == std::string_view::npos) return;
    const std::size_t end = text.find('}', brace);
    if (text[brace] == '}' || end == std::string_view::npos) RefusePattern(text_, "a brace stands alone");
    AddWord(text.substr(brace + 1, end - brace - 1));
    text.remove_prefix(end + 1);
  }
}

void MarkPattern::AddWord(std::string_view word) {
  struct KnownWord {
    std::string_view name;
    Word word;
    bool isNumber;
  };
  static constexpr std::array WORDS = {
      KnownWord{"number", Word::Number, true}, KnownWord{"roof", Word::Roof, false},
      KnownWord{"type", Word::Type, false}, KnownWord{"run", Word::Run, true}};
  const std::size_t colon = word.find(':');
  const std::string_view name = word.substr(0, colon);
  const auto* known =
      std::find_if(WORDS.begin(), WORDS.end(), [&](const KnownWord& w) { return w.name == name; });
  if (known == WORDS.end()) RefusePattern(text_, fmt::format("{{{}}} stands for nothing", word));
  Piece piece{known->word, {}};
  if (colon != std::string_view::npos) {
    const auto digits = dxf::ParseInteger(word.substr(colon + 1));
    if (!known->isNumber || !digits || *digits < 1 || *digits > MOST_DIGITS)
      RefusePattern(text_, fmt::format("{{{}}} is no number of digits from 1 to {}", word, MOST_DIGITS));
    piece.digits = static_cast<int>(*digits);
  }
  pieces_.push_back(std::move(piece));
}

bool MarkPattern::Has(Word word) const {
  return std::any_of(pieces_.begin(), pieces_.end(),
                     [word](const Piece& piece) { return piece.word == word; });
}

std::string MarkPattern::MarkOf(const MarkedWindow& window, std::int64_t run) const {
  std::string mark;
  for (const Piece& piece : pieces_) {
    switch (piece.word) {
      case Word::Text:
        mark += piece.text;
        break;
      case Word::Number:
        mark += fmt::format("{:0{}}", window.number, piece.digits);
        break;
      case Word::Roof:
        mark += Required(window.roof, "roof", window);
        break;
      case Word::Type:
        mark += Required(window.type, "type", window);
        break;
      case Word::Run:
        mark += fmt::format("{:0{}}", run, piece.digits);
        break;
    }
  }
  return mark;
}

WindowMarks::WindowMarks(const std::vector<DrawnWindow>& windows) {
  for (const DrawnWindow& window : windows)
    Take(window.mark, window.number);
}

void WindowMarks::Take(const std::string& mark, std::int32_t number) {
  if (!mark.empty()) numbers_.emplace(mark, number);
}

void WindowMarks::Release(const std::string& mark, std::int32_t number) {
  const auto [begin, end] = numbers_.equal_range(mark);
  const auto found = std::find_if(begin, end, [&](const auto& entry) { return entry.second == number; });
  if (found == end) return;
  numbers_.erase(found);
  runs_.clear();  // it may be free again
}

std::string WindowMarks::Fill(const MarkPattern& pattern, const MarkedWindow& window) {
  if (pattern.HasRun()) {
    std::int64_t& run = runs_.try_emplace(pattern.MarkOf(window, 0), 1).first->second;
    while (numbers_.contains(pattern.MarkOf(window, run)))
      ++run;
    return pattern.MarkOf(window, run);
  }
  std::string mark = pattern.MarkOf(window, 0);
  const auto taken = numbers_.find(mark);
  if (taken == numbers_.end()) return mark;
  throw Error(
      fmt::format("--mark: window {} bears the mark {} already; {{run}} in it counts", taken->second, mark),
      {.value = mark});
}

MarkOfRecord MarkFor(const WindowOrder& order, const RoofChoice& roof, const dxf::Document& drawing,
                     WindowMarks& marks, const std::string& before) {
  if (order.mark.empty()) return [before](const brevanta::WindowParams&) { return before; };
  return [&, pattern = MarkPattern(order.mark)](const brevanta::WindowParams& record) {
    const std::string roofName = roof.surface == nullptr ? std::string() : roof.surface->name;
    return marks.Fill(pattern, {record.markerValue, roofName, drawing.Decode(record.text2)});
  };
}

void StoreMark(const DrawnWindow& window, const std::string& mark, dxf::Document& drawing) {
  const std::string raw = drawing.Encode(mark);
  std::vector<dxf::TypedTag> tags = {
      {dxf::CODE_XDATA_APPLICATION, std::string_view(brevanta::MARK_APPLICATION)}};
  if (!mark.empty()) tags.push_back({dxf::CODE_XDATA_TEXT, std::string_view(raw)});
  for (const dxf::Entity* const entity : window.entities)
    drawing.SetExtendedData(*entity, tags);
}

}  // namespace teskarlt
