// Object.h - one entity, table entry or object of a drawing as the checks see it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/Tag.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::check {

// Where it stands.
enum class Place {
  Section,      // SECTION itself, with the variables in the case of HEADER
  SectionEnd,   // ENDSEC
  Table,        // TABLE itself
  TableEntry,   // of a table
  TableEnd,     // ENDTAB
  BlockEntity,  // of the section BLOCKS, with BLOCK and ENDBLK
  Entity,       // of the section ENTITIES
  Object,       // of the section OBJECTS
  Class,        // of the section CLASSES
  Other,        // of a section that is not known
};

// The tags from one with the code 0 up to the next. The views lie in the drawing's bytes, `tags` holds until
// the next object is read.
struct Object {
  std::string_view type;  // "3DFACE"
  Place place = Place::Other;
  std::string_view section;        // "ENTITIES"; empty outside of all
  std::string_view table;          // of a table, its entries and its end
  std::span<const dxf::Tag> tags;  // the first one holds the type
  std::size_t ownTags = 0;         // number of tags before the extended data
  const dxf::Tag* handle = nullptr;
  std::uint64_t number = 0;  // of the handle; 0: none, or one that cannot be read

  std::span<const dxf::Tag> Own() const { return tags.first(ownTags); }
  std::span<const dxf::Tag> Extended() const { return tags.subspan(ownTags); }
  const char* Begin() const { return type.data(); }
  bool IsEntity() const { return place == Place::Entity || place == Place::BlockEntity; }
};

// What the header says about all that follows it.
struct Header {
  int version = dxf::VERSION_R12;
  bool saysVersion = false;
  std::string_view codePage = dxf::DEFAULT_CODE_PAGE;
  dxf::Tag handleSeed;  // code 0 when it is missing
};

// The first of the object's own tags with this code; null when there is none.
inline const dxf::Tag* FindTag(const Object& object, int code) {
  for (const dxf::Tag& tag : object.Own())
    if (tag.code == code) return &tag;
  return nullptr;
}

}  // namespace teskarlt::check
