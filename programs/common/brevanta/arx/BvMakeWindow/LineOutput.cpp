// LineOutput.cpp - the typed value list of one line.
#include "arx/BvMakeWindow/LineOutput.h"

#include "arx/BvMakeWindow/DescriptionOutput.h"
#include "arx/BvMakeWindow/ListBuilder.h"
#include "arx/exports/HostTable.h"
#include "inc/ValueList.h"

namespace brevanta {

ValueNode* BuildLineList(const CbvMakeWindow& window, const GcGePoint3d& start, const GcGePoint3d& end,
                         const char* layer, std::int32_t colour) {
  ListBuilder list(0, "LINE");
  list.Text(100, "AcDbEntity");
  list.Text(8, layer);
  if (window.currentLinetype[0] != '\0') list.Text(6, window.currentLinetype);
  if (colour > NO_COLOUR) list.Short(62, colour);
  list.Text(100, "AcDbLine");
  GcGePoint3d from = start;
  GcGePoint3d to = end;
  from.transformBy(window.roofTransform);
  to.transformBy(window.roofTransform);
  list.Point(10, from.x, from.y, from.z);
  list.Point(11, to.x, to.y, to.z);
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
