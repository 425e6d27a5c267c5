// PlanIndex.cpp - a packed R-tree of boxes in the plan.
#include "teskarlt/drawing/PlanIndex.h"

#include <algorithm>
#include <cmath>

namespace teskarlt {

namespace {

constexpr std::size_t CHILDREN = 16;  // of a node

// Sorts the items into upright slices, and within each from below up, so that every CHILDREN of them in turn
// lie close together.
template <typename Items>
void SortIntoTiles(Items& items) {
  const auto leftFirst = [](const auto& a, const auto& b) {
    return a.box.lowX + a.box.highX < b.box.lowX + b.box.highX;
  };
  const auto lowerFirst = [](const auto& a, const auto& b) {
    return a.box.lowY + a.box.highY < b.box.lowY + b.box.highY;
  };
  const double tiles = std::ceil(static_cast<double>(items.size()) / CHILDREN);
  const std::size_t slice = static_cast<std::size_t>(std::ceil(std::sqrt(tiles))) * CHILDREN;
  std::sort(items.begin(), items.end(), leftFirst);
  for (std::size_t first = 0; first < items.size(); first += slice) {
    const auto begin = items.begin() + static_cast<std::ptrdiff_t>(first);
    const std::size_t count = std::min(slice, items.size() - first);
    std::sort(begin, begin + static_cast<std::ptrdiff_t>(count), lowerFirst);
  }
}

}  // namespace

// Appends a node for every CHILDREN of the children from `first` up to `end`.
template <typename Children>
void PlanIndex::AddNodesOver(const Children& children, std::size_t first, std::size_t end) {
  for (std::size_t begin = first; begin < end; begin += CHILDREN) {
    Node node{children[begin].box, begin, std::min(begin + CHILDREN, end)};
    for (std::size_t child = begin; child < node.end; ++child)
      node.box = Around(node.box, children[child].box);
    nodes_.push_back(node);
  }
}

PlanIndex::PlanIndex(const std::vector<PlanBox>& boxes) {
  items_.reserve(boxes.size());
  for (std::size_t number = 0; number < boxes.size(); ++number)
    items_.push_back({boxes[number], number});
  SortIntoTiles(items_);
  AddNodesOver(items_, 0, items_.size());
  leaves_ = nodes_.size();
  for (std::size_t first = 0; nodes_.size() - first > 1;) {
    const std::size_t end = nodes_.size();
    AddNodesOver(nodes_, first, end);
    first = end;
  }
}

std::vector<std::size_t> PlanIndex::Touching(const PlanBox& area) const {
  std::vector<std::size_t> found;
  std::vector<std::size_t> open;  // nodes to look into
  if (!nodes_.empty()) open.push_back(nodes_.size() - 1);
  while (!open.empty()) {
    const std::size_t at = open.back();
    open.pop_back();
    const Node& node = nodes_[at];
    if (!Touch(node.box, area)) continue;
    for (std::size_t child = node.first; child < node.end; ++child) {
      if (at >= leaves_) {
        open.push_back(child);
      } else if (Touch(items_[child].box, area)) {
        found.push_back(items_[child].number);
      }
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace teskarlt
