// Referrers.cpp - objects that removed entities own, and references to whatever is removed.
#include "teskarlt/dxf/write/Referrers.h"

#include <string_view>

#include "teskarlt/dxf/read/Objects.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

using Handles = std::unordered_set<std::uint64_t>;

bool Holds(const Handles& handles, const Tag& tag) {
  return handles.contains(ParseHandle(tag.value).value_or(0));
}

// What decides whether an object goes with others.
struct Belonging {
  std::uint64_t handle = 0;
  std::uint64_t owner = 0;
  bool isBroken = false;  // an association with a removed entity
};

Belonging BelongingOf(const SourceText& source, const ObjectText& object, const Handles& removed) {
  Belonging belonging;
  const bool isAssociation = object.type == TYPE_ASSOCIATION;
  bool isInList = false;
  TagReader reader(source, object.text);
  for (Tag tag; reader.Next(tag);) {
    if (tag.code == CODE_CONTROL) isInList = tag.value != CONTROL_END;
    if (isInList) continue;
    if (tag.code == CODE_HANDLE && belonging.handle == 0)
      belonging.handle = ParseHandle(tag.value).value_or(0);
    if (tag.code == CODE_OWNER && belonging.owner == 0) belonging.owner = ParseHandle(tag.value).value_or(0);
    const bool isPartner = tag.code == CODE_ASSOCIATED || tag.code == CODE_ASSOCIATED_CROSSING;
    if (isAssociation && isPartner && Holds(removed, tag)) belonging.isBroken = true;
  }
  return belonging;
}

// Removes the objects that go with what is removed, adds their handles to `removed` and gives those that
// stay.
std::vector<ObjectText> RemoveDependents(const SourceText& source, const std::vector<ObjectText>& objects,
                                         Handles& removed, std::vector<Splice>& splices) {
  std::vector<Belonging> belongings;
  belongings.reserve(objects.size());
  for (const ObjectText& object : objects)
    belongings.push_back(BelongingOf(source, object, removed));
  std::vector<bool> goes(objects.size());
  for (bool hasGrown = true; hasGrown;) {
    hasGrown = false;
    for (std::size_t i = 0; i < objects.size(); ++i) {
      if (goes[i] || !(belongings[i].isBroken || removed.contains(belongings[i].owner))) continue;
      goes[i] = hasGrown = true;
      if (belongings[i].handle != 0) removed.insert(belongings[i].handle);
    }
  }
  std::vector<ObjectText> kept;
  for (std::size_t i = 0; i < objects.size(); ++i) {
    const std::string_view text = objects[i].text;
    if (goes[i]) splices.push_back({text.data(), text.data() + text.size()});
    if (!goes[i]) kept.push_back(objects[i]);
  }
  return kept;
}

// Of a sort table: the tags of an entity and of the handle to sort it by.
void RemoveFromSortTable(const SourceText& source, const ObjectText& table, const Handles& removed,
                         std::vector<Splice>& splices) {
  TagReader reader(source, table.text);
  bool takesNext = false;
  for (Tag tag; reader.Next(tag);) {
    const bool isRemoved = tag.code == CODE_SORTED_ENTITY && Holds(removed, tag);
    if (isRemoved || (takesNext && tag.code == CODE_HANDLE))
      splices.push_back({reader.TagBegin(), reader.TagEnd()});
    takesNext = isRemoved;
  }
}

// Of a dictionary: the tags of a name and of its object.
void RemoveFromDictionary(const SourceText& source, const ObjectText& dictionary, const Handles& removed,
                          std::vector<Splice>& splices) {
  TagReader reader(source, dictionary.text);
  const char* nameBegin = nullptr;
  for (Tag tag; reader.Next(tag);) {
    const bool isEntry = tag.code == CODE_SOFT_OWNED || tag.code == CODE_HARD_OWNED;
    if (nameBegin != nullptr && isEntry && Holds(removed, tag))
      splices.push_back({nameBegin, reader.TagEnd()});
    nameBegin = tag.code == CODE_ENTRY_NAME ? reader.TagBegin() : nullptr;
  }
}

// Of the reactors whose first tag stands at `begin`: the removed ones, and the list when none is left.
void RemoveFromReactors(const SourceText& source, std::string_view text, const char* begin,
                        const Handles& removed, std::vector<Splice>& splices) {
  TagReader reader(source, text.substr(static_cast<std::size_t>(begin - text.data())));
  std::vector<Splice> taken;
  bool isAnyLeft = false;
  Tag tag;
  reader.Next(tag);
  while (reader.Next(tag) && tag.code != CODE_CONTROL) {
    if (Holds(removed, tag)) {
      taken.push_back({reader.TagBegin(), reader.TagEnd()});
    } else {
      isAnyLeft = true;
    }
  }
  if (taken.empty()) return;
  if (!isAnyLeft) taken = {{begin, reader.TagEnd()}};
  splices.insert(splices.end(), taken.begin(), taken.end());
}

// Begin of the tag whose value holds the byte at `at`.
const char* TagAround(std::string_view text, std::size_t at) {
  const auto codeEnd = text.rfind('\n', at);
  const auto before = codeEnd == 0 || codeEnd == std::string_view::npos ? std::string_view::npos
                                                                        : text.rfind('\n', codeEnd - 1);
  return text.data() + (before == std::string_view::npos ? 0 : before + 1);
}

// Reactors stand in entities, objects and entries of tables: the text is searched for them.
void RemoveFromAllReactors(const SourceText& source, const Index& index, const Handles& removed,
                           std::vector<Splice>& splices) {
  const char* const begin = source.Tags().data();
  const std::string_view text(begin, static_cast<std::size_t>(index.sections.back().end - begin));
  for (auto at = text.find(REACTORS_BEGIN); at != std::string_view::npos;
       at = text.find(REACTORS_BEGIN, at + REACTORS_BEGIN.size())) {
    const char* const tagBegin = TagAround(text, at);
    Tag tag;
    TagReader(source, text.substr(static_cast<std::size_t>(tagBegin - text.data()))).Next(tag);
    if (tag.code == CODE_CONTROL && tag.value == REACTORS_BEGIN)
      RemoveFromReactors(source, text, tagBegin, removed, splices);
  }
}

}  // namespace

void AddReferrerSplices(const SourceText& source, const Index& index, const Handles& removedHandles,
                        std::vector<Splice>& splices) {
  if (removedHandles.empty()) return;
  Handles removed = removedHandles;
  for (const ObjectText& object : RemoveDependents(source, ReadObjects(source, index), removed, splices)) {
    if (object.type == TYPE_SORT_TABLE) RemoveFromSortTable(source, object, removed, splices);
    if (IsDictionaryType(object.type)) RemoveFromDictionary(source, object, removed, splices);
  }
  RemoveFromAllReactors(source, index, removed, splices);
}

}  // namespace teskarlt::dxf
