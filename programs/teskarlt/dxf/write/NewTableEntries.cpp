// NewTableEntries.cpp - adds layers, linetypes and applications to tables, and tables to drawings.
#include "teskarlt/dxf/write/NewTableEntries.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/read/Owners.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Version.h"

namespace teskarlt::dxf {
namespace {

constexpr TableKind ALL_KINDS[] = {TableKind::Linetype, TableKind::Layer, TableKind::Application};

constexpr std::size_t LONGEST_OLD_NAME = 31;
constexpr std::string_view FORBIDDEN_IN_NAMES = "<>/\\\":;?*|,=`";

char32_t AllowedInOldName(char32_t character) {
  if (character >= 'a' && character <= 'z') return character - 'a' + 'A';
  const bool isAllowed = (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9') ||
                         character == '$' || character == '_' || character == '-';
  return isAllowed ? character : U'_';
}

char32_t AllowedInName(char32_t character) {
  const bool isForbidden =
      character < ' ' ||
      (character < 0x80 && FORBIDDEN_IN_NAMES.find(static_cast<char>(character)) != std::string_view::npos);
  return isForbidden ? U'_' : character;
}

bool IsImplied(std::string_view linetype) {
  return SameName(linetype, LINETYPE_BY_LAYER) || SameName(linetype, LINETYPE_BY_BLOCK);
}

// A number as wide as the one that it replaces.
std::string Padded(std::int64_t value, std::size_t width) {
  return fmt::format("{:>{}}", value, width);
}

}  // namespace

std::string AllowedLayerName(std::string_view utf8, int version) {
  const bool isOld = version < VERSION_R2000;
  std::string allowed;
  std::size_t length = 0;
  for (std::size_t at = 0; at < utf8.size() && !(isOld && length == LONGEST_OLD_NAME); ++length) {
    const char32_t character = platform::NextCharacter(utf8, at).value_or(U'_');
    platform::AppendUtf8(allowed, isOld ? AllowedInOldName(character) : AllowedInName(character));
  }
  return allowed.empty() ? std::string(DEFAULT_LAYER) : allowed;
}

NewTableEntries::NewTableEntries(const SourceText& source, const Index& index, const TextCodec& codec,
                                 const Rules& rules, HandleSeed& handles)
    : source_(source), index_(index), codec_(codec), rules_(rules), handles_(handles) {}

const std::string& NewTableEntries::RequireLayer(std::string_view name) {
  if (const auto known = layers_.find(name); known != layers_.end()) return known->second;
  std::string used(name);
  if (name.empty() || !Has(TableKind::Layer, name)) {
    const std::string allowed = AllowedLayerName(codec_.Decode(name), rules_.version);
    if (!HasFolded(TableKind::Layer, FoldedName(allowed))) {
      RequireLinetype(LINETYPE_CONTINUOUS);
      Add(TableKind::Layer, allowed);
    }
    used = codec_.Encode(allowed);
  }
  return layers_.emplace(name, std::move(used)).first->second;
}

void NewTableEntries::RequireLinetype(std::string_view name) {
  if (linetypes_.contains(name)) return;
  if (!IsImplied(name) && !Has(TableKind::Linetype, name)) {
    const bool isDashed = SameName(name, LINETYPE_DASHED);
    if (!isDashed && !SameName(name, LINETYPE_CONTINUOUS))
      source_.Fail(fmt::format("the linetype {} is not in the drawing", Quoted(name)));
    Add(TableKind::Linetype, isDashed ? LINETYPE_DASHED : LINETYPE_CONTINUOUS);
  }
  linetypes_.emplace(name, std::string());
}

void NewTableEntries::RequireApplication(std::string_view name) {
  if (applications_.contains(name)) return;
  if (!Has(TableKind::Application, name)) Add(TableKind::Application, codec_.Decode(name));
  applications_.emplace(name, std::string());
}

bool NewTableEntries::Has(TableKind kind, std::string_view name) const {
  return HasFolded(kind, FoldedName(codec_.Decode(name)));
}

bool NewTableEntries::HasFolded(TableKind kind, const std::string& foldedName) const {
  if (FileNames(kind).contains(foldedName)) return true;
  return std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return entry.kind == kind && entry.foldedName == foldedName;
  });
}

const std::unordered_set<std::string>& NewTableEntries::FileNames(TableKind kind) const {
  const auto [found, isNew] = fileNames_.try_emplace(kind);
  if (!isNew) return found->second;
  for (const Table& table : index_.tables) {
    if (!SameName(table.name, TableName(kind))) continue;
    for (const std::string_view name : table.entries)
      found->second.insert(FoldedName(codec_.Decode(name)));
  }
  return found->second;
}

void NewTableEntries::GoBack(std::size_t count) {
  entries_.resize(std::min(count, entries_.size()), Entry{});
  layers_.clear();
  linetypes_.clear();
  applications_.clear();
}

const NewTableEntries::Entry* NewTableEntries::Opener(TableKind kind) const {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.kind == kind && entry.opensTable; });
  return found == entries_.end() ? nullptr : &*found;
}

// A table comes with the entries that every drawing has in it.
void NewTableEntries::OpenTable(TableKind kind) {
  const std::uint64_t table = HasSubclassMarkers(rules_.version) ? handles_.Allocate() : 0;
  const std::uint64_t owner = NamesOwners() ? table : 0;
  const std::size_t first = entries_.size();
  const auto addDefault = [&](std::string_view name) {
    const EntryHead head{rules_.version, AllocateEntryHandle(), owner};
    entries_.push_back(
        {kind, FoldedName(name), EntryText(kind, name, head), entries_.size() == first, table});
  };
  if (kind == TableKind::Linetype && HasSubclassMarkers(rules_.version)) {
    addDefault(LINETYPE_BY_BLOCK);
    addDefault(LINETYPE_BY_LAYER);
  }
  if (kind == TableKind::Linetype) addDefault(LINETYPE_CONTINUOUS);
  if (kind == TableKind::Layer) addDefault(DEFAULT_LAYER);
  if (kind == TableKind::Application) addDefault(DEFAULT_APPLICATION);
}

// From R2000 on entries name the table that they belong to, and before where those of the drawing do.
bool NewTableEntries::NamesOwners() const {
  if (HasOwners(rules_.version)) return true;
  return HasSubclassMarkers(rules_.version) &&
         std::any_of(index_.tables.begin(), index_.tables.end(),
                     [&](const Table& table) { return OwnerOfEntries(source_, table).code != 0; });
}

// The table that a new entry names; 0 where there is none to name.
std::uint64_t NewTableEntries::OwnerOfNew(TableKind kind) {
  if (const Table* const table = index_.FindTable(TableName(kind)); table != nullptr)
    return HasSubclassMarkers(rules_.version) ? OwnerInFile(*table) : 0;
  if (Opener(kind) == nullptr) OpenTable(kind);
  return NamesOwners() ? Opener(kind)->table : 0;
}

// What the table's own entries name where its head is damaged.
std::uint64_t NewTableEntries::OwnerInFile(const Table& table) const {
  const Tag neighbour = OwnerOfEntries(source_, table);
  if (!HasOwners(rules_.version) && neighbour.code == 0) return 0;
  for (const Tag& tag : {table.handle, neighbour}) {
    if (const auto handle = ParseHandle(tag.value); handle && *handle != 0) return *handle;
  }
  if (table.handle.code == 0) return 0;  // nothing in the table has a handle
  source_.FailAt(table.handle.value.data(),
                 fmt::format("{} is no handle, and new records of the table have to refer to it; let a CAD "
                             "program repair the drawing first",
                             Quoted(table.handle.value)));
}

// Entries of R12 have no handles.
std::uint64_t NewTableEntries::AllocateEntryHandle() {
  return HasSubclassMarkers(rules_.version) ? handles_.Allocate() : 0;
}

void NewTableEntries::Add(TableKind kind, std::string_view utf8Name) {
  const std::uint64_t owner = OwnerOfNew(kind);
  std::string foldedName = FoldedName(utf8Name);
  if (HasFolded(kind, foldedName)) return;  // came with the table
  const EntryHead head{rules_.version, AllocateEntryHandle(), owner};
  const std::string raw = codec_.Encode(utf8Name);
  entries_.push_back({kind, std::move(foldedName), EntryText(kind, raw, head), false, 0});
}

std::string NewTableEntries::EntryText(TableKind kind, std::string_view raw, const EntryHead& head) const {
  std::string text;
  TagWriter writer(text, rules_.lineEnd);
  if (kind == TableKind::Layer) {
    WriteLayer(writer, raw, head);
  } else if (kind == TableKind::Application) {
    WriteApplication(writer, raw, head);
  } else if (SameName(raw, LINETYPE_DASHED)) {
    WriteDashedLinetype(writer, head, MillimetresPerUnit(rules_.units, rules_.isMetric));
  } else {
    WriteSolidLinetype(writer, raw, head);
  }
  return text;
}

std::string NewTableEntries::TextsOf(TableKind kind) const {
  std::string texts;
  for (const Entry& entry : entries_)
    if (entry.kind == kind) texts += entry.text;
  return texts;
}

std::size_t NewTableEntries::CountOf(TableKind kind) const {
  return static_cast<std::size_t>(std::count_if(entries_.begin(), entries_.end(),
                                                [&](const Entry& entry) { return entry.kind == kind; }));
}

std::string NewTableEntries::NewTable(TableKind kind) const {
  std::string text;
  TagWriter writer(text, rules_.lineEnd);
  WriteTableBegin(writer, TableName(kind), {rules_.version, Opener(kind)->table, 0}, CountOf(kind));
  text += TextsOf(kind);
  WriteTableEnd(writer);
  return text;
}

// Where a table goes that the section TABLES lacks.
const char* NewTableEntries::PlaceOf(TableKind kind) const {
  const Section* const section = index_.FindSection(SECTION_TABLES);
  const auto next = std::find_if(index_.tables.begin(), index_.tables.end(), [&](const Table& table) {
    return TableRank(table.name) > TableRank(TableName(kind));
  });
  return next == index_.tables.end() ? section->end : next->begin;
}

void NewTableEntries::AddSplices(std::vector<Splice>& splices) const {
  std::string newTables;  // of a file without the section
  for (const TableKind kind : ALL_KINDS) {
    const std::size_t count = CountOf(kind);
    if (count == 0) continue;
    const Table* const table = index_.FindTable(TableName(kind));
    if (table != nullptr) {
      splices.push_back({table->end, table->end, TextsOf(kind)});
      AddCountSplice(*table, count, splices);
    } else if (index_.FindSection(SECTION_TABLES) != nullptr) {
      splices.push_back({PlaceOf(kind), PlaceOf(kind), NewTable(kind)});
    } else {
      newTables += NewTable(kind);
    }
  }
  if (!newTables.empty()) AddSectionSplice(newTables, splices);
}

void NewTableEntries::AddCountSplice(const Table& table, std::size_t added, std::vector<Splice>& splices) {
  const auto old = table.count.code == 0 ? std::nullopt : ParseInteger(table.count.value);
  if (!old) return;
  const char* const begin = table.count.value.data();
  splices.push_back({begin, begin + table.count.value.size(),
                     Padded(*old + static_cast<std::int64_t>(added), table.count.value.size())});
}

void NewTableEntries::AddSectionSplice(const std::string& tables, std::vector<Splice>& splices) const {
  std::string text;
  TagWriter writer(text, rules_.lineEnd);
  writer.Text(CODE_TYPE, TYPE_SECTION);
  writer.Text(CODE_NAME, SECTION_TABLES);
  text += tables;
  writer.Text(CODE_TYPE, TYPE_SECTION_END);
  const auto next = std::find_if(index_.sections.begin(), index_.sections.end(), [](const Section& section) {
    return !SameName(section.name, SECTION_HEADER) && !SameName(section.name, SECTION_CLASSES);
  });
  splices.push_back({next->begin, next->begin, std::move(text)});
}

}  // namespace teskarlt::dxf
