// FullRecord.h - a record with a value of its own in every field, and the extended data that it must give.
#pragma once

#include <cstring>

#include "tests/support/NodeList.h"
#include "tests/support/RoundRecord.h"

namespace brevanta {

inline WindowParams FullRecord() {
  WindowParams record{};
  record.width = 0.94;
  record.length = 1.4;
  record.frameWidth = 0.125;
  record.frameDepth = 0.075;
  record.skirtHeight = 0.5;
  record.lowerEdgeHeight = 2.25;
  record.placeByHeight = 1;
  record.heightReference = 3;
  record.widthAnchor = 2;
  record.pickOffset = 0.75;
  record.roofBuildUp = 1;
  record.bodyAsFaces = 1;
  record.slopeOffset = 0.25;
  record.upperEdgeHeight = 4.5;
  record.layerThickness = 0.375;
  record.pitch = 30;
  record.drawOpeningSymbol = -1;
  round_record::SetText("first", record.text1);
  round_record::SetText("second", record.text2);
  round_record::SetText("third", record.text3);
  round_record::SetText("EIR", record.openingCode);
  record.storedPoint = {1, 2, 3};
  record.insertionPoint = {4, 5, 6};
  record.rotation = 0.5;
  record.rotation2 = 1.5;
  for (int k = 0; k < 3; ++k) {
    record.secondPlanePoints[k] = {100.0 + k, 200.0 + k, 300.0 + k};
    record.roofPlanePoints[k] = {400.0 + k, 500.0 + k, 600.0 + k};
  }
  record.unitFactor = 3;  // not the maker's
  record.markerValue = 70000;
  return record;
}

// With 1000 drawing units a metre.
inline node_list::NodeList FullExtendedData() {
  using namespace node_list;  // NOLINT(google-build-using-namespace): a literal list
  return {Marker(-3),
          Text(1001, "TK_LT_ELEM"),
          Text(1000, "TKBRVA"),
          Integer(1071, 70000),
          Text(1001, "TK_LT_DESC"),
          Integer(1070, 1),
          Real(1040, 1400),
          Real(1041, 940),
          Real(1042, 125),
          Text(1000, "first"),
          Text(1000, "third"),
          Text(1000, "EIR"),
          Integer(1070, -1),
          Real(1040, 75),
          Real(1040, 2250),
          Integer(1070, 3),
          Integer(1070, 2),
          Integer(1070, 1),
          Coordinates(1011, 1, 2, 3),
          Coordinates(1011, 4, 5, 6),
          Real(1040, 0.5),
          Real(1040, 1.5),
          Real(1040, 375),
          Real(1040, 30),
          Coordinates(1011, 100, 200, 300),
          Coordinates(1011, 400, 500, 600),
          Coordinates(1011, 101, 201, 301),
          Coordinates(1011, 401, 501, 601),
          Coordinates(1011, 102, 202, 302),
          Coordinates(1011, 402, 502, 602),
          Text(1000, "second")};
}

}  // namespace brevanta
