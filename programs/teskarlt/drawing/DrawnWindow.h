// DrawnWindow.h - the roof windows that a drawing holds, read back from the extended data of their entities.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inc/WindowParams.h"
#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"
#include "window/RecordFields.h"

namespace teskarlt {

// One window of a drawing.
struct DrawnWindow {
  std::int32_t number = 0;  // of the record's `markerValue`; 0 when the entities carry none
  // What the extended data holds, lengths in metres and points in working units; the other fields are 0 and
  // its texts are empty.
  brevanta::WindowParams params{};
  WorkingUnit unit;   // of the record
  std::string text1;  // UTF-8
  std::string text2;
  std::string text3;
  std::string openingCode;
  std::string mark;         // the name that the user gave it, UTF-8; empty for none
  bool isComplete = false;  // every item of the description was there and could be read
  std::vector<const dxf::Entity*> entities;
  std::size_t faces = 0;  // of the entities
};

// The texts by the record's fields.
struct DrawnText {
  std::string_view field;
  std::string DrawnWindow::*text;
};
inline constexpr DrawnText DRAWN_TEXTS[] = {{"text1", &DrawnWindow::text1},
                                            {"text2", &DrawnWindow::text2},
                                            {"text3", &DrawnWindow::text3},
                                            {"openingCode", &DrawnWindow::openingCode}};

// The window's name on plans and in schedules: its mark, or of one without a mark that which it would get
// where nobody says another.
std::string ShownMark(const DrawnWindow& window);

// Where a window has the text of that field, which is one of the texts.
std::string DrawnWindow::*TextMember(const brevanta::RecordField& field);

// Whether windows have entities of that type.
bool CanBePart(std::string_view type);

// True when the entity is marked as one of a roof window.
bool IsWindowEntity(const dxf::Document& drawing, const dxf::Entity& entity);

// Where the entity of a window holds its number; none in one that has none.
std::optional<dxf::Tag> NumberTagOf(const dxf::Document& drawing, const dxf::Entity& entity);

// How many lines a window with this description has.
std::size_t LinesOf(const DrawnWindow& window);

// Whether there are more entities than one window can have.
bool HasMoreThanOneWindow(const DrawnWindow& window);

// What is wrong with the count of the entities, for people; empty when all are there and none besides.
std::string EntityMismatch(const DrawnWindow& window);

// The windows in the order of their first entities. Entities with the same number and the same description
// are one window, or several where they are a multiple of what one has: another program's copies. These are
// told apart by their order, where each has the one of its model, or else by where they lie. The drawing must
// outlive the result.
std::vector<DrawnWindow> FindWindows(const dxf::Document& drawing, const WorkingUnit& unit);

// The numbers of the windows, and those that the drawing keeps taken.
WindowNumbers NumbersOf(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows);

// Keeps the number of a window that goes from being given again, if none of the windows has a higher one.
// Once before the drawing is saved.
void KeepNumberTaken(dxf::Document& drawing, const std::vector<DrawnWindow>& windows, std::int32_t number);

}  // namespace teskarlt
