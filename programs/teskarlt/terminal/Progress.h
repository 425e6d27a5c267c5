// Progress.h - how far a long work has come, for a person at a terminal.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace teskarlt {

// Writes a line on standard error that is overwritten as the work goes on, and takes it away at the end.
// Silent where standard error is no terminal, and for work that takes less than a moment.
class Progress {
 public:
  // `things` are what is counted ("windows").
  Progress(std::string things, std::size_t total);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // One more is done.
  void Step();
  // Takes the line away, so that another can be written.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;

  std::string things_;
  std::size_t total_;
  std::size_t done_ = 0;
  bool isTerminal_;
  bool isShown_ = false;
  Clock::time_point next_;  // when the line is written again
};

}  // namespace teskarlt
