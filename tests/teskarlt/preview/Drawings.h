// Drawings.h - small drawings and scenes for the tests of pictures.
#pragma once

#include <string>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/dxf/Document.h"
#include "teskarlt/preview/SceneReader.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt::preview {

inline std::string Section(const std::string& name, const std::string& content) {
  return "0\nSECTION\n2\n" + name + "\n" + content + "0\nENDSEC\n";
}

// A drawing in metres; each part is given as Groups.
struct Parts {
  std::string tables = {};
  std::string blocks = {};
  std::string entities = {};
};

inline dxf::Document Drawing(const Parts& parts) {
  const std::string tables = "0\nTABLE\n2\nLAYER\n" + Groups(parts.tables) + "0\nENDTAB\n";
  return dxf::Document::FromText("test.dxf",
                                 Section("HEADER", Groups("9 $ACADVER|1 AC1015|9 $INSUNITS|70 6")) +
                                     Section("TABLES", tables) + Section("BLOCKS", Groups(parts.blocks)) +
                                     Section("ENTITIES", Groups(parts.entities)) + "0\nEOF\n");
}

inline Scene SceneOf(const Parts& parts, const SceneOptions& options = {}) {
  return ReadScene(Drawing(parts), options);
}

// A horizontal rectangle on a layer.
inline std::string Rectangle(const std::string& layer, double left, double low, double right, double high,
                             double z, const std::string& more = "") {
  return fmt::format(
      "0 3DFACE|8 {0}|10 {1}|20 {2}|30 {5}|11 {3}|21 {2}|31 {5}|12 {3}|22 {4}|32 {5}|13 {1}|23 {4}|33 "
      "{5}{6}|",
      layer, left, low, right, high, z, more);
}

inline std::string Line(const std::string& layer, double x0, double y0, double x1, double y1,
                        const std::string& more = "") {
  return fmt::format("0 LINE|8 {}|10 {}|20 {}|11 {}|21 {}{}|", layer, x0, y0, x1, y1, more);
}

}  // namespace teskarlt::preview
