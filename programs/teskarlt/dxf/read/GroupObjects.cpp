// GroupObjects.cpp - reads GROUP objects and the dictionaries that name them.
#include "teskarlt/dxf/read/GroupObjects.h"

#include <algorithm>
#include <utility>

#include "teskarlt/dxf/read/Objects.h"
#include "teskarlt/dxf/read/Owners.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

std::uint64_t HandleOf(const Tag& tag) {
  return ParseHandle(tag.value).value_or(0);
}

std::string_view Between(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

// Nothing of an object may stand behind its extended data.
GroupObject ReadGroup(const SourceText& source, std::string_view text) {
  GroupObject group{text, 0, {}, text.data() + text.size()};
  TagReader reader(source, text);
  for (Tag tag; reader.Next(tag);) {
    if (IsExtendedData(tag.code)) {
      group.membersEnd = reader.TagBegin();
      break;
    }
    if (tag.code == CODE_HANDLE && group.handle == 0) group.handle = HandleOf(tag);
    if (tag.code == CODE_GROUP_MEMBER)
      group.members.push_back({HandleOf(tag), Between(reader.TagBegin(), reader.TagEnd())});
  }
  return group;
}

Dictionary ReadDictionary(const SourceText& source, std::string_view text) {
  Dictionary dictionary{text, 0, false, {}, text.data() + text.size()};
  TagReader reader(source, text);
  const char* nameBegin = nullptr;
  std::string_view name;
  for (Tag tag; reader.Next(tag);) {
    if (IsExtendedData(tag.code)) {
      dictionary.entriesEnd = reader.TagBegin();
      break;
    }
    if (tag.code == CODE_HANDLE && dictionary.handle == 0) dictionary.handle = HandleOf(tag);
    if (tag.code == CODE_HARD_OWNER_FLAG) dictionary.ownsHard = ParseInteger(tag.value).value_or(0) == 1;
    if (tag.code == CODE_ENTRY_NAME) {
      name = tag.value;
      nameBegin = reader.TagBegin();
    }
    if (nameBegin != nullptr && (tag.code == CODE_SOFT_OWNED || tag.code == CODE_HARD_OWNED)) {
      dictionary.entries.push_back({name, HandleOf(tag), Between(nameBegin, reader.TagEnd())});
      nameBegin = nullptr;
    }
  }
  return dictionary;
}

std::optional<DictionaryEntry> FindGroupNames(const Dictionary& root) {
  const auto found = std::find_if(root.entries.begin(), root.entries.end(), [](const DictionaryEntry& entry) {
    return SameName(Trimmed(entry.name), GROUP_DICTIONARY);
  });
  return found == root.entries.end() ? std::nullopt : std::optional(*found);
}

// Empty where no object has the handle.
std::string_view TypeOfObject(const SourceText& source, const std::vector<ObjectText>& objects,
                              std::uint64_t handle) {
  for (const auto& [type, text] : objects) {
    TagReader reader(source, text);
    for (Tag tag; reader.Next(tag) && !IsExtendedData(tag.code);) {
      if (tag.code != CODE_HANDLE) continue;
      if (HandleOf(tag) == handle) return type;
      break;
    }
  }
  return {};
}

}  // namespace

GroupObjects ReadGroupObjects(const SourceText& source, const Index& index) {
  GroupObjects groups;
  std::vector<Dictionary> dictionaries;
  const std::vector<ObjectText> objects = ReadObjects(source, index);
  for (const auto& [type, text] : objects) {
    if (type == TYPE_GROUP) groups.groups.push_back(ReadGroup(source, text));
    if (type == TYPE_DICTIONARY) dictionaries.push_back(ReadDictionary(source, text));
    groups.haveOwners = groups.haveOwners || OwnerOf(source, text).code != 0;
  }
  if (dictionaries.empty()) return groups;
  groups.root = dictionaries.front();  // the first of a drawing names all others
  groups.groupNamesEntry = FindGroupNames(*groups.root);
  const std::uint64_t wanted = groups.groupNamesEntry ? groups.groupNamesEntry->handle : 0;
  if (wanted == 0) return groups;
  for (Dictionary& dictionary : dictionaries) {
    if (dictionary.handle != wanted) continue;
    groups.groupNames = std::move(dictionary);
    return groups;
  }
  groups.groupNamesType = TypeOfObject(source, objects, wanted);
  return groups;
}

}  // namespace teskarlt::dxf
