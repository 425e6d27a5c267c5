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
  std::string ScheduleRow::*text = nullptr;
  std::optional<double> ScheduleRow::*number = nullptr;
  ColumnKind kind = ColumnKind::Text;
  bool isOfType = false;    // what is to be ordered: windows of one type have it in common
  bool isTotalled = false;  // the sum over all windows means something
  bool isUsual = true;      // there unless the user chooses columns
};

inline constexpr Column COLUMNS[] = {
    {.name = "mark", .text = &ScheduleRow::mark, .kind = ColumnKind::Text},
    {.name = "quantity", .number = &ScheduleRow::quantity, .kind = ColumnKind::Count, .isTotalled = true},
    {.name = "maker", .text = &ScheduleRow::maker, .kind = ColumnKind::Text, .isOfType = true},
    {.name = "key", .text = &ScheduleRow::key, .kind = ColumnKind::Text, .isOfType = true},
    {.name = "text", .text = &ScheduleRow::text, .kind = ColumnKind::Text, .isOfType = true},
    {.name = "width", .number = &ScheduleRow::width, .kind = ColumnKind::Size, .isOfType = true},
    {.name = "length", .number = &ScheduleRow::length, .kind = ColumnKind::Size, .isOfType = true},
    {.name = "frameWidth", .number = &ScheduleRow::frameWidth, .kind = ColumnKind::Size, .isOfType = true},
    {.name = "frameDepth", .number = &ScheduleRow::frameDepth, .kind = ColumnKind::Size, .isOfType = true},
    {.name = "opening", .text = &ScheduleRow::openingCode, .kind = ColumnKind::Opening, .isOfType = true},
    {.name = "pitch", .number = &ScheduleRow::pitch, .kind = ColumnKind::Angle},
    {.name = "roof", .text = &ScheduleRow::roof, .kind = ColumnKind::Text},
    {.name = "compass", .text = &ScheduleRow::compass, .kind = ColumnKind::Compass},
    {.name = "sill", .number = &ScheduleRow::sill, .kind = ColumnKind::Height},
    {.name = "head", .number = &ScheduleRow::head, .kind = ColumnKind::Height},
    {.name = "glassArea", .number = &ScheduleRow::glassArea, .kind = ColumnKind::Area, .isTotalled = true},
    {.name = "frameArea", .number = &ScheduleRow::frameArea, .kind = ColumnKind::Area, .isTotalled = true},
    {.name = "toEaves", .number = &ScheduleRow::toEaves, .kind = ColumnKind::Height},
    {.name = "toRidge", .number = &ScheduleRow::toRidge, .kind = ColumnKind::Height},
    {.name = "layer", .text = &ScheduleRow::layer, .kind = ColumnKind::Text},
    {.name = "number", .number = &ScheduleRow::number, .kind = ColumnKind::Count, .isUsual = false},
    {.name = "code", .text = &ScheduleRow::openingCode, .kind = ColumnKind::Text, .isUsual = false},
    {.name = "windowLayers", .text = &ScheduleRow::windowLayers, .kind = ColumnKind::Text, .isUsual = false},
    {.name = "notes", .text = &ScheduleRow::notes, .kind = ColumnKind::Text, .isUsual = false},
};

// The column of that name, without regard to case; null when there is none.
const Column* FindColumn(std::string_view name);

// Whether any row has a value in the column.
bool IsTold(const Column& column, const Schedule& schedule);

// The sum of a column over all windows; none where no row has a value.
std::optional<double> TotalOf(const Column& column, const Schedule& schedule);

}  // namespace teskarlt::schedule
