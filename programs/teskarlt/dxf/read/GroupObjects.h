// GroupObjects.h - the named groups of entities that a drawing holds, and the dictionaries in which they
// stand.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"

namespace teskarlt::dxf {

// All views and pointers lie in the source's text.

struct GroupMember {
  std::uint64_t handle;
  std::string_view text;  // of its tag
};

struct GroupObject {
  std::string_view text;  // all its tags
  std::uint64_t handle;   // 0: none, or one that cannot be read
  std::vector<GroupMember> members;
  const char* membersEnd;  // where members can be added: before extended data
};

struct DictionaryEntry {
  std::string_view name;  // as it stands in the file
  std::uint64_t handle;   // of the object; 0 as above
  std::string_view text;  // of both tags
};

struct Dictionary {
  std::string_view text;
  std::uint64_t handle;
  bool ownsHard;  // its entries are hard owners
  std::vector<DictionaryEntry> entries;
  const char* entriesEnd;  // where entries can be added: before extended data
};

struct GroupObjects {
  std::vector<GroupObject> groups;
  std::optional<Dictionary> root;        // of the drawing
  std::optional<Dictionary> groupNames;  // ACAD_GROUP
  // The root's entry for it, also where it leads to another object, of this type, or to none.
  std::optional<DictionaryEntry> groupNamesEntry;
  std::string_view groupNamesType;
  bool haveOwners = false;  // some object says to what it belongs
};

// One pass over the section OBJECTS; empty when it is missing.
GroupObjects ReadGroupObjects(const SourceText& source, const Index& index);

}  // namespace teskarlt::dxf
