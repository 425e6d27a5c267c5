// Index.h - where the parts of a drawing lie in its bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Tag.h"

namespace teskarlt::dxf {

// An entity of the file. The views lie in the document's bytes.
struct Entity {
  // All its tags, with those of the vertices of a POLYLINE and the attributes of an INSERT.
  std::string_view text;
  std::string_view type;  // "3DFACE"
  std::uint64_t handle;   // 0: none, or one that cannot be read
};

struct Section {
  std::string_view name;
  const char* begin;  // of the line before SECTION
  const char* end;    // of the line before ENDSEC: where something can be added
};

struct HeaderVariable {
  std::string_view name;
  Tag value;  // its first tag
};

struct Table {
  std::string_view name;
  const char* begin;                      // of the line before TABLE
  const char* end;                        // of the line before ENDTAB
  Tag handle;                             // code 0 when the table has none
  Tag count;                              // likewise
  std::vector<std::string_view> entries;  // names as they stand in the file
};

// Views and pointers lie in the source's text.
struct Index {
  std::vector<Section> sections;
  std::vector<HeaderVariable> variables;
  std::vector<Table> tables;
  std::vector<Entity> entities;        // of the model space
  std::size_t paperSpaceEntities = 0;  // of the ENTITIES section
  bool hasObjectHandles = false;       // some object of the section OBJECTS has a handle
  std::uint64_t largestHandle = 0;     // of all objects, $HANDSEED aside
  // Of the block entry of the model space: its name and its handle; code 0 when missing.
  Tag modelSpaceName;
  Tag modelSpace;

  const Section* FindSection(std::string_view name) const;
  const Table* FindTable(std::string_view name) const;
  const HeaderVariable* FindVariable(std::string_view name) const;
};

// One pass over the text. Throws Error with the line for a text that is no complete drawing.
Index BuildIndex(const SourceText& source);

}  // namespace teskarlt::dxf
