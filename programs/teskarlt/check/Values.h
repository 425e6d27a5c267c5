// Values.h - checks each value against the kind and range that its group code stands for.
#pragma once

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"

namespace teskarlt::check {

void CheckValues(const Object& object, Findings& findings);

}  // namespace teskarlt::check
