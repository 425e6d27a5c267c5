// GroupObjects.cpp - reads GROUP objects and the dictionaries that name them.
#include "teskarlt/dxf/read/GroupObjects.h"

#include <algorithm>
#include <utility>

#include "teskarlt/dxf/read/Objects.h"
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

GroupObject ReadGroup(const SourceText& source, std::string_view text) {
  GroupObject group{text, 0, {}, nullptr};
  TagReader reader(source, text);
  for (Tag tag; reader.Next(tag);) {
    if (tag.code == CODE_HANDLE && group.handle == 0) group.handle = HandleOf(tag);
    if (tag.code == CODE_GROUP_MEMBER)
      group.members.push_back({HandleOf(tag), Between(reader.TagBegin(), reader.TagEnd())});
    if (tag.code == CODE_GROUP_MEMBER || tag.code == CODE_GROUP_SELECTABLE)
      group.membersEnd = reader.TagEnd();
  }
  if (group.membersEnd == nullptr) group.membersEnd = text.data() + text.size();
  return group;
}

Dictionary ReadDictionary(const SourceText& source, std::string_view text) {
  Dictionary dictionary{text, 0, false, {}};
  TagReader reader(source, text);
  const char* nameBegin = nullptr;
  std::string_view name;
  for (Tag tag; reader.Next(tag);) {
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

std::uint64_t GroupNamesHandle(const Dictionary& root) {
  const auto found = std::find_if(root.entries.begin(), root.entries.end(), [](const DictionaryEntry& entry) {
    return SameName(Trimmed(entry.name), GROUP_DICTIONARY);
  });
  return found == root.entries.end() ? 0 : found->handle;
}

}  // namespace

GroupObjects ReadGroupObjects(const SourceText& source, const Index& index) {
  GroupObjects objects;
  std::vector<Dictionary> dictionaries;
  for (const auto& [type, text] : ReadObjects(source, index)) {
    if (type == TYPE_GROUP) objects.groups.push_back(ReadGroup(source, text));
    if (type == TYPE_DICTIONARY) dictionaries.push_back(ReadDictionary(source, text));
  }
  if (dictionaries.empty()) return objects;
  objects.root = dictionaries.front();  // the first of a drawing names all others
  const std::uint64_t wanted = GroupNamesHandle(*objects.root);
  for (Dictionary& dictionary : dictionaries) {
    if (wanted == 0 || dictionary.handle != wanted) continue;
    objects.groupNames = std::move(dictionary);
    break;
  }
  return objects;
}

}  // namespace teskarlt::dxf
