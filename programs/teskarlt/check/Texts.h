// Texts.h - checks the lengths of texts and whether their bytes can be read as characters.
#pragma once

#include <optional>

#include "platform/CodePage.h"
#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"

namespace teskarlt::check {

class Texts {
 public:
  // `header` must outlive this and be filled before the first text.
  Texts(const Header& header, Findings& findings) : header_(header), findings_(findings) {}

  void Check(const Object& object);

 private:
  void CheckLength(const Object& object, const dxf::Tag& tag);
  void CheckBytes(const Object& object, const dxf::Tag& tag);
  void CheckPageBytes(const Object& object, const dxf::Tag& tag);
  bool FindPage(const dxf::Tag& tag);

  const Header& header_;
  Findings& findings_;
  std::optional<platform::CodePage> page_;
  bool isPageUnknown_ = false;
};

}  // namespace teskarlt::check
