// BrevantaSet.h - the ordered list of catalogue items that a merge collects and writes.
#pragma once

#include <cstdint>

#include "arx/merge/BrevantaItem.h"
#include "platform/CPtrArray.h"

namespace brevanta {

// Owns its items, which come from new. The order is that of adding. An element may be null.
class CBrevantaSet : public CPtrArray {
 public:
  CBrevantaSet() = default;
  ~CBrevantaSet() override;
  CBrevantaSet(const CBrevantaSet&) = delete;
  CBrevantaSet& operator=(const CBrevantaSet&) = delete;

  // The set is never archived, checked or dumped: these do nothing.
  void Serialize(CArchive& archive) override;
  void AssertValid() const override;
  void Dump(CDumpContext& context) const override;

  // The item at `index`, still the set's; null when there is none.
  CBrevantaItem* GetItem(std::uint32_t index) const {
    constexpr std::uint32_t noIndex = UINT32_MAX;
    if (index == noIndex || index >= GetCount()) return nullptr;
    return static_cast<CBrevantaItem*>(GetAt(index));
  }

  // Takes the item over and returns its position.
  std::int64_t Add(CBrevantaItem* item);

  // Adds the item with its position in `index`, unless the set holds one of
  // the same section and key: then the item stays the caller's. True when
  // it was added. Walks the whole set; a merge asks an ItemIndex instead.
  bool AddUnique(CBrevantaItem* item);
};

}  // namespace brevanta
