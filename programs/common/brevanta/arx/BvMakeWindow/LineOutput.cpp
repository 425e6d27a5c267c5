// LineOutput.cpp - the typed value list of one line.
#include "arx/BvMakeWindow/LineOutput.h"

#include "arx/BvMakeWindow/DescriptionOutput.h"
#include "arx/BvMakeWindow/ListBuilder.h"
#include "arx/exports/HostTable.h"
#include "inc/ValueList.h"

namespace brevanta {

ValueNode* BuildLineList(const CbvMakeWindow& window, const GcGePoint3d& start, const GcGePoint3d& end,
                         const char* layer, std::int32_t colour) {
  ListBuilder list(CODE_TYPE, "LINE");
  list.Text(CODE_SUBCLASS, "AcDbEntity");
  list.Text(CODE_LAYER, layer);
  if (window.currentLinetype[0] != '\0') list.Text(CODE_LINETYPE, window.currentLinetype);
  if (colour > NO_COLOUR) list.Short(CODE_COLOUR, colour);
  list.Text(CODE_SUBCLASS, "AcDbLine");
  GcGePoint3d from = start;
  GcGePoint3d to = end;
  from.transformBy(window.roofTransform);
  to.transformBy(window.roofTransform);
  list.Point(CODE_FIRST_POINT, from.x, from.y, from.z);
  list.Point(CODE_SECOND_POINT, to.x, to.y, to.z);
  AppendDescription(window, list);
  return list.Head();
}

void WriteLine(const CbvMakeWindow& window, const GcGePoint3d& start, const GcGePoint3d& end,
               const char* layer, std::int32_t colour) {
  ValueNode* list = BuildLineList(window, start, end, layer, colour);
  MakeEntityFromList(window.hostTable, list);
  FreeValueList(list);
}

}  // namespace brevanta
