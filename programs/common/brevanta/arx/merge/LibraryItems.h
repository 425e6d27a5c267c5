// LibraryItems.h - the items that a merge collects from both catalogues.
#pragma once

#include <string_view>

#include "arx/merge/BrevantaSet.h"
#include "arx/merge/CatalogueFile.h"
#include "arx/merge/ItemIndex.h"

namespace brevanta {

// The set and the index beside it. Raises std::bad_alloc while it collects.
class LibraryItems {
 public:
  // Adds every item of the target, repeated ones too. False when the file could not be read to its end.
  bool CollectTarget(CatalogueReader& target) { return Collect(target, false); }

  // Adds the items of the source whose section and key are not there yet, its own repetitions included. False
  // when the file could not be read to its end.
  bool CollectSource(CatalogueReader& source) { return Collect(source, true); }

  // Writes the items of the section with this header line in the order of the set, and drops them.
  void WriteSection(std::string_view header, CatalogueWriter& target);

  // Writes what is left in the order of the set, with a header line before each run of items of one section.
  void WriteRest(CatalogueWriter& target) const;

 private:
  bool Collect(CatalogueReader& file, bool unique);
  void AddItem(ItemIndex::Section section, std::string_view line, bool unique);

  CBrevantaSet set_;
  ItemIndex index_{set_};
};

}  // namespace brevanta
