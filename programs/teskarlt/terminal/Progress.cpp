// Progress.cpp - how far a long work has come, for a person at a terminal.
#include "teskarlt/terminal/Progress.h"

#include <cstdio>
#include <utility>

#include "platform/Terminal.h"

namespace teskarlt {

namespace {

constexpr std::chrono::milliseconds PAUSE{200};
constexpr const char* CLEARED_LINE = "\r\x1b[K";

}  // namespace

Progress::Progress(std::string things, std::size_t total)
    : things_(std::move(things)),
      total_(total),
      isTerminal_(platform::IsTerminal(stderr)),
      next_(Clock::now() + PAUSE) {}

Progress::~Progress() {
  Clear();
}

void Progress::Step() {
  ++done_;
  if (!isTerminal_ || Clock::now() < next_) return;
  std::fprintf(stderr, "\r%zu of %zu %s", done_, total_, things_.c_str());
  std::fflush(stderr);
  isShown_ = true;
  next_ = Clock::now() + PAUSE;
}

void Progress::Clear() {
  if (!isShown_) return;
  std::fputs(CLEARED_LINE, stderr);
  std::fflush(stderr);
  isShown_ = false;
}

}  // namespace teskarlt
