// NoPageTemplate.cpp - stands for the page in a program that is built without it.
#include "teskarlt/preview/PageTemplate.h"

namespace teskarlt::preview {

std::string_view PageTemplate() {
  return {};
}

}  // namespace teskarlt::preview
