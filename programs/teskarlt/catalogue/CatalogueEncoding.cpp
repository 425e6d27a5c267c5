// CatalogueEncoding.cpp - encodings of catalogues, found by their bytes and converted line by line.
#include "teskarlt/catalogue/CatalogueEncoding.h"

#include <algorithm>

#include <fmt/format.h>

#include "platform/CodePage.h"
#include "teskarlt/Error.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

// Nothing for UTF-8.
std::optional<platform::CodePage> PageOf(CatalogueEncoding encoding) {
  if (encoding == CatalogueEncoding::Utf8) return std::nullopt;
  return platform::CodePage(static_cast<int>(encoding));
}

bool IsAscii(std::string_view bytes) {
  return std::none_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) != 0; });
}

}  // namespace

std::optional<CatalogueEncoding> EncodingOf(std::string_view catalogue) {
  if (IsAscii(catalogue)) return std::nullopt;
  return dxf::HoldsUtf8(catalogue) ? CatalogueEncoding::Utf8 : CatalogueEncoding::Czech;
}

CatalogueEncoding EncodingNamed(const std::string& name) {
  if (dxf::SameName(name, "utf-8") || dxf::SameName(name, "utf8")) return CatalogueEncoding::Utf8;
  if (const auto page = platform::FindCodePage(name)) return static_cast<CatalogueEncoding>(page->Number());
  throw Error(fmt::format("--encoding {}: no such encoding is known; say utf-8, or a code page as cp1250 or "
                          "iso8859-2",
                          name),
              {.value = name});
}

std::string NameOf(CatalogueEncoding encoding) {
  return encoding == CatalogueEncoding::Utf8 ? "UTF-8"
                                             : fmt::format("code page {}", static_cast<int>(encoding));
}

std::string Converted(std::string_view catalogue, CatalogueEncoding from, CatalogueEncoding to,
                      const std::string& file) {
  const std::optional<platform::CodePage> source = PageOf(from);
  const std::optional<platform::CodePage> target = PageOf(to);
  std::string converted;
  for (std::size_t number = 1; !catalogue.empty(); ++number) {
    const std::string_view line = catalogue.substr(0, catalogue.find('\n') + 1);  // all of it without one
    const std::string_view bytes = line.empty() ? catalogue : line;
    try {
      const std::string utf8 = source ? source->ToUtf8(bytes) : std::string(bytes);
      if (!IsAscii(utf8) && !dxf::HoldsUtf8(utf8)) throw Error("the line is not in UTF-8");
      converted += target ? target->FromUtf8(utf8) : utf8;
    } catch (const Error& error) {
      throw Error(error.Message(), {file, ErrorPlace::Unit::Line, number, error.Place().value});
    }
    catalogue.remove_prefix(bytes.size());
  }
  return converted;
}

}  // namespace teskarlt
