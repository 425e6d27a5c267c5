// SizeWords.cpp - sizes of a window that can only be meant in millimetres or centimetres.
#include "teskarlt/windows/SizeWords.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

constexpr double MILLIMETRES_A_METRE = 1000.0;
constexpr double CENTIMETRES_A_METRE = 100.0;

// A size in metres is below `most`; one in millimetres is not below `leastMillimetres`.
struct Size {
  std::string_view field;
  double most;
  double leastMillimetres;
};

constexpr std::array SIZES = {Size{"width", 30.0, 200.0}, Size{"length", 30.0, 300.0},
                              Size{"frameWidth", 3.0, 20.0}, Size{"frameDepth", 3.0, 20.0}};

// "0,78"
bool HasDecimalComma(const FieldSetting& setting) {
  const brevanta::RecordField* field = brevanta::FindRecordField(setting.field);
  const std::string& text = setting.value;
  return field != nullptr && field->kind == brevanta::FieldKind::Length &&
         std::count(text.begin(), text.end(), ',') == 1 &&
         text.find_first_not_of("+-0123456789,") == std::string::npos;
}

}  // namespace

void RefuseOtherUnits(const FieldSetting& setting) {
  if (HasDecimalComma(setting)) {
    std::string meant = setting.value;
    std::replace(meant.begin(), meant.end(), ',', '.');
    throw Error(fmt::format("--set {}={}: decimals stand behind a point, as in {}", setting.field,
                            setting.value, meant),
                {.value = setting.value});
  }
  const auto* size =
      std::find_if(SIZES.begin(), SIZES.end(), [&](const Size& s) { return s.field == setting.field; });
  const std::optional<double> value = dxf::ParseReal(setting.value);
  if (size == SIZES.end() || !value || *value < size->most) return;
  const bool isInMillimetres = *value >= size->leastMillimetres;
  const double meant = *value / (isInMillimetres ? MILLIMETRES_A_METRE : CENTIMETRES_A_METRE);
  const std::string inInches = isInMillimetres ? std::string() : fmt::format(", or {}in", setting.value);
  throw Error(fmt::format("--set {}={}: lengths are metres, did you mean {:g}{}?", setting.field,
                          setting.value, meant, inInches),
              {.value = setting.value});
}

}  // namespace teskarlt
