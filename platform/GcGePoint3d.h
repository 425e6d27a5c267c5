// GcGePoint3d.h - the host geometry's point.
#pragma once

struct GcGeMatrix3d;

struct GcGePoint3d {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  // Moves this point by the matrix: rotation and translation. Returns this point.
  GcGePoint3d& transformBy(const GcGeMatrix3d& matrix);
};
