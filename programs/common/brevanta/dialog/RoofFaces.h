// RoofFaces.h - the roof that the user chose for the window.
#pragma once

#include <vector>

#include "geometry/Vec3.h"
#include "inc/DialogServices.h"

namespace brevanta {

// Corners of one face in order around it, drawing coordinates.
using FaceCorners = std::vector<geometry::Vec3>;

struct Roof {
  FaceCorners span;        // corners of a face, or three points, that span its plane; empty without a roof
  bool isBounded = false;  // the window must stay inside the roof's faces
};

// The roof as the services give it.
Roof ChosenRoof(const DialogServices& services);

// The roof's faces that touch the box around the points in the plan; drawing coordinates.
std::vector<FaceCorners> RoofFacesNear(const DialogServices& services, const FaceCorners& points);

// All of its faces.
std::vector<FaceCorners> RoofFaces(const DialogServices& services);

// Fills `points` with three corners of the face that span its plane well, three given ones as they are.
// Throws Refusal when there are fewer than three.
void SpanPlane(const FaceCorners& face, RecordPoint (&points)[3]);

}  // namespace brevanta
