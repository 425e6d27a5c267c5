// Columns.h - the columns that a schedule can have.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "teskarlt/schedule/Schedule.h"

namespace teskarlt::schedule {

// What a column holds, which decides how its values are written.
enum class ColumnKind {
  Text,
  Opening,  // a code, said in words
  Compass,  // a point of the compass, in the letters of the language
  Count,
  Size,    // of a window: millimetres
  Height,  // or distance on a roof: metres
  Area,
  Angle,
};

// The values of a row are in its member `text`, or in its member `number`.
struct Column {
  std::string_view name;  // for users, programs, and in the languages
  ColumnKind kind;
  std::string ScheduleRow::*text = nullptr;
  std::optional<double> ScheduleRow::*number = nullptr;
  bool isOfType = false;    // what is to be ordered: windows of one type have it in common
  bool isTotalled = false;  // the sum over all windows means something
  bool isUsual = true;      // there unless the user chooses columns
};

inline constexpr Column COLUMNS[] = {
    {.name = "mark", .kind = ColumnKind::Text, .text = &ScheduleRow::mark},
    {.name = "quantity", .kind = ColumnKind::Count, .number = &ScheduleRow::quantity, .isTotalled = true},
    {.name = "maker", .kind = ColumnKind::Text, .text = &ScheduleRow::maker, .isOfType = true},
    {.name = "key", .kind = ColumnKind::Text, .text = &ScheduleRow::key, .isOfType = true},
    {.name = "text", .kind = ColumnKind::Text, .text = &ScheduleRow::text, .isOfType = true},
    {.name = "width", .kind = ColumnKind::Size, .number = &ScheduleRow::width, .isOfType = true},
    {.name = "length", .kind = ColumnKind::Size, .number = &ScheduleRow::length, .isOfType = true},
    {.name = "frameWidth", .kind = ColumnKind::Size, .number = &ScheduleRow::frameWidth, .isOfType = true},
    {.name = "frameDepth", .kind = ColumnKind::Size, .number = &ScheduleRow::frameDepth, .isOfType = true},
    {.name = "opening", .kind = ColumnKind::Opening, .text = &ScheduleRow::openingCode, .isOfType = true},
    {.name = "pitch", .kind = ColumnKind::Angle, .number = &ScheduleRow::pitch},
    {.name = "roof", .kind = ColumnKind::Text, .text = &ScheduleRow::roof},
    {.name = "compass", .kind = ColumnKind::Compass, .text = &ScheduleRow::compass},
    {.name = "sill", .kind = ColumnKind::Height, .number = &ScheduleRow::sill},
    {.name = "head", .kind = ColumnKind::Height, .number = &ScheduleRow::head},
    {.name = "glassArea", .kind = ColumnKind::Area, .number = &ScheduleRow::glassArea, .isTotalled = true},
    {.name = "frameArea", .kind = ColumnKind::Area, .number = &ScheduleRow::frameArea, .isTotalled = true},
    {.name = "toEaves", .kind = ColumnKind::Height, .number = &ScheduleRow::toEaves},
    {.name = "toRidge", .kind = ColumnKind::Height, .number = &ScheduleRow::toRidge},
    {.name = "layer", .kind = ColumnKind::Text, .text = &ScheduleRow::layer},
    {.name = "number", .kind = ColumnKind::Count, .number = &ScheduleRow::number, .isUsual = false},
    {.name = "code", .kind = ColumnKind::Text, .text = &ScheduleRow::openingCode, .isUsual = false},
    {.name = "windowLayers", .kind = ColumnKind::Text, .text = &ScheduleRow::windowLayers, .isUsual = false},
    {.name = "notes", .kind = ColumnKind::Text, .text = &ScheduleRow::notes, .isUsual = false},
};

// The column of that name, without regard to case; null when there is none.
const Column* FindColumn(std::string_view name);

// The sum of a column over all windows; none where no row has a value.
std::optional<double> TotalOf(const Column& column, const Schedule& schedule);

}  // namespace teskarlt::schedule
