// GcGeContext.h - the host geometry's tolerances.
#pragma once

struct GcGeTol {
  double equalVector = 1e-10;  // absolute: lengths below it are zero
};

struct GcGeContext {
  static const GcGeTol gTol;
};
