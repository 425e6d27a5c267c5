// CObject.h - the framework's base class, with the operations that the module's classes inherit or override.
#pragma once

// Names a class at run time; one object a class, told apart by address.
struct CRuntimeClass {
  const char* m_lpszClassName;
};

// Where objects would be archived or dumped to. The module does neither.
class CArchive;
class CDumpContext;

// The order of the virtual operations is the order of their slots.
class CObject {
 public:
  CObject(const CObject&) = delete;
  CObject& operator=(const CObject&) = delete;

  virtual CRuntimeClass* GetRuntimeClass() const;
  virtual ~CObject() = default;
  virtual void Serialize(CArchive& archive);
  virtual void AssertValid() const;
  virtual void Dump(CDumpContext& context) const;

 protected:
  CObject() = default;
};
