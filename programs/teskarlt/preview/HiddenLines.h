// HiddenLines.h - which parts of a straight line no surface hides.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/TriangleTree.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// The surfaces of a scene, ready to be asked. Exact but for a tolerance: what lies less than a millionth of
// the scene's size behind a surface is not hidden by it.
class HiddenLines {
 public:
  static constexpr std::size_t MOST_STEPS = 300'000'000;  // some seconds

  // All questions together may ask so many boxes of triangles.
  HiddenLines(const Scene& scene, const View& view, std::size_t mostSteps = MOST_STEPS);

  // The visible parts of the line from a to b (projected points) as pairs of 0 <= t < u <= 1, in order.
  // Throws Error when all questions so far took more steps than they may.
  std::vector<std::pair<double, double>> Visible(const Vec3& a, const Vec3& b);

 private:
  std::string file_;  // for messages
  double tolerance_ = 0;
  TriangleTree tree_;
  std::size_t mostSteps_;
  std::size_t steps_ = 0;
};

}  // namespace teskarlt::preview
