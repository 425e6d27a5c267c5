// PageTemplate.h - the page as the build bundled it from the sources in page/.
#pragma once

#include <string_view>

namespace teskarlt::preview {

// HTML with the marks that Page.cpp fills in; empty in a program that was built without it.
std::string_view PageTemplate();

}  // namespace teskarlt::preview
