// Placement.h - puts the window onto the roof: plane, point, heights, and whether it stays inside the face.
#pragma once

#include "dialog/Answers.h"
#include "dialog/RoofFaces.h"
#include "inc/DialogServices.h"
#include "inc/WindowParams.h"

namespace brevanta {

// Completes the record's placement from the answers in it, the picked point and the chosen roof: the plane's
// points, `pitch`, `insertionPoint` in the roof's local frame, `storedPoint`, and the heights. Throws Refusal
// when there is no roof or point, the plane cannot take a window, or the window would leave the roof's faces.
void PlaceWindow(const DialogServices& services, const Answers& answers, WindowParams& record);

}  // namespace brevanta
