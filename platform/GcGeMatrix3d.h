// GcGeMatrix3d.h - the host geometry's placement matrix.
#pragma once

// Row-major, acting on column vectors; the fourth column is the translation. A new matrix is the identity.
struct GcGeMatrix3d {
  double entry[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

  GcGeMatrix3d& setToIdentity();
};
