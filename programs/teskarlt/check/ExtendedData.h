// ExtendedData.h - checks the order and the limits of the extended data of an object.
#pragma once

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"

namespace teskarlt::check {

void CheckExtendedData(const Object& object, Findings& findings);

}  // namespace teskarlt::check
