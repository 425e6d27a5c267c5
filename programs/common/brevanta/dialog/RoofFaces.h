// RoofFaces.h - the roof that the user chose for the window.
#pragma once

#include <vector>

#include "geometry/Vec3.h"
#include "inc/DialogServices.h"

namespace brevanta {

// Corners of one face in order around it, drawing coordinates.
using FaceCorners = std::vector<geometry::Vec3>;

struct Roof {
  std::vector<FaceCorners> faces;  // the chosen face first, then those that continue it in its plane
  bool isBounded = false;          // the window must stay inside the faces
};

// The roof as the services give it; without faces when the user chose none.
Roof ChosenRoof(const DialogServices& services);

// Fills `points` with three corners of the face that span its plane well, three given ones as they are.
// Throws Refusal when there are fewer than three.
void SpanPlane(const FaceCorners& face, RecordPoint (&points)[3]);

}  // namespace brevanta
