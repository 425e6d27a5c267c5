// BvMakeWindow.h - the insertion object: what one insertion
// needs, and the flow that turns a record into entities.
#pragma once

#include <cstdint>

#include "arx/BvMakeWindow/Point3dArray.h"
#include "inc/HostFunctionTable.h"
#include "inc/WindowParams.h"
#include "platform/GcGeMatrix3d.h"
#include "platform/ModuleServices.h"

namespace brevanta {

constexpr int LINETYPE_NAME_SIZE = 260;

// Results of CbvMakeWindow::Make.
constexpr std::int32_t MAKE_FAILED = 0;  // second plane collinear, or the roof vertical
constexpr std::int32_t MAKE_DONE = 1;    // built, or, on purpose, the roof points collinear and nothing built

// One per confirmed dialog, on the command's stack. Not reentrant: the roof-plane fit is module-wide.
class CbvMakeWindow {
 public:
  // Loads the string-resource module and takes the host's table; either may be missing.
  CbvMakeWindow();
  virtual ~CbvMakeWindow();
  CbvMakeWindow(const CbvMakeWindow&) = delete;
  CbvMakeWindow& operator=(const CbvMakeWindow&) = delete;

  // Inserts the window that the record describes; `factor` is in drawing units per metre. The record's
  // `insertionPoint`, `upperEdgeHeight` and `rotation` are written back. Gives MAKE_DONE or MAKE_FAILED.
  std::int32_t Make(WindowParams* record, std::int32_t factor);

  // Stores one edge height of the window, derived from the other (EdgeHeights.h): mode 1 the upper one in
  // `upperEdgeHeight`, any other mode the lower one in `lowerEdgeHeight`; in drawing units, unlike what it
  // comes from.
  void ComputeEdgeHeights(int mode);

  // Builds and writes the window at `point`, in roof-local coordinates. `roofPoint` is not read. `slopeAngle`
  // is in radians; `slopeSign` and `direction`, 1 or -1, give the directions of the fall line along y and of
  // the width along x.
  void BuildWindow(const GcGePoint3d& point, const GcGePoint3d& roofPoint, double slopeAngle,
                   std::int16_t slopeSign, std::int32_t direction);

  // A length of the record, in metres, in drawing units.
  double Scaled(double metres) const { return metres * static_cast<double>(unitFactor); }

  WindowParams* params = nullptr;                 // not owned; set by Make
  char currentLinetype[LINETYPE_NAME_SIZE] = {};  // of the lines being written; empty: none
  char symbolLinetype[LINETYPE_NAME_SIZE] = {};   // of the dashed marks of the opening symbol
  HostFunctionTable* hostTable = nullptr;         // not owned; may be null
  HMODULE resourceModule = nullptr;               // owned; may be null
  GcGeMatrix3d roofTransform;                     // from the roof's local frame to the drawing
  Point3dArray innerOutline;                      // of the sash, recorded with the body
  Point3dArray outerOutline;                      // of the frame, recorded with the body (six points)
  std::int32_t unitFactor = 1;                    // drawing units per metre; set by Make
  char hingeSide[2] = {};                         // "L" or "R"
};

}  // namespace brevanta
