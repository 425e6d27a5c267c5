// Values.cpp - numbers, handles and binary values.
#include "teskarlt/check/Values.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <optional>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::check {
namespace {

using dxf::Quoted;
using dxf::Tag;
using dxf::ValueKind;

// 127 bytes as hexadecimal digits.
constexpr std::size_t LONGEST_BINARY = 254;

class ObjectValues {
 public:
  ObjectValues(const Object& object, Findings& findings) : object_(object), findings_(findings) {}

  void Check(const Tag& tag) const {
    switch (dxf::KindOf(tag.code)) {
      case ValueKind::Real:
      case ValueKind::Point:
        CheckReal(tag);
        break;
      case ValueKind::Text:
        break;
      case ValueKind::Binary:
        CheckBinary(tag);
        break;
      case ValueKind::Handle:
        CheckHandle(tag);
        break;
      case ValueKind::Boolean:
      case ValueKind::Integer16:
        CheckInteger<std::int16_t>(tag, 16);
        break;
      case ValueKind::Integer32:
        CheckInteger<std::int32_t>(tag, 32);
        break;
      case ValueKind::Integer64:
        CheckInteger<std::int64_t>(tag, 64);
        break;
      case ValueKind::None:
        findings_.Warning(Kind::UnknownCode, tag.value.data(),
                          fmt::format("{} is no group code that drawings have", tag.code), object_.number);
        break;
    }
  }

 private:
  void Error(Kind kind, const Tag& tag, std::string_view what) const {
    findings_.Error(kind, tag.value.data(),
                    fmt::format("{} {} (group {})", Quoted(tag.value), what, tag.code), object_.number);
  }

  void CheckReal(const Tag& tag) const {
    if (!dxf::ParseReal(tag.value)) Error(Kind::RealValue, tag, "is not a finite number");
  }

  template <typename Integer>
  void CheckInteger(const Tag& tag, int bits) const {
    const std::optional<std::int64_t> value = dxf::ParseInteger(tag.value);
    if (!value) {
      Error(Kind::IntegerValue, tag, "is not a whole number");
    } else if (*value < std::numeric_limits<Integer>::min() || *value > std::numeric_limits<Integer>::max()) {
      Error(Kind::IntegerValue, tag, fmt::format("does not fit into the {} bits that it has here", bits));
    }
  }

  void CheckHandle(const Tag& tag) const {
    const bool isArrowName = tag.code == dxf::CODE_HANDLE && object_.place == Place::TableEntry &&
                             dxf::SameName(object_.table, dxf::TABLE_DIMENSION_STYLES);
    if (!isArrowName && !dxf::ParseHandle(tag.value))
      Error(Kind::HandleValue, tag, "is not a handle of 1 to 16 hexadecimal digits");
  }

  void CheckBinary(const Tag& tag) const {
    const std::string_view digits = dxf::Trimmed(tag.value);
    if (digits.size() % 2 != 0 || !std::all_of(digits.begin(), digits.end(),
                                               [](unsigned char byte) { return std::isxdigit(byte) != 0; })) {
      Error(Kind::BinaryValue, tag, "is not a binary value in pairs of hexadecimal digits");
    } else if (dxf::IsExtendedData(tag.code) && digits.size() > LONGEST_BINARY) {
      Error(Kind::BinaryValue, tag,
            fmt::format("has {} hexadecimal digits, and a binary value of extended data has at most {}",
                        digits.size(), LONGEST_BINARY));
    }
  }

  const Object& object_;
  Findings& findings_;
};

}  // namespace

void CheckValues(const Object& object, Findings& findings) {
  const ObjectValues values(object, findings);
  for (const Tag& tag : object.tags)
    values.Check(tag);
}

}  // namespace teskarlt::check
