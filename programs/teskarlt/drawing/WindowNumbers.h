// WindowNumbers.h - the numbers that the windows of a drawing carry, and the next one that is free.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <unordered_set>

namespace teskarlt {

class WindowNumbers {
 public:
  WindowNumbers() = default;
  WindowNumbers(std::initializer_list<std::int32_t> numbers) {
    for (const std::int32_t number : numbers)
      Take(number);
  }

  bool IsTaken(std::int32_t number) const { return taken_.contains(number); }
  // The number behind the highest: one in a gap was a window's that is gone, and people may still mean that
  // window by it. Where no number is higher, the lowest from 1 on that is not taken.
  std::int32_t Free() const {
    return highest_ < std::numeric_limits<std::int32_t>::max() ? highest_ + 1 : lowestFree_;
  }

  // The highest that is taken or kept; 0 without any.
  std::int32_t Highest() const { return highest_; }

  // Gives no number up to this one any more while there is a higher one.
  void KeepTaken(std::int32_t number) { highest_ = std::max(highest_, number); }

  void Take(std::int32_t number) {
    taken_.insert(number);
    highest_ = std::max(highest_, number);
    while (taken_.contains(lowestFree_))
      ++lowestFree_;
  }

  // The window of that number is gone; the number stays one of a gap.
  void Release(std::int32_t number) {
    taken_.erase(number);
    if (number > 0) lowestFree_ = std::min(lowestFree_, number);
  }

 private:
  std::unordered_set<std::int32_t> taken_;
  std::int32_t highest_ = 0;
  std::int32_t lowestFree_ = 1;
};

}  // namespace teskarlt
