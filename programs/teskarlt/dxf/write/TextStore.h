// TextStore.h - keeps many small texts in large blocks.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace teskarlt::dxf {

// Texts only come in; their views stay valid as long as the store, also when it is moved.
class TextStore {
 public:
  std::string_view Add(std::string_view text) {
    if (text.size() > left_) {
      left_ = std::max(text.size(), BLOCK_SIZE);
      blocks_.push_back(std::make_unique_for_overwrite<char[]>(left_));
      free_ = blocks_.back().get();
    }
    char* const begin = free_;
    text.copy(begin, text.size());
    free_ += text.size();
    left_ -= text.size();
    return {begin, text.size()};
  }

 private:
  static constexpr std::size_t BLOCK_SIZE = std::size_t{1} << 20;

  std::vector<std::unique_ptr<char[]>> blocks_;
  char* free_ = nullptr;
  std::size_t left_ = 0;
};

}  // namespace teskarlt::dxf
