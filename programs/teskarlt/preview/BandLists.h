// BandLists.h - which shapes of a picture reach into which of its bands of rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace teskarlt::preview {

class BandLists {
 public:
  // So many bands of that height, one below the other from 0 on.
  BandLists(std::size_t bands, double height) : lists_(bands), height_(height) {}

  // Adds the next shape, the first being number 0, which reaches from `top` down to `bottom`; top <= bottom.
  void Add(double top, double bottom);

  // The numbers of the shapes that may reach into the band, ascending.
  std::vector<std::uint32_t> In(std::size_t band) const;

 private:
  std::size_t BandAt(double y) const;

  // A shape that reaches into many bands is listed once for all, so that the lists never take much more than
  // the shapes.
  std::vector<std::vector<std::uint32_t>> lists_;
  std::vector<std::uint32_t> tall_;
  double height_;
  std::uint32_t count_ = 0;
};

}  // namespace teskarlt::preview
