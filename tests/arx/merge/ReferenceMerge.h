// ReferenceMerge.h - the merge step by step, without regard to time: the measure of the real one.
#pragma once

#include <string>
#include <string_view>

namespace brevanta {

// The target's text after the source's text is merged into it, newlines as line ends.
std::string ReferenceMerge(std::string_view target, std::string_view source);

}  // namespace brevanta
