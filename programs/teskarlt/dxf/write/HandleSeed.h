// HandleSeed.h - gives out the handles of new objects, and the seed that the header gets for the next ones.
#pragma once

#include <algorithm>
#include <cstdint>

#include "teskarlt/Error.h"

namespace teskarlt::dxf {

// Above every handle of the drawing, in ascending order; none is given twice.
class HandleSeed {
 public:
  // `largest`: of the handles in the drawing; `seed`: its $HANDSEED, 0 when it has none. A drawing without
  // handles (`isUsed` false) gets 0 for each.
  HandleSeed(std::uint64_t largest, std::uint64_t seed, bool isUsed)
      : first_(std::max(largest + 1, seed)), next_(first_), isUsed_(isUsed) {
    if (largest + 1 == 0) first_ = next_ = 0;
  }

  std::uint64_t Allocate() {
    if (!isUsed_) return 0;
    if (next_ == 0) throw Error("the drawing has used up all handles");
    return next_++;
  }

  // The first handle that was given out, if one was.
  std::uint64_t First() const { return first_; }

  // The value for $HANDSEED, which Edits writes.
  std::uint64_t Next() const { return next_; }
  bool HasMoved() const { return next_ != first_; }
  void GoBack(std::uint64_t next) { next_ = next; }

 private:
  std::uint64_t first_;
  std::uint64_t next_;
  bool isUsed_;
};

}  // namespace teskarlt::dxf
