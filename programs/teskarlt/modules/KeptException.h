// KeptException.h - carries exceptions past the modules, which know none.
#pragma once

namespace teskarlt {

// Keeps the exception that is being handled, unless one is kept already.
void KeepException() noexcept;

// Throws the kept exception, which is kept no longer; does nothing without one. For whoever called the
// module.
void RethrowKeptException();

// Does the work for a module and gives its answer; when the work throws, that is kept and the answer is
// `failed`.
template <typename Answer, typename Work>
Answer AnswerModule(Answer failed, Work work) noexcept {
  try {
    return work();
  } catch (...) {
    KeepException();
    return failed;
  }
}

// The same for work without an answer.
template <typename Work>
void WorkForModule(Work work) noexcept {
  try {
    work();
  } catch (...) {
    KeepException();
  }
}

}  // namespace teskarlt
