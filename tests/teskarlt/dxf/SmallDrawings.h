// SmallDrawings.h - drawings of a few lines for tests.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt::dxf {

// A text of tags written with "|" in place of line ends.
inline std::string Tags(std::string_view text, std::string_view lineEnd = "\n") {
  std::string tags;
  for (const char byte : text) {
    if (byte == '|') {
      tags += lineEnd;
    } else {
      tags += byte;
    }
  }
  return tags.empty() ? tags : tags.append(lineEnd);
}

// A drawing that holds nothing but these entities (with "|" for line ends).
inline std::string OnlyEntities(std::string_view entities) {
  return Tags("0|SECTION|2|ENTITIES") + Tags(entities) + Tags("0|ENDSEC|0|EOF");
}

// A drawing of a version with nothing in it, 20 being its first free handle and 1F the owner of entities.
inline std::string OfVersion(std::string_view version, std::string_view entities = "") {
  return Tags("  0|SECTION|  2|HEADER|  9|$ACADVER|  1|" + std::string(version) +
              "|  9|$DWGCODEPAGE|  3|ANSI_1250|  9|$HANDSEED|  5|20|  0|ENDSEC|  0|SECTION|  2|TABLES|"
              "  0|TABLE|  2|BLOCK_RECORD|  5|1| 70|     1|  0|BLOCK_RECORD|  5|1F|  2|*MODEL_SPACE|  "
              "0|ENDTAB|"
              "  0|ENDSEC|  0|SECTION|  2|ENTITIES") +
         Tags(entities) + Tags("  0|ENDSEC|  0|EOF");
}

inline Document Parsed(const std::string& text) {
  return Document::FromText("roof.dxf", text);
}

// What the call throws as Error, else "".
template <typename Call>
std::string ErrorOf(Call call) {
  try {
    call();
  } catch (const Error& error) {
    return error.what();
  }
  return {};
}

// Message of a text that cannot be loaded.
inline std::string LoadError(const std::string& text) {
  return ErrorOf([&] { Parsed(text); });
}

// What stands in `text` and not in `original`, for a text that came from it by one insertion.
inline std::string Inserted(const std::string& original, const std::string& text) {
  const auto front = std::mismatch(original.begin(), original.end(), text.begin(), text.end());
  const auto begin = static_cast<std::size_t>(front.first - original.begin());
  const std::size_t size = text.size() - original.size();
  EXPECT_EQ(text.substr(begin + size), original.substr(begin));
  return text.substr(begin, size);
}

}  // namespace teskarlt::dxf
