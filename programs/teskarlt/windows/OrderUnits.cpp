// OrderUnits.cpp - an order in the unit in which windows are computed.
#include "teskarlt/windows/OrderUnits.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "inc/DialogServices.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

bool IsPoints(std::string_view field) {
  const brevanta::RecordField* const found = brevanta::FindRecordField(field);
  return found != nullptr && found->kind == brevanta::FieldKind::Points;
}

// "X,Y,Z;X,Y,Z" with each number taken to working units; what is no number stays.
std::string PointsInWorkingUnits(std::string_view text, const WorkingUnit& unit) {
  constexpr char DELIMITERS[] = {',', brevanta::POINT_DELIMITER};
  std::string points;
  for (;;) {
    const std::size_t end = text.find_first_of(std::string_view(DELIMITERS, sizeof DELIMITERS));
    const std::string_view part = text.substr(0, end);
    const std::optional<double> number = dxf::ParseReal(part);
    points += number ? fmt::format("{}", ToWorking(*number, unit)) : std::string(part);
    if (end == std::string_view::npos) return points;
    points += text[end];
    text.remove_prefix(end + 1);
  }
}

PlanPoint InWorkingUnits(const PlanPoint& point, const WorkingUnit& unit) {
  return {ToWorking(point.x, unit), ToWorking(point.y, unit), point.text, point.option};
}

}  // namespace

WindowOrder InWorkingUnits(const WindowOrder& order, const WorkingUnit& unit) {
  if (unit.perDrawingUnit == 1.0) return order;  // numbers stay as the user wrote them
  WindowOrder working = order;
  for (std::optional<PlanPoint>* point : {&working.at, &working.planRoof.risesTo, &working.placing.over})
    if (*point) *point = InWorkingUnits(**point, unit);
  for (std::vector<PlanPoint>* edge : {&working.planRoof.eaves, &working.planRoof.ridge}) {
    for (PlanPoint& end : *edge)
      end = InWorkingUnits(end, unit);
  }
  for (geometry::Vec3& point : working.roof)
    point = ToWorking(point, unit);
  for (FieldSetting& setting : working.settings)
    if (IsPoints(setting.field)) setting.value = PointsInWorkingUnits(setting.value, unit);
  return working;
}

}  // namespace teskarlt
