// GcGeVector3d.h - the host geometry's vector.
#pragma once

#include "platform/GcGeContext.h"

struct GcGeMatrix3d;

struct GcGeVector3d {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  // Turns this vector by the matrix; the translation column has no part in it. Returns this vector.
  GcGeVector3d& transformBy(const GcGeMatrix3d& matrix);

  // Makes the length 1; a vector shorter than the tolerance stays as it is. Returns this vector.
  GcGeVector3d& normalize(const GcGeTol& tolerance = GcGeContext::gTol);

  // Angle from this vector to `other` in radians, counter-clockwise seen against `reference`, from 0 up to
  // but not 2 pi.
  double angleTo(const GcGeVector3d& other, const GcGeVector3d& reference) const;

  static const GcGeVector3d kXAxis;
  static const GcGeVector3d kZAxis;
};
