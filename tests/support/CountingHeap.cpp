// CountingHeap.cpp - the heap behind platform/Heap.h, with a book of its blocks.
#include "tests/support/CountingHeap.h"

#include <cstdlib>
#include <cstring>
#include <map>
#include <utility>

#include <gtest/gtest.h>

#include "platform/Heap.h"

namespace {

constexpr std::size_t LARGEST_BLOCK = std::size_t{1} << 40;

struct Book {
  std::map<const void*, std::size_t> live;
  int allocations = 0;
  int releases = 0;
  int failIn = 0;  // 0: no failure asked for
  std::function<void(std::size_t)> watcher;
};

Book& TheBook() {
  static Book book;
  return book;
}

}  // namespace

void* HeapAllocate(std::size_t size) {
  Book& book = TheBook();
  if (book.watcher) book.watcher(size);
  if (size > LARGEST_BLOCK) return nullptr;
  if (book.failIn > 0 && --book.failIn == 0) return nullptr;
  void* block = std::malloc(size);
  book.live[block] = size;
  ++book.allocations;
  return block;
}

void HeapRelease(void* block) {
  if (block == nullptr) return;
  Book& book = TheBook();
  if (book.live.erase(block) == 0) {
    ADD_FAILURE() << "released a block that is not allocated: " << block;
    return;
  }
  ++book.releases;
  std::free(block);
}

namespace counting_heap {

void Reset() {
  Book& book = TheBook();
  book.allocations = 0;
  book.releases = 0;
  book.failIn = 0;
  book.watcher = nullptr;
}

void FailAllocation(int n) {
  TheBook().failIn = n;
}

void Watch(std::function<void(std::size_t)> watcher) {
  TheBook().watcher = std::move(watcher);
}

int Allocations() {
  return TheBook().allocations;
}

int Releases() {
  return TheBook().releases;
}

std::size_t LiveBlocks() {
  return TheBook().live.size();
}

std::size_t BlockSize(const void* block) {
  const auto found = TheBook().live.find(block);
  return found == TheBook().live.end() ? 0 : found->second;
}

char* LiveText(std::string_view text) {
  for (const auto& [block, size] : TheBook().live) {
    if (size != text.size() + 1) continue;
    const auto* bytes = static_cast<const char*>(block);
    if (bytes[text.size()] == '\0' && std::memcmp(bytes, text.data(), text.size()) == 0) {
      return const_cast<char*>(bytes);
    }
  }
  return nullptr;
}

}  // namespace counting_heap
