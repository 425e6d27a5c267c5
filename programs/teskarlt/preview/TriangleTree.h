// TriangleTree.h - the triangles of a picture in a tree of boxes, asked for those that lie before something.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"

namespace teskarlt::preview {

// Projected (View::Project), counter-clockwise in the picture.
struct PictureTriangle {
  Vec3 a, b, c;
  std::size_t surface = 0;  // index in Scene::surfaces

  // The depth of its plane at a point of the picture; its own z does not count.
  double DepthAt(const Vec3& point) const;
};

// The triangles of all surfaces; those narrower than the tolerance, seen from their edge, are left out.
std::vector<PictureTriangle> PictureTriangles(const Scene& scene, const View& view, double tolerance);

// Builds in n log n, whatever lies over one another.
class TriangleTree {
 public:
  explicit TriangleTree(const std::vector<PictureTriangle>& triangles);

  // Looks at the triangles of the boxes that are worth it, the most worthy ones first. `worth` gives for a
  // Box what is to be had there, 0 for nothing; it is asked again after each look. Gives the number of boxes
  // asked.
  template <typename Worth, typename Look>
  std::size_t Search(const Worth& worth, const Look& look) const {
    return triangles_.empty() || !(worth(nodes_[0].box) > 0) ? 1 : SearchIn(0, worth, look);
  }

 private:
  static constexpr std::uint32_t LEAF = 4;  // so many triangles are not divided further

  struct Node {
    Box box;
    std::uint32_t first = 0;  // triangle
    std::uint32_t count = 0;
    std::uint32_t right = 0;  // node; the left one follows its parent. 0 for a leaf
  };

  struct Item {
    Vec3 middle;  // twice that of its box
    std::uint32_t triangle;
  };

  // Fills the node with the items from `first` on, which it puts into order; `from` are their triangles.
  void Divide(std::uint32_t node, const std::vector<PictureTriangle>& from, std::vector<Item>& items);

  template <typename Worth, typename Look>
  std::size_t SearchIn(std::uint32_t index, const Worth& worth, const Look& look) const {
    const Node& node = nodes_[index];
    if (node.right == 0) {
      for (std::uint32_t i = node.first; i < node.first + node.count; ++i)
        look(triangles_[i]);
      return 1;
    }
    std::uint32_t first = index + 1;
    std::uint32_t second = node.right;
    double ofFirst = worth(nodes_[first].box);
    double ofSecond = worth(nodes_[second].box);
    const bool isSecondNearer = nodes_[second].box.high.z > nodes_[first].box.high.z;
    if (ofSecond > ofFirst || (ofSecond == ofFirst && isSecondNearer)) {
      std::swap(first, second);
      std::swap(ofFirst, ofSecond);
    }
    std::size_t asked = 2;
    if (!(ofFirst > 0)) return asked;
    asked += SearchIn(first, worth, look);
    if (ofSecond > 0 && worth(nodes_[second].box) > 0) asked += SearchIn(second, worth, look);
    return asked;
  }

  std::vector<PictureTriangle> triangles_;  // in the order of the leaves
  std::vector<Node> nodes_;
};

}  // namespace teskarlt::preview
