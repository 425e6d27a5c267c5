// ExtendedData.cpp - sizes of extended data.
#include "teskarlt/dxf/tags/ExtendedData.h"

#include <cstdint>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::dxf {
namespace {

constexpr std::size_t COORDINATES = 3;
constexpr std::size_t DIGITS_OF_BYTE = 2;

bool IsFurtherCoordinate(int code) {
  return KindOf(code - Y_DISTANCE) == ValueKind::Point || KindOf(code - Z_DISTANCE) == ValueKind::Point;
}

std::size_t ValueSize(int code, std::size_t textSize) {
  switch (KindOf(code)) {
    case ValueKind::Point:
      return COORDINATES * sizeof(double);
    case ValueKind::Real:
      return sizeof(double);
    case ValueKind::Integer16:
      return sizeof(std::int16_t);
    case ValueKind::Integer32:
      return sizeof(std::int32_t);
    case ValueKind::Handle:
      return sizeof(std::uint64_t);
    case ValueKind::Binary:
      return textSize / DIGITS_OF_BYTE;
    default:
      return textSize + 1;  // with a zero at the end
  }
}

}  // namespace

std::size_t ExtendedSize(int code, std::size_t textSize) {
  constexpr std::size_t CODE_SIZE = 2;
  return IsFurtherCoordinate(code) ? 0 : CODE_SIZE + ValueSize(code, textSize);
}

}  // namespace teskarlt::dxf
