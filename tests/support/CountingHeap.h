// CountingHeap.h - the process heap of a test program: counts its blocks and makes allocations fail.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

// Linked into a test program, its source replaces platform/Heap.cpp. A block that is released twice or was
// never allocated fails the running test; a request beyond all reason fails as on any heap.
namespace counting_heap {

// Starts to count at zero, takes back a failure that was asked for and sends the watcher away. Live blocks
// stay known.
void Reset();

// The n-th allocation from now on fails, once; 1 is the next one.
void FailAllocation(int n);

// Runs before each allocation, with the size that is asked for.
void Watch(std::function<void(std::size_t)> watcher);

// Since Reset: allocations that succeeded, and blocks released (null counts as nothing).
int Allocations();
int Releases();

// Blocks that are allocated and not released, whenever that was.
std::size_t LiveBlocks();

// Size of a live block as it was asked for; 0 for any other address.
std::size_t BlockSize(const void* block);

// A live block that holds exactly this zero-terminated text; null when there is none.
char* LiveText(std::string_view text);

}  // namespace counting_heap
