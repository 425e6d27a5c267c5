// Point3dArray.h - the growable array of points in which outlines are passed and kept.
#pragma once

#include <cstdint>

#include "platform/GcGePoint3d.h"

namespace brevanta {

// The growth step with which every array of the module is made.
constexpr std::int32_t POINT_GROW_STEP = 8;

// Owns its storage. An allocation that fails leaves the
// array empty and reports nothing; indices are not checked.
class Point3dArray {
 public:
  explicit Point3dArray(std::int32_t initialCapacity = 0, std::int32_t growStep = POINT_GROW_STEP);
  ~Point3dArray();
  Point3dArray(const Point3dArray&) = delete;
  Point3dArray& operator=(const Point3dArray&) = delete;

  GcGePoint3d& operator[](std::int32_t index) { return data_[index]; }
  const GcGePoint3d& operator[](std::int32_t index) const { return data_[index]; }
  GcGePoint3d& First() { return data_[0]; }

  std::int32_t Capacity() const { return capacity_; }
  std::int32_t Length() const { return length_; }
  std::int32_t GrowStep() const { return growStep_; }

  // Adds the point at the end and gives its index. The point may be one of this array.
  std::int32_t Append(const GcGePoint3d& point);

  // Puts the point in front of the element at `index`, from
  // 0 to Length(). The point may be one of this array.
  Point3dArray& InsertAt(std::int32_t index, const GcGePoint3d& point);

  // Makes the length n, 0 when n is negative; grows the storage where needed, never shrinks it.
  Point3dArray& SetLength(std::int32_t n);

  // Moves the elements to storage for exactly n, cutting the length to it; 0 releases the storage.
  Point3dArray& SetCapacity(std::int32_t n);

 private:
  std::int32_t GrowthFor(std::int32_t count) const;

  GcGePoint3d* data_ = nullptr;
  std::int32_t capacity_ = 0;
  std::int32_t length_ = 0;
  std::int32_t growStep_;
};

}  // namespace brevanta
