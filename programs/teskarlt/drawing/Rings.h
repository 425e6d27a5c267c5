// Rings.h - closed lines within one another in the plan.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt {

// Corners in order around it, either way round; heights have no part in what this file tells. A corner that
// is repeated does no harm.
using Ring = std::vector<geometry::Vec3>;

enum class RingSide { Outside, OnEdge, Inside };

// Where the point of the plan lies, by the even-odd rule where the ring crosses itself.
RingSide SideOf(const Ring& ring, double x, double y);

// A point of the plan within the ring and off its edges. The ring must have an area in the plan.
geometry::Vec3 PointWithin(const Ring& ring);

// Whether all of the inner ring lies in the outer one, which is larger; they may touch.
bool Holds(const Ring& outer, const Ring& inner);

// The inner ring, turned round where both run the same way about their plane.
Ring TurnedAgainst(const Ring& outer, Ring inner);

// One closed line around the outer ring and its holes, which it reaches and leaves over the same line: what
// lies within it by the even-odd rule lies in the outer ring and in no hole.
Ring LineAround(const Ring& outer, const std::vector<Ring>& holes);

struct RingNest {
  std::vector<std::size_t> depths;  // of each ring: how many hold it that hold one another
  std::vector<std::vector<std::size_t>>
      holes;  // of each ring: those one deeper that it holds, each place once
};

// How the rings lie in one another, as far as they belong together: `belong` is asked for an outer and an
// inner ring. Rings without an area hold nothing and lie in nothing.
RingNest NestOf(const std::vector<Ring>& rings,
                const std::function<bool(std::size_t outer, std::size_t inner)>& belong);

}  // namespace teskarlt
