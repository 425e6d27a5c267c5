// Findings.h - collects what is wrong with a drawing while it is being checked.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "teskarlt/check/Finding.h"
#include "teskarlt/dxf/tags/SourceText.h"

namespace teskarlt::check {

// The most findings of one kind that are kept: whoever wants to mend a drawing has enough with these, and a
// drawing that is wrong throughout does not fill the memory. All of them are counted.
constexpr std::size_t MOST_OF_A_KIND = 1000;

// All that is wrong with a drawing, in the order of the places.
struct Verdict {
  bool isBinary = false;  // the places are offsets of bytes
  std::vector<Finding> findings;
  std::size_t errors = 0;  // with those that are not listed
  std::size_t warnings = 0;
  std::array<std::size_t, static_cast<std::size_t>(Kind::KindCount)> unlisted{};  // by kind
};

// Adds what was found later, in the order of the places.
void Merge(Verdict later, Verdict& verdict);

class Findings {
 public:
  // `place` lies in the drawing's text; the finding is about the line or the tag that holds it.
  void Error(Kind kind, const char* place, std::string message, std::uint64_t handle = 0) {
    Add(Severity::Error, kind, place, std::move(message), handle);
  }
  void Warning(Kind kind, const char* place, std::string message, std::uint64_t handle = 0) {
    Add(Severity::Warning, kind, place, std::move(message), handle);
  }
  void Add(Severity severity, Kind kind, const char* place, std::string message, std::uint64_t handle = 0);

  // Lines are counted here, in one pass.
  Verdict Finish(const dxf::SourceText& source);

 private:
  struct Placed {
    const char* place;
    Finding finding;
  };

  std::vector<Placed> placed_;
  std::array<std::size_t, static_cast<std::size_t>(Kind::KindCount)> counts_{};
  std::size_t errors_ = 0;
  std::size_t warnings_ = 0;
};

}  // namespace teskarlt::check
