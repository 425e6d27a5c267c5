// CatalogueFinding.h - one thing that is wrong with a catalogue.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace teskarlt {

// An error makes a window that cannot be chosen or inserted, or is lost in a merge; a warning is doubtful.
struct CatalogueFinding {
  enum class Kind {
    Key,           // missing, or one that is read as something else
    Duplicate,     // a key that its section has already
    Size,          // no number, or a size that cannot be
    DoubtfulSize,  // a size that is likely meant in another unit
    OpeningCode,
    Text,  // too long for a window, or with control characters
    Encoding,
    LineLength,
    LineEnds,
    Fields,   // more than a window has
    Comment,  // taken for a window
    Section,
    Outside  // before the first section, where no window is seen
  };

  Kind kind = Kind::Key;
  bool isError = false;
  std::string message = {};  // one sentence, UTF-8
  std::size_t line = 0;      // in the file, from 1; 0: of no one line
};

// For programs: "duplicate", "doubtful-size". Names stay what they are for good.
std::string_view KindName(CatalogueFinding::Kind kind);

}  // namespace teskarlt
