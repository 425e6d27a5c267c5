// NewGroups.cpp - writes groups, their dictionaries and what becomes of groups that lose members.
#include "teskarlt/dxf/write/NewGroups.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Version.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {
namespace {

constexpr std::uint64_t NO_OWNER = 0;

void WriteMembers(TagWriter& writer, std::span<const std::uint64_t> members) {
  for (const std::uint64_t member : members)
    writer.Handle(CODE_GROUP_MEMBER, member);
}

void WriteEntry(TagWriter& writer, std::string_view name, std::uint64_t handle, bool isHardOwner) {
  writer.Text(CODE_ENTRY_NAME, name);
  writer.Handle(isHardOwner ? CODE_HARD_OWNED : CODE_SOFT_OWNED, handle);
}

void WriteDictionaryHead(TagWriter& writer, std::uint64_t handle, std::uint64_t owner, bool namesOwners) {
  writer.Text(CODE_TYPE, TYPE_DICTIONARY);
  writer.Handle(CODE_HANDLE, handle);
  if (namesOwners) {
    if (owner != NO_OWNER) WriteReactors(writer, std::array{owner});
    writer.Handle(CODE_OWNER, owner);
  }
  writer.Text(CODE_SUBCLASS, "AcDbDictionary");
}

Splice Removal(std::string_view text) {
  return {text.data(), text.data() + text.size()};
}

}  // namespace

void WriteReactors(TagWriter& writer, std::span<const std::uint64_t> reactors) {
  writer.Text(CODE_CONTROL, REACTORS_BEGIN);
  for (const std::uint64_t reactor : reactors)
    writer.Handle(CODE_REACTOR, reactor);
  writer.Text(CODE_CONTROL, CONTROL_END);
}

NewGroups::NewGroups(const SourceText& source, const Index& index, const TextCodec& codec, const Rules& rules,
                     HandleSeed& handles)
    : source_(source), index_(index), codec_(codec), rules_(rules), handles_(handles) {}

const GroupObjects& NewGroups::Objects() const {
  if (objects_) return *objects_;
  objects_ = ReadGroupObjects(source_, index_);
  for (const GroupObject& group : objects_->groups) {
    for (const GroupMember& member : group.members)
      groupsOfMember_[member.handle].push_back(&group);
  }
  if (objects_->groupNames) {
    for (const DictionaryEntry& entry : objects_->groupNames->entries)
      fileNames_.insert(FoldedName(codec_.Decode(entry.name)));
  }
  return *objects_;
}

bool NewGroups::NamesOwners() const {
  return HasOwners(rules_.version) || (HasSubclassMarkers(rules_.version) && Objects().haveOwners);
}

std::vector<const GroupObject*> NewGroups::GroupsOf(std::span<const std::uint64_t> entities) const {
  Objects();
  std::vector<const GroupObject*> common;
  for (const std::uint64_t entity : entities) {
    const auto found = groupsOfMember_.find(entity);
    if (entity == 0 || found == groupsOfMember_.end()) return {};
    if (entity == entities.front()) common = found->second;
    std::erase_if(common, [&](const GroupObject* group) {
      return std::find(found->second.begin(), found->second.end(), group) == found->second.end();
    });
  }
  return common;
}

std::uint64_t NewGroups::AllocateHandle() {
  return HasSubclassMarkers(rules_.version) ? handles_.Allocate() : 0;
}

bool NewGroups::HasName(const std::string& foldedName) const {
  return fileNames_.contains(foldedName) || newNames_.contains(foldedName);
}

std::string NewGroups::FreeName(std::string_view name) const {
  Objects();
  std::string candidate(name);
  for (int number = 2; HasName(FoldedName(candidate)); ++number)
    candidate = fmt::format("{}_{}", name, number);
  return candidate;
}

const NewGroups::Addition* NewGroups::Opener() const {
  const auto found = std::find_if(additions_.begin(), additions_.end(),
                                  [](const Addition& addition) { return addition.opensDictionary; });
  return found == additions_.end() ? nullptr : &*found;
}

// Handle of the dictionary that names the groups. The first group of a drawing without one opens it.
std::uint64_t NewGroups::NamesHandle(Addition& addition) {
  if (Objects().groupNames) return Objects().groupNames->handle;
  if (const Addition* opener = Opener(); opener != nullptr) return opener->names;
  RefuseOtherNames();
  addition.opensDictionary = true;
  addition.root = Objects().root ? Objects().root->handle : handles_.Allocate();
  addition.names = handles_.Allocate();
  return addition.names;
}

// An object of another type may hold groups in a way that is not known here.
void NewGroups::RefuseOtherNames() const {
  if (Objects().groupNamesType.empty()) return;
  const DictionaryEntry& entry = *Objects().groupNamesEntry;
  source_.FailAt(
      entry.name.data(),
      fmt::format("{} leads to the {} {:X}, and new groups need a DICTIONARY there; let a CAD program "
                  "repair the drawing first",
                  GROUP_DICTIONARY, Objects().groupNamesType, entry.handle));
}

std::vector<std::string> NewGroups::Notes() const {
  if (Opener() == nullptr || !Objects().groupNamesEntry) return {};
  const DictionaryEntry& entry = *Objects().groupNamesEntry;
  const std::string note = fmt::format(
      "{} led to {:X}, which is no dictionary of the drawing, and leads to a new dictionary of "
      "groups now",
      GROUP_DICTIONARY, entry.handle);
  return {Error(note, source_.PlaceOf(entry.name.data())).what()};
}

void NewGroups::Add(std::uint64_t handle, std::string_view name, std::string_view description,
                    std::span<const std::uint64_t> members) {
  if (handle == 0 || members.empty()) return;
  Addition addition{};
  const std::uint64_t names = NamesHandle(addition);
  const std::string freeName = FreeName(name);
  TagWriter writer(addition.text, rules_.lineEnd);
  writer.Text(CODE_TYPE, TYPE_GROUP);
  writer.Handle(CODE_HANDLE, handle);
  if (NamesOwners()) {
    WriteReactors(writer, std::array{names});
    writer.Handle(CODE_OWNER, names);
  }
  writer.Text(CODE_SUBCLASS, "AcDbGroup");
  writer.Text(CODE_GROUP_DESCRIPTION, description);
  writer.Integer(CODE_GROUP_UNNAMED, 0);
  writer.Integer(CODE_GROUP_SELECTABLE, 1);
  WriteMembers(writer, members);

  TagWriter entry(addition.entry, rules_.lineEnd);
  WriteEntry(entry, freeName, handle, Objects().groupNames && Objects().groupNames->ownsHard);
  addition.foldedName = FoldedName(freeName);
  newNames_.insert(addition.foldedName);
  additions_.push_back(std::move(addition));
}

void NewGroups::Extend(const GroupObject& group, std::span<const std::uint64_t> members) {
  Addition addition{};
  addition.group = &group;
  TagWriter writer(addition.text, rules_.lineEnd);
  WriteMembers(writer, members);
  additions_.push_back(std::move(addition));
}

void NewGroups::GoBack(std::size_t count) {
  while (additions_.size() > count) {
    newNames_.erase(additions_.back().foldedName);
    additions_.pop_back();
  }
}

void NewGroups::AddRemovals(const std::unordered_set<std::uint64_t>& removedEntities,
                            std::vector<Splice>& splices) const {
  std::unordered_set<const GroupObject*> extended;
  for (const Addition& addition : additions_)
    extended.insert(addition.group);
  std::unordered_set<std::uint64_t> emptied;  // handles of groups
  for (const GroupObject& group : Objects().groups) {
    const auto isRemoved = [&](const GroupMember& member) { return removedEntities.contains(member.handle); };
    if (!group.members.empty() && !extended.contains(&group) &&
        std::all_of(group.members.begin(), group.members.end(), isRemoved)) {
      splices.push_back(Removal(group.text));
      emptied.insert(group.handle);
      continue;
    }
    for (const GroupMember& member : group.members)
      if (isRemoved(member)) splices.push_back(Removal(member.text));
  }
  if (!Objects().groupNames) return;
  for (const DictionaryEntry& entry : Objects().groupNames->entries)
    if (entry.handle != 0 && emptied.contains(entry.handle)) splices.push_back(Removal(entry.text));
}

// The names of new groups into their dictionary. One that is missing comes before the other `objects`, with
// the root where that is missing too.
void NewGroups::AddDictionarySplices(const std::string& entries, std::string& objects,
                                     std::vector<Splice>& splices) const {
  if (const auto& names = Objects().groupNames; names) {
    splices.push_back({names->entriesEnd, names->entriesEnd, entries});
    return;
  }
  const Addition& opener = *Opener();
  std::string text;
  TagWriter writer(text, rules_.lineEnd);
  if (const auto& root = Objects().root; root) {
    if (Objects().groupNamesEntry) splices.push_back(Removal(Objects().groupNamesEntry->text));
    std::string entry;
    TagWriter entryWriter(entry, rules_.lineEnd);
    WriteEntry(entryWriter, GROUP_DICTIONARY, opener.names, root->ownsHard);
    splices.push_back({root->entriesEnd, root->entriesEnd, std::move(entry)});
  } else {
    WriteDictionaryHead(writer, opener.root, NO_OWNER, NamesOwners());
    WriteEntry(writer, GROUP_DICTIONARY, opener.names, false);
  }
  WriteDictionaryHead(writer, opener.names, opener.root, NamesOwners());
  objects = text + entries + objects;
}

void NewGroups::AddObjectsSplice(std::string objects, std::vector<Splice>& splices) const {
  if (const Section* const section = index_.FindSection(SECTION_OBJECTS); section != nullptr) {
    splices.push_back({section->end, section->end, std::move(objects)});
    return;
  }
  // Behind the ENDSEC of the last section.
  const char* const end = index_.sections.back().end;
  const std::string_view all = source_.Text();
  TagReader reader(source_, {end, static_cast<std::size_t>(all.data() + all.size() - end)});
  Tag tag;
  reader.Next(tag);
  std::string text;
  TagWriter writer(text, rules_.lineEnd);
  writer.Text(CODE_TYPE, TYPE_SECTION);
  writer.Text(CODE_NAME, SECTION_OBJECTS);
  text += objects;
  writer.Text(CODE_TYPE, TYPE_SECTION_END);
  splices.push_back({reader.TagEnd(), reader.TagEnd(), std::move(text)});
}

void NewGroups::AddSplices(const std::unordered_set<std::uint64_t>& removedEntities,
                           std::vector<Splice>& splices) const {
  if (!removedEntities.empty()) AddRemovals(removedEntities, splices);
  std::string objects;
  std::string entries;
  for (const Addition& addition : additions_) {
    if (addition.group != nullptr) {
      splices.push_back({addition.group->membersEnd, addition.group->membersEnd, addition.text});
    } else {
      objects += addition.text;
      entries += addition.entry;
    }
  }
  if (objects.empty()) return;
  AddDictionarySplices(entries, objects, splices);
  AddObjectsSplice(std::move(objects), splices);
}

}  // namespace teskarlt::dxf
