// RoofSearch.h - finds the faces of a drawing of which roofs can be made.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/drawing/UnreadEntities.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

struct FoundFaces {
  std::vector<RoofFace> faces;
  std::vector<Wall> walls;
  UnreadEntities unread;  // those whose outlines cancel themselves among them
};

// The faces of the model space in the order of the file (EntityFaces.h), those of blocks where they are
// inserted; closed polylines within others are holes (OutlineHoles.h). Vertical faces come apart; left out
// are those of roof windows, and flat outlines and fillings at height 0, with which plans are drawn.
// `tolerance` is a millimetre in drawing units.
//
// A face is named by the handle of its entity, "2F"; where that has several, with their numbers from 1,
// "2F.3". Before it stand the handles of the INSERTs around it, "1A.2F.3", one with rows and columns with the
// number of the copy, "1A-7.2F.3". An entity without a handle has "N" and its number in the file or in its
// block.
FoundFaces SearchFaces(const dxf::Document& drawing, double tolerance);

// Those that are not vertical alone.
std::vector<RoofFace> FindFaces(const dxf::Document& drawing, double tolerance);

// The vertical faces.
std::vector<RoofFace> FindWalls(const dxf::Document& drawing, double tolerance);

// Hands over the faces one after the other, vertical ones too, without holes that are closed polylines of
// their own; gives what cannot be read.
UnreadEntities WalkFaces(const dxf::Document& drawing, double tolerance,
                         const std::function<void(RoofFace)>& take);

// The name that a face has now by one that it had before: "2F/3" was "2F.3", and "#7" was "N7".
std::string PresentName(std::string_view name);

}  // namespace teskarlt
