// SecondPlane.h - the second plane, by which a window can be placed instead of its roof's.
#pragma once

#include "geometry/Vec3.h"
#include "inc/WindowParams.h"

namespace brevanta {

// Whether the window is placed by its second plane: the roof's construction has one, and a layer above it.
bool UsesSecondPlane(const WindowParams& params);

// The point of the roof's underside below one of the roof: lowered by the layer's thickness along the roof's
// unit normal, which points upwards. Drawing coordinates.
geometry::Vec3 OnUnderside(const geometry::Vec3& onRoof, const geometry::Vec3& normal,
                           const WindowParams& params);

// True when the record's second plane is the roof's underside within `tolerance` (drawing units).
bool IsUnderside(const WindowParams& params, double tolerance);

// Whether the window is placed by a second plane that is not the roof's underside: it then does not lie in
// the roof's plane.
bool HasOwnSecondPlane(const WindowParams& params, double tolerance);

}  // namespace brevanta
