// RecordText.h - reads a text field of the record within the field's size.
#pragma once

#include <algorithm>
#include <cstring>
#include <string_view>

#include "inc/WindowParams.h"

namespace brevanta {

// A terminated copy of a text field, also of one whose terminator is missing.
class RecordText {
 public:
  template <std::size_t SIZE>
  explicit RecordText(const char (&field)[SIZE]) {
    static_assert(SIZE < sizeof text_);
    std::memcpy(text_, field, SIZE);
    text_[SIZE] = '\0';
  }

  // What TextIn gives for a field (RecordFields.h).
  explicit RecordText(std::string_view bytes) {
    const std::size_t size = std::min(bytes.size(), sizeof text_ - 1);
    std::memcpy(text_, bytes.data(), size);
    text_[size] = '\0';
  }

  const char* Text() const { return text_; }

 private:
  char text_[TEXT_FIELD_SIZE + 1];
};

}  // namespace brevanta
