// Schedule.h - a schedule of roof windows: rows of plain values, whatever they are written as.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace teskarlt::schedule {

// A window, or the windows of one type. Lengths in metres and areas in square metres, or in drawing units
// where the drawing's unit is not known. Texts are UTF-8; what is not known is empty or none.
struct ScheduleRow {
  std::string mark;
  std::optional<double> number = {};  // by which other commands know the window
  std::optional<double> quantity = 1;
  std::string maker = {};
  std::string key = {};  // in the maker's catalogue
  std::string text = {};
  std::optional<double> width = {};  // of the frame, across the slope
  std::optional<double> length = {};
  std::optional<double> frameWidth = {};
  std::optional<double> frameDepth = {};
  std::string openingCode = {};
  bool isRead = true;                // false: its description is damaged
  std::optional<double> pitch = {};  // degrees from the horizontal
  std::string roof = {};
  std::string compass = {};         // where the roof falls to, "SSE"
  std::optional<double> sill = {};  // heights of the frame's edges as it is drawn
  std::optional<double> head = {};
  std::optional<double> glassArea = {};
  std::optional<double> frameArea = {};  // without the glass
  std::optional<double> toEaves = {};    // along the slope, negative beyond it
  std::optional<double> toRidge = {};
  std::string layer = {};         // of the roof
  std::string windowLayers = {};  // of the window's entities
  std::string notes = {};
};

struct Schedule {
  std::string file;     // of the drawing
  bool hasUnit = true;  // false: lengths are in drawing units
  std::vector<ScheduleRow> rows;
};

// What the rows are ordered by; rows that are equal in it keep their order.
enum class Order { Mark, Roof, Type };

void Sort(Order order, Schedule& schedule);

// A row for each type, in the order of their first windows: windows with the same values in the columns that
// say what is to be ordered. In the other columns stand all texts of these windows, each once, and the value
// that is the same for all of them.
Schedule ByType(const Schedule& schedule);

// Whether the one text comes before the other when digits count as numbers: "W2" before "W10".
bool IsNaturallyBefore(std::string_view a, std::string_view b);

}  // namespace teskarlt::schedule
