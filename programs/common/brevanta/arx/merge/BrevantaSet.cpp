// BrevantaSet.cpp - the ordered list of catalogue items.
#include "arx/merge/BrevantaSet.h"

namespace brevanta {

int IsSame(const CString& a, const CString& b) {
  return a == b ? 1 : 0;
}

int IsDifferent(const CString& a, const CString& b) {
  return a == b ? 0 : 1;
}

CBrevantaSet::~CBrevantaSet() {
  void* const* items = GetData();  // the checked access could raise an exception here
  for (std::int64_t i = 0; i < GetCount(); ++i)
    delete static_cast<CBrevantaItem*>(items[i]);
}

void CBrevantaSet::Serialize(CArchive& /*archive*/) {}

void CBrevantaSet::AssertValid() const {}

void CBrevantaSet::Dump(CDumpContext& /*context*/) const {}

std::int64_t CBrevantaSet::Add(CBrevantaItem* item) {
  return CPtrArray::Add(item);
}

bool CBrevantaSet::AddUnique(CBrevantaItem* item) {
  for (std::uint32_t i = 0; i < GetCount(); ++i) {
    const CBrevantaItem* held = GetItem(i);
    if (held != nullptr && IsSame(held->section, item->section) != 0 && IsSame(held->key, item->key) != 0) {
      return false;
    }
  }
  item->index = static_cast<std::uint32_t>(GetCount());
  Add(item);
  return true;
}

}  // namespace brevanta
