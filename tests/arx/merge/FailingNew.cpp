// FailingNew.cpp - replaces the global operator new of the test program.
#include "FailingNew.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

int failing = 0;
int live = 0;

}  // namespace

int FailNew(int number) {
  return std::exchange(failing, number);
}

int LiveNewBlocks() {
  return live;
}

void* operator new(std::size_t size) {
  if (failing > 0 && --failing == 0) throw std::bad_alloc();
  void* block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  ++live;
  return block;
}

void operator delete(void* block) noexcept {
  if (block != nullptr) --live;
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
  operator delete(block);
}
