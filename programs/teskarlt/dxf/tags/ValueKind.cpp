// ValueKind.cpp - ranges of group codes and their kinds.
#include "teskarlt/dxf/tags/ValueKind.h"

#include <array>
#include <cstddef>

namespace teskarlt::dxf {
namespace {

struct KindRange {
  int first;
  int last;
  ValueKind kind;
};

// Of the codes of entities and of extended data.
constexpr KindRange KIND_RANGES[] = {
    {0, 4, ValueKind::Text},
    {5, 5, ValueKind::Handle},
    {6, 9, ValueKind::Text},
    {10, 18, ValueKind::Point},
    {19, 59, ValueKind::Real},
    {60, 79, ValueKind::Integer16},
    {90, 99, ValueKind::Integer32},
    {100, 102, ValueKind::Text},
    {105, 105, ValueKind::Handle},
    {110, 112, ValueKind::Point},
    {113, 149, ValueKind::Real},
    {160, 169, ValueKind::Integer64},
    {170, 179, ValueKind::Integer16},
    {210, 210, ValueKind::Point},
    {211, 239, ValueKind::Real},
    {270, 289, ValueKind::Integer16},
    {290, 299, ValueKind::Boolean},
    {300, 309, ValueKind::Text},
    {310, 319, ValueKind::Binary},
    {320, 369, ValueKind::Handle},
    {370, 389, ValueKind::Integer16},
    {390, 399, ValueKind::Handle},
    {400, 409, ValueKind::Integer16},
    {410, 419, ValueKind::Text},
    {420, 429, ValueKind::Integer32},
    {430, 439, ValueKind::Text},
    {440, 459, ValueKind::Integer32},
    {460, 469, ValueKind::Real},
    {470, 479, ValueKind::Text},
    {480, 481, ValueKind::Handle},
    {1000, 1003, ValueKind::Text},
    {1004, 1004, ValueKind::Binary},
    {1005, 1005, ValueKind::Handle},
    {1006, 1009, ValueKind::Text},
    {1010, 1013, ValueKind::Point},
    {1014, 1059, ValueKind::Real},
    {1060, 1070, ValueKind::Integer16},
    {1071, 1071, ValueKind::Integer32},
};
constexpr std::size_t CODES = 1072;

// By code: a town is some twenty million values.
constexpr auto KINDS = [] {
  std::array<ValueKind, CODES> kinds{};
  for (const KindRange& range : KIND_RANGES) {
    for (int code = range.first; code <= range.last; ++code)
      kinds[static_cast<std::size_t>(code)] = range.kind;
  }
  return kinds;
}();

}  // namespace

ValueKind KindOf(int code) {
  const auto place = static_cast<std::size_t>(code);  // far beyond the end for a negative code
  return place < KINDS.size() ? KINDS[place] : ValueKind::None;
}

}  // namespace teskarlt::dxf
