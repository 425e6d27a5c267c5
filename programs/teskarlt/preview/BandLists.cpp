// BandLists.cpp - lists the shapes of a picture by bands.
#include "teskarlt/preview/BandLists.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace teskarlt::preview {

namespace {

constexpr std::size_t MOST_LISTED = 4;  // bands

}  // namespace

// The nearest band where the coordinate lies in none.
std::size_t BandLists::BandAt(double y) const {
  const double last = static_cast<double>(lists_.size()) - 1.0;
  return static_cast<std::size_t>(std::clamp(std::floor(y / height_), 0.0, last));
}

void BandLists::Add(double top, double bottom) {
  const std::uint32_t number = count_++;
  if (bottom < 0 || top > height_ * static_cast<double>(lists_.size())) return;
  const std::size_t first = BandAt(top);
  const std::size_t last = BandAt(bottom);
  if (last - first >= MOST_LISTED) {
    tall_.push_back(number);
    return;
  }
  for (std::size_t band = first; band <= last; ++band)
    lists_[band].push_back(number);
}

std::vector<std::uint32_t> BandLists::In(std::size_t band) const {
  std::vector<std::uint32_t> numbers;
  numbers.reserve(lists_[band].size() + tall_.size());
  std::merge(lists_[band].begin(), lists_[band].end(), tall_.begin(), tall_.end(),
             std::back_inserter(numbers));
  return numbers;
}

}  // namespace teskarlt::preview
