// Page.h - a drawing as a page in which it can be turned.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// True when this program was built with the page.
bool HasPage();

// The windows of a drawing as its schedule has them, as the page shows them.
struct PageSchedule {
  std::string table;  // an element <table>, a row for each window; its names are in the first cells
  std::string csv;    // the same as a file, for a spreadsheet program
  std::vector<std::int32_t> windows;  // the number of the window of each row
};

// One HTML file that needs nothing else: the page's script and style, and within it the schedule and the
// model (Glb.h). It opens at the window with that number, or with the whole drawing. Throws Error without
// HasPage().
std::string Page(const Scene& scene, const PageSchedule& schedule, std::optional<std::int32_t> window);

}  // namespace teskarlt::preview
