// HostStatus.h - the results that the host's functions give, and those that answer in its way.
#pragma once

#include <cstdint>

namespace brevanta {

// The geometry kernel, which stands alone, has the same values under the same names.
constexpr std::int32_t STATUS_NORMAL = 5100;
constexpr std::int32_t STATUS_ERROR = -5001;

}  // namespace brevanta
