// Point3dArray.cpp - storage and growth of the point array.
#include "arx/BvMakeWindow/Point3dArray.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>

#include "platform/Heap.h"

namespace brevanta {

namespace {

// Up to this size storage doubles, from it on it grows in steps of LARGE_GROWTH elements, about as much.
constexpr std::int64_t DOUBLING_LIMIT = 65536;  // bytes
constexpr std::int32_t LARGE_GROWTH = 2730;

// The count of elements stands in front of them.
using BlockHeader = std::int64_t;

// Storage for n default-constructed elements, or null. A negative or overflowing size saturates, so it fails.
GcGePoint3d* AllocatePoints(std::int32_t n) {
  constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
  const bool fits =
      n >= 0 && static_cast<std::size_t>(n) <= (most - sizeof(BlockHeader)) / sizeof(GcGePoint3d);
  const std::size_t size =
      fits ? sizeof(BlockHeader) + static_cast<std::size_t>(n) * sizeof(GcGePoint3d) : most;
  void* block = HeapAllocate(size);
  if (block == nullptr) return nullptr;
  auto* header = new (block) BlockHeader(n);
  auto* points = reinterpret_cast<GcGePoint3d*>(header + 1);
  std::uninitialized_default_construct_n(points, n);
  return points;
}

void ReleasePoints(GcGePoint3d* points) {
  if (points == nullptr) return;
  BlockHeader* header = reinterpret_cast<BlockHeader*>(points) - 1;
  std::destroy_n(points, *header);
  HeapRelease(header);
}

}  // namespace

Point3dArray::Point3dArray(std::int32_t initialCapacity, std::int32_t growStep) : growStep_(growStep) {
  if (initialCapacity <= 0) return;
  data_ = AllocatePoints(initialCapacity);
  if (data_ != nullptr) capacity_ = initialCapacity;
}

Point3dArray::~Point3dArray() {
  ReleasePoints(data_);
}

std::int32_t Point3dArray::GrowthFor(std::int32_t count) const {
  const bool doubles =
      static_cast<std::int64_t>(count) * static_cast<std::int64_t>(sizeof(GcGePoint3d)) < DOUBLING_LIMIT;
  return std::max(doubles ? count : LARGE_GROWTH, growStep_);
}

std::int32_t Point3dArray::Append(const GcGePoint3d& point) {
  InsertAt(length_, point);
  return length_ - 1;
}

Point3dArray& Point3dArray::InsertAt(std::int32_t index, const GcGePoint3d& point) {
  const GcGePoint3d copy = point;
  if (length_ >= capacity_) {
    SetCapacity(length_ + GrowthFor(length_));
    if (capacity_ == 0) return *this;
  }
  std::copy_backward(data_ + index, data_ + length_, data_ + length_ + 1);
  data_[index] = copy;
  ++length_;
  return *this;
}

Point3dArray& Point3dArray::SetLength(std::int32_t n) {
  if (n > capacity_) SetCapacity(std::max(capacity_ + GrowthFor(capacity_), n));
  length_ = std::clamp(n, 0, capacity_);
  return *this;
}

Point3dArray& Point3dArray::SetCapacity(std::int32_t n) {
  if (n == capacity_) return *this;
  GcGePoint3d* old = data_;
  data_ = n == 0 ? nullptr : AllocatePoints(n);
  capacity_ = data_ == nullptr ? 0 : n;
  if (data_ != nullptr) std::copy_n(old, std::min(n, length_), data_);
  ReleasePoints(old);
  length_ = std::min(length_, capacity_);
  return *this;
}

}  // namespace brevanta
