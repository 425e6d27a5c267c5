// WideText.h - texts between UTF-8 and the UTF-16 of the Windows interface.
#pragma once

#include <cstddef>
#include <string>

namespace platform {

std::wstring ToWide(const std::string& utf8);
std::string ToNarrow(const wchar_t* wide, std::size_t length);  // to UTF-8

}  // namespace platform
