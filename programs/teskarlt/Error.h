// Error.h - the error that every part of the program throws, by its short name.
#pragma once

#include "platform/Error.h"

namespace teskarlt {

using platform::Error;
using platform::ErrorPlace;

}  // namespace teskarlt
