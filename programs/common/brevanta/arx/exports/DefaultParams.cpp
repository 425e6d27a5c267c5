// DefaultParams.cpp - the defaults of a window record.
#include "arx/exports/DefaultParams.h"

#include <cstring>

#include "window/Choices.h"

namespace brevanta {

WindowParams* SetDefaultWindowParams(WindowParams* record) {
  record->width = 0.94;
  record->length = 1.4;
  record->frameWidth = 0.1;
  record->frameDepth = 0.08;
  record->skirtHeight = 0.0;
  record->lowerEdgeHeight = 0.0;
  record->placeByHeight = PLACED_BY_HEIGHT;
  record->heightReference = REVEALS_PLUMB_AND_LEVEL;
  record->widthAnchor = ANCHOR_CENTRE;
  record->pickOffset = 0.0;
  record->roofBuildUp = BUILD_UP_PLAIN;
  record->bodyAsFaces = BODY_AS_FACES;
  record->slopeOffset = DEFAULT_SLOPE_OFFSET;
  record->upperEdgeHeight = 0.0;
  record->layerThickness = 0.1;
  record->pitch = 30.0;
  record->drawOpeningSymbol = OPENING_SYMBOL;
  record->text1[0] = '\0';
  record->text2[0] = '\0';
  record->text3[0] = '\0';
  constexpr char code[] = "D";
  static_assert(sizeof code <= OPENING_CODE_SIZE);
  std::memcpy(record->openingCode, code, sizeof code);
  record->rotation = 0.0;
  record->rotation2 = 0.0;
  record->unitFactor = 1;
  record->markerValue = 0;
  return record;
}

}  // namespace brevanta
