// Owners.cpp - to what the objects of a drawing say that they belong.
#include "teskarlt/dxf/read/Owners.h"

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"

namespace teskarlt::dxf {
namespace {

// The first owner among the objects of a range, from the `first` of them on; code 0 when none has one.
Tag FirstOwner(const SourceText& source, std::string_view range, int first) {
  int object = -1;
  bool isInHead = false;  // of an object that is looked at: before its class markers
  bool isInControl = false;
  TagReader reader(source, range);
  for (Tag tag; reader.Next(tag);) {
    if (tag.code == CODE_TYPE) {
      isInHead = ++object >= first;
      isInControl = false;
    } else if (tag.code == CODE_SUBCLASS || IsExtendedData(tag.code)) {
      isInHead = false;
    } else if (tag.code == CODE_CONTROL) {
      isInControl = tag.value.starts_with('{');
    } else if (tag.code == CODE_OWNER && isInHead && !isInControl) {
      return tag;
    }
  }
  return {};
}

}  // namespace

Tag OwnerOf(const SourceText& source, std::string_view object) {
  return FirstOwner(source, object, 0);
}

Tag OwnerOfEntities(const SourceText& source, const Index& index) {
  for (const Entity& entity : index.entities) {
    const Tag owner = OwnerOf(source, entity.text);
    if (owner.code != 0) return owner;
  }
  return {};
}

Tag OwnerOfEntries(const SourceText& source, const Table& table) {
  constexpr int FIRST_ENTRY = 1;  // behind the head of the table
  return FirstOwner(source, {table.begin, static_cast<std::size_t>(table.end - table.begin)}, FIRST_ENTRY);
}

}  // namespace teskarlt::dxf
