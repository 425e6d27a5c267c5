// RoofChoice.h - the roof onto which a window goes.
#pragma once

#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/windows/WindowOrder.h"

namespace teskarlt {

// Drawing coordinates and units.
struct RoofChoice {
  const RoofFace* face = nullptr;        // one of the drawing's faces; null where points give a plane
  const RoofSurface* surface = nullptr;  // the face's
  FaceCorners corners = {};              // of a face, or three points, that span the plane
  FacesNear facesNear = {};              // null where the plane has no bounds
};

// The surface of the face, which must be one that takes a window; the window stays inside it. Its plane is
// the face's own where that is the surface's too, else the best fit. The roofs must outlive the choice.
RoofChoice OnFace(const RoofFace& face, const Roofs& roofs);

// The plane without bounds through three points.
RoofChoice OnPlane(std::vector<geometry::Vec3> points);

// What the order says of the roof: its plane, the edge of one that is only drawn in plan, the surface or face
// that it names, or the uppermost at its point. Empty where the order sets the field of the roof's points,
// which the dialog reads itself. Throws Error, naming the option, when there is no such face in the file,
// several, one that takes no window, or too much is said.
RoofChoice ChooseRoof(const WindowOrder& order, const std::string& file, const Roofs& roofs);

// Whether the order says on which roof the window goes, or where on it.
bool NamesPlace(const WindowOrder& order);

// Puts the choice into the request.
void PutRoof(const RoofChoice& roof, WindowRequest& request);

}  // namespace teskarlt
