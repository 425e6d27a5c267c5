// FindCatalogueItem.cpp - looks an item up in a catalogue file.
#include "arx/merge/FindCatalogueItem.h"

#include <new>

#include "arx/merge/CatalogueFile.h"
#include "lttools/SUPP.h"
#include "platform/ModuleState.h"

namespace brevanta {

namespace {

constexpr std::int32_t NOT_FOUND = -1;

std::int32_t PositionIn(CatalogueReader& library, const char* headers, const char* item) {
  bool inSection = false;
  std::int32_t position = 0;
  while (library.NextLine()) {
    if (library.Line().empty()) continue;
    if (!inSection) {
      inSection = lttools::MatchPatternList(library.Line(), headers) == lttools::PATTERN_MATCHES;
    } else if (lttools::MatchWildcard(library.Line(), item) == 1) {
      return position;
    } else {
      ++position;
    }
  }
  return NOT_FOUND;
}

}  // namespace

std::int32_t FindCatalogueItem(const char* prefix, const char* libraryPath, const char* qualifier,
                               const char* key) {
  const AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
  char headers[lttools::WORKING_BUFFER_SIZE];
  char item[lttools::WORKING_BUFFER_SIZE];
  lttools::ConcatStrings(headers, sizeof headers - 1, false,
                         {prefix, "+ ", qualifier, ",", prefix, "- ", qualifier});
  lttools::ConcatStrings(item, sizeof item - 1, false, {"*", key, "; *"});
  try {
    CatalogueReader library(CataloguePath(libraryPath).GetString());
    return library.IsOpen() ? PositionIn(library, headers, item) : NOT_FOUND;
  } catch (const std::bad_alloc&) {  // raised before the library is opened
    return NOT_FOUND;
  }
}

}  // namespace brevanta
