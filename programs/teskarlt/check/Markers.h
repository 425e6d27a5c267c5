// Markers.h - checks the class markers (100) by which programs from R13 on know the parts of an object.
#pragma once

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"

namespace teskarlt::check {

void CheckMarkers(const Object& object, const Header& header, Findings& findings);

}  // namespace teskarlt::check
