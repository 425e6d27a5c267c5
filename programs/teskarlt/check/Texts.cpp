// Texts.cpp - UTF-8 from R2007 on, the drawing's code page before.
#include "teskarlt/check/Texts.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/ValueKind.h"

namespace teskarlt::check {
namespace {

using dxf::Quoted;
using dxf::Tag;

constexpr std::size_t LONGEST_OLD_TEXT = 255;  // bytes; before R2000
constexpr std::size_t LONGEST_TEXT = 2049;

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) == 0; });
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();)
    if (!platform::NextCharacter(text, at)) return false;
  return true;
}

// Pages of one byte a character; in the others two bytes that are also UTF-8 are nothing to wonder at.
bool IsSingleByte(int page) {
  constexpr int DOUBLE_BYTE_PAGES[] = {932, 936, 949, 950, 1361};
  return std::none_of(std::begin(DOUBLE_BYTE_PAGES), std::end(DOUBLE_BYTE_PAGES),
                      [&](int other) { return other == page; });
}

// Characters that stand for bytes which the page does not define.
bool HasUndefinedBytes(const platform::CodePage& page, std::string_view bytes) {
  constexpr char32_t FIRST_CONTROL = 0x80;
  constexpr char32_t LAST_CONTROL = 0x9F;
  const std::string utf8 = page.ToUtf8(bytes);
  for (std::size_t at = 0; at < utf8.size();) {
    const char32_t character = platform::NextCharacter(utf8, at).value_or(FIRST_CONTROL);
    if (character >= FIRST_CONTROL && character <= LAST_CONTROL) return true;
  }
  return false;
}

}  // namespace

void Texts::Check(const Object& object) {
  for (const Tag& tag : object.tags) {
    const dxf::ValueKind kind = dxf::KindOf(tag.code);
    if (kind != dxf::ValueKind::Text && kind != dxf::ValueKind::Binary) continue;
    if (!dxf::IsExtendedData(tag.code)) CheckLength(object, tag);
    if (!IsAscii(tag.value)) CheckBytes(object, tag);
  }
}

void Texts::CheckLength(const Object& object, const Tag& tag) {
  const std::size_t longest = header_.version < dxf::VERSION_R2000 ? LONGEST_OLD_TEXT : LONGEST_TEXT;
  if (tag.value.size() <= longest) return;
  findings_.Warning(Kind::TextLength, tag.value.data(),
                    fmt::format("the text {} has {} bytes; strict programs read {} (group {})",
                                Quoted(tag.value), tag.value.size(), longest, tag.code),
                    object.number);
}

void Texts::CheckBytes(const Object& object, const Tag& tag) {
  if (!dxf::IsUtf8(header_.version)) {
    CheckPageBytes(object, tag);
  } else if (!IsUtf8(tag.value)) {
    findings_.Error(
        Kind::TextBytes, tag.value.data(),
        fmt::format("{} holds bytes that are no UTF-8, in which texts of this version are written "
                    "(group {})",
                    Quoted(tag.value), tag.code),
        object.number);
  }
}

void Texts::CheckPageBytes(const Object& object, const Tag& tag) {
  if (!FindPage(tag)) return;
  if (IsSingleByte(page_->Number()) && IsUtf8(tag.value)) {
    findings_.Warning(Kind::TextBytes, tag.value.data(),
                      fmt::format("{} looks like UTF-8, but texts of this drawing are in {} (group {})",
                                  Quoted(tag.value), header_.codePage, tag.code),
                      object.number);
  } else if (HasUndefinedBytes(*page_, tag.value)) {
    findings_.Warning(Kind::TextBytes, tag.value.data(),
                      fmt::format("{} holds bytes that the code page {} does not have (group {})",
                                  Quoted(tag.value), header_.codePage, tag.code),
                      object.number);
  }
}

// The drawing's code page; false, after one finding, when it is not known.
bool Texts::FindPage(const Tag& tag) {
  if (page_ || isPageUnknown_) return page_.has_value();
  page_ = platform::FindCodePage(header_.codePage);
  isPageUnknown_ = !page_;
  if (isPageUnknown_) {
    findings_.Warning(
        Kind::CodePage, tag.value.data(),
        fmt::format("the code page {} is not known, so this text and others are taken to be in {}",
                    Quoted(header_.codePage), dxf::DEFAULT_CODE_PAGE));
  }
  return page_.has_value();
}

}  // namespace teskarlt::check
