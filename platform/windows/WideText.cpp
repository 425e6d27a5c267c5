// WideText.cpp - texts between UTF-8 and the UTF-16 of the Windows interface.
#include "platform/windows/WideText.h"

#include <windows.h>

namespace platform {

std::wstring ToWide(const std::string& utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(utf8.size(), L'\0');  // never more units than bytes
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()))));
  return wide;
}

std::string ToNarrow(const wchar_t* wide, std::size_t length) {
  const int size = static_cast<int>(length);
  std::string text(length * 3, '\0');  // never more bytes than three a unit
  text.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, wide, size, text.data(),
                                                           static_cast<int>(text.size()), nullptr, nullptr)));
  return text;
}

}  // namespace platform
