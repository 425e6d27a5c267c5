// CObject.cpp - the base class does nothing in any of its operations.
#include "platform/CObject.h"

CRuntimeClass* CObject::GetRuntimeClass() const {
  static CRuntimeClass classOfObject{"CObject"};
  return &classOfObject;
}

void CObject::Serialize(CArchive& /*archive*/) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& /*context*/) const {}
