// ScheduleJson.cpp - schedules for programs.
#include "teskarlt/schedule/ScheduleJson.h"

#include <cmath>
#include <cstdint>

namespace teskarlt::schedule {

namespace {

Json NumberJson(const std::optional<double>& value, ColumnKind kind) {
  if (!value) return nullptr;
  return kind == ColumnKind::Count ? Json(std::int64_t{std::llround(*value)}) : Json(*value);
}

// Points of the compass stay English: programs compare them.
Json ValueJson(const ScheduleRow& row, const Column& column, const Language& language) {
  if (column.number != nullptr) return NumberJson(row.*column.number, column.kind);
  const std::string& text = row.*column.text;
  if (column.kind == ColumnKind::Opening) return row.isRead ? Json(OpeningWords(text, language)) : nullptr;
  if (column.kind == ColumnKind::Compass || column.text == &ScheduleRow::roof)
    return text.empty() ? Json(nullptr) : Json(text);
  return text;
}

Json RowsJson(const std::vector<const ScheduleRow*>& rows, Columns columns, const Language& language) {
  Json json = Json::List();
  for (const ScheduleRow* const row : rows)
    json.Add(JsonOf(*row, columns, language));
  return json;
}

Json ChangesJson(const ChangedRow& changed, const Language& language) {
  Json json = Json::List();
  for (const Column* const column : changed.columns) {
    json.Add(Json::Object({{"column", column->name},
                           {"before", ValueJson(*changed.before, *column, language)},
                           {"after", ValueJson(*changed.after, *column, language)}}));
  }
  return json;
}

}  // namespace

Json JsonOf(const ScheduleRow& row, Columns columns, const Language& language) {
  Json json = Json::Object();
  for (const Column* const column : columns)
    json[column->name] = ValueJson(row, *column, language);
  return json;
}

Json JsonOf(const Schedule& schedule, Columns columns, const Language& language) {
  Json json = Json::Object();
  json["windows"] = Json::List();
  for (const ScheduleRow& row : schedule.rows)
    json["windows"].Add(JsonOf(row, columns, language));
  json["totals"] = Json::Object();
  for (const Column* const column : columns) {
    if (column->isTotalled)
      json["totals"][column->name] = NumberJson(TotalOf(*column, schedule), column->kind);
  }
  return json;
}

Json JsonOf(const Comparison& comparison, Columns columns, const Language& language) {
  Json json = Json::Object();
  json["came"] = RowsJson(comparison.came, columns, language);
  json["went"] = RowsJson(comparison.went, columns, language);
  json["changed"] = Json::List();
  for (const ChangedRow& row : comparison.changed)
    json["changed"].Add(Json::Object({{"mark", row.after->mark}, {"changes", ChangesJson(row, language)}}));
  return json;
}

}  // namespace teskarlt::schedule
