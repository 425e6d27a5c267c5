// Values.h - checks each value against the kind and range that its group code stands for.
#pragma once

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {

// As dxf::KindOf, by a table: a town is some twenty million values.
dxf::ValueKind KindOfCode(int code);

void CheckValues(const Object& object, Findings& findings);

}  // namespace teskarlt::check
