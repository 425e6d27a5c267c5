// Drawings.h - small drawings for the tests, as text.
#pragma once

#include <algorithm>
#include <string>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// "CODE VALUE|CODE VALUE" as the lines of a file.
inline std::string Groups(const std::string& text) {
  std::string lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('|', at), text.size());
    const std::size_t blank = text.find(' ', at);
    lines += text.substr(at, blank - at) + "\n" + text.substr(blank + 1, end - blank - 1) + "\n";
    at = end + 1;
  }
  return lines;
}

// An R2000 drawing with these header variables and entities; both are tags as they stand in a file.
inline dxf::Document Drawing(const std::string& header, const std::string& entities) {
  return dxf::Document::FromText("test.dxf", "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n" +
                                                 header + "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" +
                                                 entities + "  0\nENDSEC\n  0\nEOF\n");
}

}  // namespace teskarlt
