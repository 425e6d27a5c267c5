// ExtendedData.cpp - the 31 items of extended data on every entity of a window.
#include "arx/BvMakeWindow/ExtendedData.h"

#include "arx/BvMakeWindow/RecordText.h"

namespace brevanta {

namespace {

// Group codes of extended data.
constexpr std::int16_t XDATA_START = -3;
constexpr std::int16_t XDATA_APPLICATION = 1001;
constexpr std::int16_t XDATA_TEXT = 1000;
constexpr std::int16_t XDATA_POINT = 1011;
constexpr std::int16_t XDATA_REAL = 1040;
constexpr std::int16_t XDATA_DISTANCE = 1041;  // this and the next are used as plain reals
constexpr std::int16_t XDATA_SCALE = 1042;
constexpr std::int16_t XDATA_SHORT = 1070;
constexpr std::int16_t XDATA_LONG = 1071;

constexpr const char* ELEMENT_APPLICATION = "TK_LT_ELEM";
constexpr const char* DESCRIPTION_APPLICATION = "TK_LT_DESC";
constexpr const char* WINDOW_ELEMENT = "TKBRVA";
constexpr std::int32_t DESCRIPTION_VERSION = 1;

template <std::size_t SIZE>
void AppendText(const char (&field)[SIZE], ListBuilder& list) {
  list.Text(XDATA_TEXT, RecordText(field).Text());
}

void AppendPoint(const RecordPoint& p, ListBuilder& list) {
  list.Point(XDATA_POINT, p.x, p.y, p.z);
}

// With 0 no item is made, but the value still goes into the last one, the text before it; kept.
void AppendMarker(std::int32_t markerValue, ListBuilder& list) {
  if (markerValue != 0) list.Append(XDATA_LONG);
  list.Tail()->value.longInteger = markerValue;
}

}  // namespace

void AppendExtendedData(const CbvMakeWindow& window, ListBuilder& list) {
  const WindowParams& params = *window.params;
  list.Marker(XDATA_START);
  list.Text(XDATA_APPLICATION, ELEMENT_APPLICATION);
  list.Text(XDATA_TEXT, WINDOW_ELEMENT);
  AppendMarker(params.markerValue, list);

  list.Text(XDATA_APPLICATION, DESCRIPTION_APPLICATION);
  list.Short(XDATA_SHORT, DESCRIPTION_VERSION);
  list.Real(XDATA_REAL, window.Scaled(params.length));
  list.Real(XDATA_DISTANCE, window.Scaled(params.width));
  list.Real(XDATA_SCALE, window.Scaled(params.frameWidth));
  AppendText(params.text1, list);
  AppendText(params.text3, list);
  AppendText(params.openingCode, list);
  list.Short(XDATA_SHORT, params.drawOpeningSymbol);
  list.Real(XDATA_REAL, window.Scaled(params.frameDepth));
  list.Real(XDATA_REAL, window.Scaled(params.lowerEdgeHeight));
  list.Short(XDATA_SHORT, params.heightReference);
  list.Short(XDATA_SHORT, params.widthAnchor);
  list.Short(XDATA_SHORT, params.roofBuildUp);
  AppendPoint(params.storedPoint, list);
  AppendPoint(params.insertionPoint, list);
  list.Real(XDATA_REAL, params.rotation);
  list.Real(XDATA_REAL, params.rotation2);
  list.Real(XDATA_REAL, window.Scaled(params.layerThickness));
  list.Real(XDATA_REAL, params.pitch);
  for (int i = 0; i < 3; ++i) {
    AppendPoint(params.secondPlanePoints[i], list);
    AppendPoint(params.roofPlanePoints[i], list);
  }
  AppendText(params.text2, list);
}

}  // namespace brevanta
