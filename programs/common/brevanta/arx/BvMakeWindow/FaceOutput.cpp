// FaceOutput.cpp - the typed value list of one face.
#include "arx/BvMakeWindow/FaceOutput.h"

#include "arx/BvMakeWindow/DescriptionOutput.h"
#include "arx/BvMakeWindow/LayerName.h"
#include "arx/BvMakeWindow/ListBuilder.h"
#include "arx/exports/HostTable.h"
#include "inc/ValueList.h"

namespace brevanta {

namespace {

// The hidden edges as bits 1, 2, 4 and 8.
std::int32_t HiddenEdges(const EdgeFlags& edges) {
  std::int32_t hidden = 0;
  for (std::size_t k = 0; k < edges.size(); ++k) {
    if (edges[k] != 1) hidden += 1 << k;
  }
  return hidden;
}

}  // namespace

ValueNode* BuildFaceList(const CbvMakeWindow& window, const std::array<GcGePoint3d, 4>& corners,
                         const EdgeFlags& edges, std::int32_t colour) {
  const LayerName layer(window.resourceModule, LAYER_BODY);
  ListBuilder list(CODE_TYPE, "3DFACE");
  list.Text(CODE_SUBCLASS, "AcDbEntity");
  list.Text(CODE_LAYER, layer.Text());
  if (colour > NO_COLOUR) list.Short(CODE_COLOUR, colour);
  list.Text(CODE_SUBCLASS, "AcDbFace");
  std::int16_t code = CODE_FIRST_POINT;
  for (GcGePoint3d corner : corners) {
    corner.transformBy(window.roofTransform);
    list.Point(code++, corner.x, corner.y, corner.z);
  }
  list.Short(CODE_HIDDEN_EDGES, HiddenEdges(edges));
  AppendDescription(window, list);
  return list.Head();
}

void WriteFace(const CbvMakeWindow& window, const GcGePoint3d& c1, const GcGePoint3d& c2,
               const GcGePoint3d& c3, const GcGePoint3d& c4, const EdgeFlags& edges, std::int32_t colour) {
  ValueNode* list = BuildFaceList(window, {c1, c2, c3, c4}, edges, colour);
  MakeEntityFromList(window.hostTable, list);
  FreeValueList(list);
}

}  // namespace brevanta
