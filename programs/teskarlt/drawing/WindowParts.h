// WindowParts.h - where the parts of a window lie, in the order in which they were drawn.
#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string_view>
#include <tuple>
#include <vector>

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/PartOrder.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Parts that lie farther apart do not belong together.
constexpr double SAME_PLACE = 1e-3;  // metres

// Faces and lines with the entities that they are, each list in the order of the other.
struct WindowParts {
  std::vector<PartCorners> faces;
  std::vector<PartCorners> lines;
  std::vector<const dxf::Entity*> faceEntities;
  std::vector<const dxf::Entity*> lineEntities;
};

// The parts in the order of `entities`, which CanBePart, in working units. Corners that are missing lie at
// the origin.
WindowParts ReadParts(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities,
                      const WorkingUnit& unit);

// What a part is in its window: the same number means the same part of windows with and without a skirt, and
// with other opening marks.
struct PartRole {
  bool isFace;
  int number;
  bool IsMark() const;  // a line of an opening mark, whose linetype the opening code tells
  bool operator<(const PartRole& other) const {
    return std::tie(isFace, number) < std::tie(other.isFace, other.number);
  }
};

// The roles of the faces, and of the lines, of a window in the order in which they are drawn.
std::vector<PartRole> FaceRoles(std::size_t faces);
std::vector<PartRole> LineRoles(bool hasSymbol, std::string_view openingCode);

// The parts of a whole window by their roles; empty where they show no window.
std::map<PartRole, const dxf::Entity*> PartsByRole(const dxf::Document& drawing, const DrawnWindow& window);

// Puts the parts of one whole window into the order in which the module draws them, and says whether they
// have it now. Those that show no window stay as they are. `tolerance` is in the unit of the parts.
bool PutInOrder(bool hasSymbol, double tolerance, WindowParts& parts);

}  // namespace teskarlt
