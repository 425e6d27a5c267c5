// DepthBand.cpp - fills triangles into the tiles of a band.
#include "teskarlt/preview/DepthBand.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace teskarlt::preview {

namespace {

constexpr int GROUP = 16;                     // tiles
constexpr std::size_t STEPS_OF_A_TILE = 128;  // to fill it
constexpr float FARTHEST = -std::numeric_limits<float>::infinity();

// The first sample whose middle lies at or behind the coordinate.
int SampleAt(double coordinate) {
  return static_cast<int>(std::clamp(std::ceil(coordinate - 0.5), -1e9, 1e9));
}

// Widens the range to where the edge from p to q crosses the height y.
void Cross(const Vec3& p, const Vec3& q, double y, double& left, double& right) {
  if ((p.y <= y) == (q.y <= y)) return;
  const double x = p.x + (q.x - p.x) * ((y - p.y) / (q.y - p.y));
  left = std::min(left, x);
  right = std::max(right, x);
}

}  // namespace

// The depth of a triangle in the middle of the sample in row 0 and column 0, and how it grows.
struct DepthBand::Plane {
  double depth = 0;
  double alongRow = 0;
  double alongColumn = 0;
  double nearest = 0;  // of the triangle's corners

  double At(int row, int column) const { return depth + column * alongRow + row * alongColumn; }

  // How near it comes in a row of tiles that begins there.
  float NearestIn(int row, int column, int columns) const {
    const double farther = std::max(0.0, alongRow) * (columns - 1) + std::max(0.0, alongColumn) * (TILE - 1);
    return static_cast<float>(std::min(nearest, At(row, column) + farther));
  }
};

// What a triangle covers of a row of tiles: in each row of samples those from `from` to before `to`.
struct DepthBand::Spans {
  std::array<int, TILE> from;
  std::array<int, TILE> to;
  int least = std::numeric_limits<int>::max();
  int most = 0;
};

DepthBand::DepthBand(int width, int rows)
    : rows_(rows), tiles_((width + TILE - 1) / TILE), groups_((tiles_ + GROUP - 1) / GROUP) {
  const auto tileRows = static_cast<std::size_t>(rows / TILE);
  const std::size_t tiles = tileRows * static_cast<std::size_t>(tiles_);
  depths_.resize(tiles * TILE * TILE);
  owners_.resize(depths_.size());
  farthest_.resize(tiles);
  farthestInGroup_.resize(tileRows * static_cast<std::size_t>(groups_));
}

void DepthBand::Begin(int firstRow) {
  first_ = firstRow;
  std::fill(depths_.begin(), depths_.end(), FARTHEST);
  std::fill(owners_.begin(), owners_.end(), NOTHING);
  std::fill(farthest_.begin(), farthest_.end(), FARTHEST);
  std::fill(farthestInGroup_.begin(), farthestInGroup_.end(), FARTHEST);
}

void DepthBand::Fill(const SampleTriangle& triangle, std::uint32_t owner) {
  const auto& [a, b, c] = triangle;
  const double turn = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
  if (turn == 0) return;
  const int top = std::max(first_, SampleAt(std::min({a.y, b.y, c.y})));
  const int bottom = std::min(first_ + rows_, SampleAt(std::max({a.y, b.y, c.y})));
  if (top >= bottom) return;
  Plane plane;
  plane.alongRow = ((b.z - a.z) * (c.y - a.y) - (c.z - a.z) * (b.y - a.y)) / turn;
  plane.alongColumn = ((c.z - a.z) * (b.x - a.x) - (b.z - a.z) * (c.x - a.x)) / turn;
  plane.depth = a.z + (0.5 - a.x) * plane.alongRow + (first_ + 0.5 - a.y) * plane.alongColumn;
  plane.nearest = std::max({a.z, b.z, c.z});
  for (int tileRow = (top - first_) / TILE; tileRow <= (bottom - 1 - first_) / TILE; ++tileRow) {
    Spans spans;
    for (int row = 0; row < TILE; ++row) {
      const auto i = static_cast<std::size_t>(row);
      const double y = first_ + tileRow * TILE + row + 0.5;
      double left = std::numeric_limits<double>::infinity();
      double right = -left;
      Cross(a, b, y, left, right);
      Cross(b, c, y, left, right);
      Cross(c, a, y, left, right);
      spans.from[i] = std::max(0, SampleAt(left));
      spans.to[i] = std::min(tiles_ * TILE, SampleAt(right));
      if (spans.from[i] >= spans.to[i]) continue;
      spans.least = std::min(spans.least, spans.from[i]);
      spans.most = std::max(spans.most, spans.to[i]);
    }
    steps_ += TILE;
    FillTiles(plane, tileRow, spans, owner);
  }
}

void DepthBand::FillTiles(const Plane& plane, int tileRow, const Spans& spans, std::uint32_t owner) {
  if (spans.least >= spans.most) return;
  const int last = (spans.most - 1) / TILE;
  for (int column = spans.least / TILE; column <= last;) {
    const int group = column / GROUP;
    const int end = std::min(last + 1, (group + 1) * GROUP);
    float& farthest = farthestInGroup_[static_cast<std::size_t>(tileRow) * static_cast<std::size_t>(groups_) +
                                       static_cast<std::size_t>(group)];
    ++steps_;
    bool isChanged = false;
    if (plane.NearestIn(tileRow * TILE, column * TILE, (end - column) * TILE) > farthest) {
      for (; column < end; ++column)
        isChanged = FillTile(plane, tileRow, column, spans, owner) || isChanged;
    }
    column = end;
    if (!isChanged) continue;
    const auto begin = farthest_.begin() + static_cast<std::ptrdiff_t>(TileIndex(tileRow, group * GROUP));
    farthest = *std::min_element(begin, begin + std::min(GROUP, tiles_ - group * GROUP));
  }
}

// True when the tile's farthest sample is another one now.
bool DepthBand::FillTile(const Plane& plane, int tileRow, int tileColumn, const Spans& spans,
                         std::uint32_t owner) {
  const int left = tileColumn * TILE;
  float& farthest = farthest_[TileIndex(tileRow, tileColumn)];
  ++steps_;
  if (!(plane.NearestIn(tileRow * TILE, left, TILE) > farthest)) return false;
  const auto slope = static_cast<float>(plane.alongRow);
  bool isFarthestGone = false;
  for (int row = 0; row < TILE; ++row) {
    const auto i = static_cast<std::size_t>(row);
    const int from = std::max(spans.from[i] - left, 0);
    const int to = std::min(spans.to[i] - left, TILE);
    const auto start = static_cast<float>(plane.At(tileRow * TILE + row, left));
    const std::size_t index = Index(tileRow * TILE + row, left);
    float* const depths = &depths_[index];
    std::uint32_t* const owners = &owners_[index];
    for (int k = from; k < to; ++k) {
      const float depth = start + static_cast<float>(k) * slope;
      const bool isSeen = depth > depths[k] || (depth == depths[k] && owner < owners[k]);
      isFarthestGone |= isSeen & (depths[k] == farthest);
      depths[k] = isSeen ? depth : depths[k];
      owners[k] = isSeen ? owner : owners[k];
    }
  }
  steps_ += STEPS_OF_A_TILE;
  if (!isFarthestGone) return false;
  const float before = farthest;
  const auto begin = depths_.begin() + static_cast<std::ptrdiff_t>(Index(tileRow * TILE, left));
  farthest = *std::min_element(begin, begin + static_cast<std::ptrdiff_t>(TILE) * TILE);
  return farthest != before;
}

}  // namespace teskarlt::preview
