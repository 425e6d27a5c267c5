// Drawings.h - small drawings for the tests, as text.
#pragma once

#include <string>

#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// An R2000 drawing with these header variables and entities; both are tags as they stand in a file.
inline dxf::Document Drawing(const std::string& header, const std::string& entities) {
  return dxf::Document::FromText("test.dxf", "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n" +
                                                 header + "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" +
                                                 entities + "  0\nENDSEC\n  0\nEOF\n");
}

}  // namespace teskarlt
