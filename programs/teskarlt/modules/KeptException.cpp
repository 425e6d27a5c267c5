// KeptException.cpp - carries exceptions past the modules, which know none.
#include "teskarlt/modules/KeptException.h"

#include <exception>
#include <utility>

namespace teskarlt {

namespace {

std::exception_ptr kept;

}  // namespace

void KeepException() noexcept {
  if (!kept) kept = std::current_exception();
}

void RethrowKeptException() {
  if (const std::exception_ptr exception = std::exchange(kept, nullptr)) std::rethrow_exception(exception);
}

}  // namespace teskarlt
