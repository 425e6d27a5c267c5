// PlanOutline.cpp - the window's outline in the roof plane as lines.
#include "arx/BvMakeWindow/PlanOutline.h"

#include "arx/BvMakeWindow/LayerName.h"
#include "arx/BvMakeWindow/LineOutput.h"

namespace brevanta {

void DrawPlanOutline(CbvMakeWindow& maker, const Point3dArray& outer, const Point3dArray& opening,
                     std::int32_t symbolSwitch) {
  maker.currentLinetype[0] = '\0';
  maker.symbolLinetype[0] = '\0';
  const LayerName layer(maker.resourceModule, symbolSwitch == 0 ? LAYER_OPENING : LAYER_OUTLINE);
  const auto draw = [&](const GcGePoint3d& from, const GcGePoint3d& to) {
    WriteLine(maker, from, to, layer.Text(), NO_COLOUR);
  };

  const Point3dArray& outline = symbolSwitch == 0 ? opening : outer;
  for (int k = 0; k < 4; ++k)
    draw(outline[k], outline[(k + 1) % 4]);
  if (symbolSwitch != 0) return;
  draw(outer[1], outer[2]);
  draw(outer[1], opening[3]);
  draw(outer[2], opening[0]);
}

}  // namespace brevanta
