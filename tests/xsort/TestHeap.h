// TestHeap.h - a heap in place of the real one that counts, that fails on request and that can be watched.
#pragma once

#include <cstddef>
#include <functional>

namespace test_heap {

// Starts counting anew, with no failure and nobody watching.
void Reset();

// Lets the n-th allocation from now fail, counted from 1.
void FailAt(int n);

// Runs before each allocation, with its size.
void Watch(std::function<void(std::size_t)> watcher);

int Allocations();
int Releases();  // of blocks; releasing null does not count

}  // namespace test_heap
