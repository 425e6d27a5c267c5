// WindowMarks.h - names that users give windows, such as W01: how they are made, and which are taken.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Of what the marks are made that windows get where nobody says another; ShownMark is made so, too.
inline constexpr const char* USUAL_MARK = "W{number:02}";

// What a pattern can tell of a window; UTF-8.
struct MarkedWindow {
  std::int32_t number = 0;
  std::string roof = {};  // its name; empty where the window lies on none
  std::string type = {};  // its second text, as a catalogue's window has its key there; empty for none
};

// The pattern of marks: text, in which {number}, {roof} and {type} stand for what the window has of them, and
// {run} for the first number from 1 on with which no other window bears the mark, so that {type}-{run}
// counts the windows of each type. {number:03} and {run:03} have at least three digits.
class MarkPattern {
 public:
  // Throws Error for a text that is empty, has blanks at its ends, or holds another word in braces, a brace
  // alone, or control characters.
  explicit MarkPattern(std::string_view text);

  bool NamesRoof() const { return Has(Word::Roof); }
  bool HasRun() const { return Has(Word::Run); }
  // The mark of the window with that number for {run}. Throws Error where the window has no roof or type
  // that the mark is to name.
  std::string MarkOf(const MarkedWindow& window, std::int64_t run) const;

 private:
  enum class Word { Text, Number, Roof, Type, Run };
  struct Piece {
    Word word;
    std::string text;  // of Word::Text
    int digits = 0;    // at least
  };

  void AddWord(std::string_view word);
  bool Has(Word word) const;

  std::string text_;
  std::vector<Piece> pieces_;
};

// The marks of a drawing's windows.
class WindowMarks {
 public:
  WindowMarks() = default;
  explicit WindowMarks(const std::vector<DrawnWindow>& windows);

  // An empty mark is none, and can be taken any number of times.
  void Take(const std::string& mark, std::int32_t number);
  void Release(const std::string& mark, std::int32_t number);

  // The mark that the pattern gives the window. Throws Error where another window bears it, or as MarkOf.
  std::string Fill(const MarkPattern& pattern, const MarkedWindow& window);

 private:
  std::multimap<std::string, std::int32_t, std::less<>> numbers_;  // of the windows that bear them
  std::map<std::string, std::int64_t, std::less<>> runs_;  // by the mark without its run: none below is free
};

// The marks that windows get by the order, on that roof: by its pattern, or `before`. Roof, drawing and marks
// must outlive the result.
MarkOfRecord MarkFor(const WindowOrder& order, const RoofChoice& roof, const dxf::Document& drawing,
                     WindowMarks& marks, const std::string& before = {});

// Gives the window's entities the mark (UTF-8), or takes theirs where it is empty. Throws Error for one that
// is too long for the drawing. For windows as the drawing was loaded; once each.
void StoreMark(const DrawnWindow& window, const std::string& mark, dxf::Document& drawing);

}  // namespace teskarlt
