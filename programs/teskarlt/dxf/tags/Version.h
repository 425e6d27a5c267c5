// Version.h - versions of the drawing interchange format and what depends on them.
#pragma once

namespace teskarlt::dxf {

// Numbers of $ACADVER ("AC1015" is 1015). A file without one follows the rules of R12.
constexpr int VERSION_R12 = 1009;
constexpr int VERSION_R13 = 1012;
constexpr int VERSION_R2000 = 1015;
constexpr int VERSION_R2007 = 1021;
constexpr int VERSION_R2018 = 1032;

constexpr bool HasSubclassMarkers(int version) {
  return version >= VERSION_R13;
}
constexpr bool NeedsHandles(int version) {
  return version >= VERSION_R13;
}
constexpr bool HasOwners(int version) {
  return version >= VERSION_R2000;
}
constexpr bool IsUtf8(int version) {
  return version >= VERSION_R2007;
}

}  // namespace teskarlt::dxf
