// FieldWords.cpp - values of a window's fields for people and for programs.
#include "teskarlt/commands/FieldWords.h"

#include <span>

#include <fmt/format.h>

namespace teskarlt {

namespace {

using brevanta::FieldKind;
using brevanta::RecordField;
using brevanta::RecordPoint;
using brevanta::WindowParams;

Json PointJson(const RecordPoint& p) {
  return Json::List({p.x, p.y, p.z});
}

Json PointsJson(std::span<const RecordPoint> points) {
  if (points.size() == 1) return PointJson(points[0]);
  Json list = Json::List();
  for (const RecordPoint& p : points)
    list.Add(PointJson(p));
  return list;
}

// Nine digits: micrometres of a drawing a kilometre wide.
std::string PointsText(std::span<const RecordPoint> points) {
  std::string text;
  for (const RecordPoint& p : points)
    text += fmt::format("{}{:.9g},{:.9g},{:.9g}", text.empty() ? "" : ";", p.x, p.y, p.z);
  return text;
}

}  // namespace

Json FieldJson(const WindowParams& record, const RecordField& field, const dxf::Document& drawing) {
  switch (field.kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      return RealIn(record, field);
    case FieldKind::Integer:
      return IntegerIn(record, field);
    case FieldKind::Text:
      return drawing.Decode(TextIn(record, field));
    case FieldKind::Points:
      return PointsJson(PointsIn(record, field));
  }
  return nullptr;
}

std::string FieldText(const WindowParams& record, const RecordField& field, const dxf::Document& drawing,
                      const LengthWords& words) {
  switch (field.kind) {
    case FieldKind::Length:
      return words.Exact(RealIn(record, field));
    case FieldKind::Real:
      return fmt::format("{:.9g}", RealIn(record, field));
    case FieldKind::Integer:
      return fmt::format("{}", IntegerIn(record, field));
    case FieldKind::Text:
      return fmt::format("\"{}\"", drawing.Decode(TextIn(record, field)));
    case FieldKind::Points:
      return PointsText(PointsIn(record, field));
  }
  return {};
}

}  // namespace teskarlt
