// Error.h - what every part of the host throws when it cannot do what the user asked for.
#pragma once

#include <stdexcept>

namespace teskarlt {

// `what()` is one sentence for the user, UTF-8. Where it is about a place in a file it starts with
// "FILE:LINE: ".
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace teskarlt
