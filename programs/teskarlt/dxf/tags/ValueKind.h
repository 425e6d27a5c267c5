// ValueKind.h - the kind of value that each group code stands for.
#pragma once

namespace teskarlt::dxf {

enum class ValueKind {
  None,
  Text,
  Binary,  // hexadecimal digits
  Handle,
  Point,
  Real,
  Integer16,
  Integer32,
  Integer64,
  Boolean
};

// The kind of value of a group code in an entity; None for codes that no entity has. Point is the first of
// three codes (x; y and z follow at +10 and +20), which the writer fills from one value; the codes of y and z
// are of kind Real.
ValueKind KindOf(int code);

}  // namespace teskarlt::dxf
