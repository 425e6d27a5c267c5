// HostGeometry.cpp - the members of the host's geometry classes that the module uses.
#include <cmath>

#include "platform/GcGeContext.h"
#include "platform/GcGeMatrix3d.h"
#include "platform/GcGePoint3d.h"
#include "platform/GcGeVector3d.h"

namespace {

constexpr double TWO_PI = 6.283185307179586;

double Dot(const GcGeVector3d& a, const GcGeVector3d& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

GcGeVector3d Cross(const GcGeVector3d& a, const GcGeVector3d& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double Row(const double (&row)[4], double x, double y, double z, double w) {
  return row[0] * x + row[1] * y + row[2] * z + row[3] * w;
}

}  // namespace

const GcGeTol GcGeContext::gTol;
const GcGeVector3d GcGeVector3d::kXAxis{1, 0, 0};
const GcGeVector3d GcGeVector3d::kZAxis{0, 0, 1};

GcGeMatrix3d& GcGeMatrix3d::setToIdentity() {
  return *this = GcGeMatrix3d();
}

GcGePoint3d& GcGePoint3d::transformBy(const GcGeMatrix3d& matrix) {
  const auto& m = matrix.entry;
  return *this = {Row(m[0], x, y, z, 1), Row(m[1], x, y, z, 1), Row(m[2], x, y, z, 1)};
}

GcGeVector3d& GcGeVector3d::transformBy(const GcGeMatrix3d& matrix) {
  const auto& m = matrix.entry;
  return *this = {Row(m[0], x, y, z, 0), Row(m[1], x, y, z, 0), Row(m[2], x, y, z, 0)};
}

GcGeVector3d& GcGeVector3d::normalize(const GcGeTol& tolerance) {
  const double length = std::sqrt(Dot(*this, *this));
  if (length < tolerance.equalVector) return *this;
  return *this = {x / length, y / length, z / length};
}

double GcGeVector3d::angleTo(const GcGeVector3d& other, const GcGeVector3d& reference) const {
  // In extended precision: both systems' libraries then round to the same double.
  const long double sine = Dot(Cross(*this, other), reference);
  const long double cosine = Dot(*this, other);
  const auto angle = static_cast<double>(std::atan2(sine, cosine));
  if (angle > 0.0) return angle;
  const double turned = angle + TWO_PI;
  return turned < TWO_PI ? turned : 0.0;
}
