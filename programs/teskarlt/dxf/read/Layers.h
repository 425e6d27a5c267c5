// Layers.h - what the table of layers says: colour and linetype, and what can be seen and changed.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "teskarlt/dxf/read/TagList.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"

namespace teskarlt::dxf {

struct Layer {
  std::int64_t colour = COLOUR_WHITE;         // its number, from 0 to 256
  std::optional<std::int64_t> trueColour;     // 0xRRGGBB; goes before the number
  std::string linetype{LINETYPE_CONTINUOUS};  // UTF-8
  bool isOff = false;
  bool isFrozen = false;
  bool isLocked = false;
};

// Names are UTF-8 and found without regard to case. Of entries with one name the first counts.
class Layers {
 public:
  // Finds the layers among all entries of the section TABLES. A number that is malformed counts as missing.
  explicit Layers(std::span<const TagList> entries);

  // A layer that the drawing does not declare is white and continuous and can be seen and changed.
  const Layer& Of(std::string_view name) const;

 private:
  std::unordered_map<std::string, Layer> layers_;  // by folded name
};

}  // namespace teskarlt::dxf
