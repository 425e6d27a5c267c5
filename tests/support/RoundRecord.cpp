// RoundRecord.cpp - the record of round numbers.
#include "tests/support/RoundRecord.h"

#include "window/Choices.h"

namespace round_record {

brevanta::WindowParams OnSlope() {
  brevanta::WindowParams record{};
  record.width = 100;
  record.length = 200;
  record.frameWidth = 10;
  record.frameDepth = 5;
  record.placeByHeight = 0;
  record.heightReference = 0;
  record.widthAnchor = brevanta::ANCHOR_START;
  record.roofBuildUp = brevanta::BUILD_UP_PLAIN;
  record.bodyAsFaces = 1;
  record.pitch = PITCH;
  record.drawOpeningSymbol = 0;
  record.unitFactor = 1;
  record.markerValue = 7;
  record.roofPlanePoints[0] = {100, 0, 0};
  record.roofPlanePoints[1] = {0, 100, 75};
  record.roofPlanePoints[2] = {0, 0, 0};
  return record;
}

}  // namespace round_record
