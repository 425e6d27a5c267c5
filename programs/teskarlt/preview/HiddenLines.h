// HiddenLines.h - which parts of a straight line no surface hides.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// The surfaces of a scene, ready to be asked. Exact but for a tolerance: what lies less than a millionth of
// the scene's size behind a surface is not hidden by it.
class HiddenLines {
 public:
  HiddenLines(const Scene& scene, const View& view);

  // The visible parts of the line from a to b (projected points) as pairs of 0 <= t < u <= 1, in order.
  std::vector<std::pair<double, double>> Visible(const Vec3& a, const Vec3& b);

 private:
  struct Triangle {
    Vec3 a, b, c;  // projected, counter-clockwise
  };

  void Add(Triangle triangle);
  void BuildGrid();
  // First and last cell of the range from `low` to `high` in one direction.
  std::pair<std::size_t, std::size_t> Cells(double low, double high, double origin) const;
  bool Hides(const Triangle& triangle, const Vec3& a, const Vec3& b, double& from, double& to) const;

  std::vector<Triangle> triangles_;
  double tolerance_ = 0;
  Vec3 origin_{};
  double cell_ = 1;
  std::size_t side_ = 1;
  std::vector<std::vector<std::uint32_t>> grid_;  // triangles by cell, row by row
  std::vector<std::uint32_t> asked_;              // by triangle: the last question that looked at it
  std::uint32_t question_ = 0;
};

}  // namespace teskarlt::preview
