// DepthBand.h - some rows of a picture: of each sample, how near what is seen there is, and what it is.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "geometry/Vec3.h"

namespace teskarlt::preview {

using geometry::Vec3;

// In samples, y downwards, z towards the viewer.
using SampleTriangle = std::array<Vec3, 3>;

// A picture is made band by band, so that the samples of one stay close at hand. They are gathered in tiles,
// and tiles in groups, of which each knows its farthest sample: what lies behind that is left out as a whole.
class DepthBand {
 public:
  static constexpr std::uint32_t NOTHING = 0;  // the owner of a sample where nothing is seen
  static constexpr int TILE = 16;              // samples in each direction

  // So many samples in a row; the rows are a multiple of TILE.
  DepthBand(int width, int rows);

  // Forgets what is seen and moves the band to begin at this row.
  void Begin(int firstRow);

  // A sample belongs to a triangle when its middle does. Of two equally near ones the lower number is seen.
  void Fill(const SampleTriangle& triangle, std::uint32_t owner);

  // The owners of the samples from this one on, as far as its tile goes; rows are TILE apart.
  const std::uint32_t* OwnersFrom(int row, int column) const { return &owners_[Index(row - first_, column)]; }

  // A measure of the time that was spent so far, a step being about a nanosecond: the same on every system.
  std::size_t Steps() const { return steps_; }

 private:
  struct Plane;
  struct Spans;

  // Tile by tile, so that a tile's samples lie side by side.
  std::size_t Index(int row, int column) const {
    const std::size_t tile = TileIndex(row / TILE, column / TILE);
    return (tile * TILE + static_cast<std::size_t>(row % TILE)) * TILE +
           static_cast<std::size_t>(column % TILE);
  }
  std::size_t TileIndex(int tileRow, int tileColumn) const {
    return static_cast<std::size_t>(tileRow) * static_cast<std::size_t>(tiles_) +
           static_cast<std::size_t>(tileColumn);
  }
  void FillTiles(const Plane& plane, int tileRow, const Spans& spans, std::uint32_t owner);
  bool FillTile(const Plane& plane, int tileRow, int tileColumn, const Spans& spans, std::uint32_t owner);

  int rows_;
  int tiles_;   // in a row
  int groups_;  // likewise
  int first_ = 0;
  std::size_t steps_ = 0;
  std::vector<float> depths_;
  std::vector<std::uint32_t> owners_;
  std::vector<float> farthest_;         // by tile
  std::vector<float> farthestInGroup_;  // of tiles in a row
};

}  // namespace teskarlt::preview
