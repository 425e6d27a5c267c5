// Page.h - a drawing as a page in which it can be turned.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// True when this program was built with the page.
bool HasPage();

// One HTML file that needs nothing else: the page's script and style, and the model (Glb.h) within it. It
// opens at the window with that number, or with the whole drawing. Throws Error without HasPage().
std::string Page(const Scene& scene, std::optional<std::int32_t> window);

}  // namespace teskarlt::preview
