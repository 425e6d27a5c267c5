// DescriptionOutput.cpp - the items of extended data on every entity of a window.
#include "arx/BvMakeWindow/DescriptionOutput.h"

#include "arx/BvMakeWindow/RecordText.h"
#include "window/Description.h"
#include "window/Parts.h"

namespace brevanta {

namespace {

constexpr std::int16_t XDATA_START = -3;
constexpr std::int16_t XDATA_TEXT = 1000;
constexpr std::int16_t XDATA_APPLICATION = 1001;
constexpr std::int16_t XDATA_LONG = 1071;

// With 0 no item is made, but the value still goes into the last one, the text before it; kept.
void AppendMarker(std::int32_t markerValue, ListBuilder& list) {
  if (markerValue != 0) list.Append(XDATA_LONG);
  list.Tail()->value.longInteger = markerValue;
}

void AppendItem(const DescriptionItem& item, const CbvMakeWindow& window, ListBuilder& list) {
  const WindowParams& params = *window.params;
  const RecordField* const described = item.Field();
  if (described == nullptr) {
    list.Short(item.code, DESCRIPTION_VERSION);
    return;
  }
  const RecordField& field = *described;
  switch (field.kind) {
    case FieldKind::Length:
    case FieldKind::Real:
      list.Real(item.code, RealIn(params, field) * ItemFactor(field, window.unitFactor));
      break;
    case FieldKind::Integer:
      list.Short(item.code, IntegerIn(params, field));
      break;
    case FieldKind::Text:
      list.Text(item.code, RecordText(TextIn(params, field)).Text());
      break;
    case FieldKind::Points: {
      const RecordPoint& p = PointsIn(params, field)[item.point];
      list.Point(item.code, p.x, p.y, p.z);
      break;
    }
  }
}

}  // namespace

void AppendDescription(const CbvMakeWindow& window, ListBuilder& list) {
  list.Marker(XDATA_START);
  list.Text(XDATA_APPLICATION, ELEMENT_APPLICATION);
  list.Text(XDATA_TEXT, WINDOW_ELEMENT);
  AppendMarker(window.params->markerValue, list);

  list.Text(XDATA_APPLICATION, DESCRIPTION_APPLICATION);
  for (const DescriptionItem& item : DESCRIPTION)
    AppendItem(item, window, list);
}

}  // namespace brevanta
