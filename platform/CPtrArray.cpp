// CPtrArray.cpp - removal, and the name of the class.
#include "platform/CPtrArray.h"

CRuntimeClass* CPtrArray::GetRuntimeClass() const {
  static CRuntimeClass classOfPtrArray{"CPtrArray"};
  return &classOfPtrArray;
}

void CPtrArray::RemoveAt(std::int64_t index, std::int64_t count) {
  if (index < 0 || count < 0 || index > GetCount() || count > GetCount() - index)
    throw CInvalidArgException();
  const auto first = elements_.begin() + index;
  elements_.erase(first, first + count);
}
