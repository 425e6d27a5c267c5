// CPtrArray.h - the framework's growable array of pointers. It does not own what they point to.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <vector>

#include "platform/CObject.h"

// Raised for an index outside an array.
class CInvalidArgException : public std::invalid_argument {
 public:
  CInvalidArgException() : std::invalid_argument("index outside the array") {}
};

// Indices and counts are signed; an index outside the array raises CInvalidArgException. Growing raises
// std::bad_alloc when memory is short and leaves the array as it was.
class CPtrArray : public CObject {
 public:
  CPtrArray() = default;

  CRuntimeClass* GetRuntimeClass() const override;

  std::int64_t GetCount() const noexcept { return static_cast<std::int64_t>(elements_.size()); }

  void* GetAt(std::int64_t index) const {
    CheckElement(index);
    return elements_[static_cast<std::size_t>(index)];
  }

  void SetAt(std::int64_t index, void* element) {
    CheckElement(index);
    elements_[static_cast<std::size_t>(index)] = element;
  }

  // All elements in order; valid until the array changes.
  void* const* GetData() const noexcept { return elements_.data(); }

  // Appends and returns the element's index.
  std::int64_t Add(void* element) {
    elements_.push_back(element);
    return GetCount() - 1;
  }

  // Removes `count` elements from `index` on; those behind move down.
  void RemoveAt(std::int64_t index, std::int64_t count = 1);

 private:
  void CheckElement(std::int64_t index) const {
    if (index < 0 || index >= GetCount()) throw CInvalidArgException();
  }

  std::vector<void*> elements_;
};
