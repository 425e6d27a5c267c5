// FindCatalogueItem.cpp - looks an item up in a catalogue file.
#include "arx/merge/FindCatalogueItem.h"

#include "arx/merge/CatalogueFile.h"
#include "lttools/SUPP.h"
#include "platform/ModuleState.h"

namespace brevanta {

namespace {

constexpr std::int32_t NOT_FOUND = -1;

}  // namespace

std::int32_t FindCatalogueItem(const char* prefix, const char* libraryPath, const char* qualifier,
                               const char* key) {
  const AFX_MAINTAIN_STATE2 moduleState(AfxGetStaticModuleState());
  char headers[lttools::WORKING_BUFFER_SIZE];
  char item[lttools::WORKING_BUFFER_SIZE];
  lttools::ConcatStrings(headers, sizeof headers - 1, false,
                         {prefix, "+ ", qualifier, ",", prefix, "- ", qualifier});
  lttools::ConcatStrings(item, sizeof item - 1, false, {"*", key, "; *"});

  CatalogueReader library(CataloguePath(libraryPath).GetString());
  if (!library.IsOpen()) return NOT_FOUND;
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

}  // namespace brevanta
