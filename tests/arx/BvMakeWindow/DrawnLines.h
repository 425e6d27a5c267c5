// DrawnLines.h - the lines that a drawing operation has written, as short texts.
#pragma once

#include <string>
#include <vector>

#include "tests/support/RecordingHost.h"

namespace brevanta {

// "x,y,z > x,y,z", behind it the linetype where there is one.
inline std::string LineText(const node_list::NodeList& line) {
  const auto text = [](const node_list::Point& p) {
    char buffer[80];
    std::snprintf(buffer, sizeof buffer, "%g,%g,%g", p[0], p[1], p[2]);
    return std::string(buffer);
  };
  std::string drawn = text(node_list::PointOf(line, 10)) + " > " + text(node_list::PointOf(line, 11));
  if (node_list::Has(line, 6)) drawn += " " + node_list::TextOf(line, 6);
  return drawn;
}

// From line `first` on.
inline std::vector<std::string> DrawnLines(std::size_t first = 0) {
  std::vector<std::string> texts;
  const auto lines = recording_host::Lines();
  for (std::size_t k = first; k < lines.size(); ++k)
    texts.push_back(LineText(lines[k]));
  return texts;
}

}  // namespace brevanta
