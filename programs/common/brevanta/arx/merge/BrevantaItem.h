// BrevantaItem.h - one item of a catalogue.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/CString.h"

namespace brevanta {

// An item is known by its section and key together, compared exactly.
struct CBrevantaItem {
  std::uint32_t index = 0;  // position at which AddUnique added it; 0 after Add
  CString section;          // header line of its section
  CString key;              // first field, leading blanks removed
  CString line;             // the whole line without its newline
};

// Exact and case-sensitive.
int IsSame(const CString& a, const CString& b);
int IsDifferent(const CString& a, const CString& b);

}  // namespace brevanta
