// WindowNumbers.h - the numbers that the windows of a drawing carry, and the next one that is free.
#pragma once

#include <cstdint>
#include <initializer_list>
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
  // The lowest number from 1 on that is not taken.
  std::int32_t Free() const { return free_; }

  void Take(std::int32_t number) {
    taken_.insert(number);
    while (taken_.contains(free_))
      ++free_;
  }

 private:
  std::unordered_set<std::int32_t> taken_;
  std::int32_t free_ = 1;
};

}  // namespace teskarlt
