// Linetypes.h - checks the dashes of the entries of the table LTYPE.
#pragma once

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"

namespace teskarlt::check {

void CheckLinetype(const Object& object, const Header& header, Findings& findings);

}  // namespace teskarlt::check
