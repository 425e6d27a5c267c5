// Heap.h - the process heap behind one seam, so that a test can count allocations and make any of them fail.
#pragma once

#include <cstddef>

// As std::malloc and std::free. What one module allocates
// here another may release here: both are the process heap.
void* HeapAllocate(std::size_t size);
void HeapRelease(void* block);
