// Names.cpp - names in use against names in tables.
#include "teskarlt/check/Names.h"

#include <algorithm>
#include <iterator>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

using dxf::Quoted;
using dxf::SameName;
using dxf::Tag;

// Of each space, in the order of the enumeration.
struct SpaceInfo {
  std::string_view table;
  std::string_view what;
  Kind undefined;
};

constexpr SpaceInfo SPACES[] = {
    {dxf::TABLE_LAYERS, "layer", Kind::LayerUndefined},
    {dxf::TABLE_LINETYPES, "linetype", Kind::LinetypeUndefined},
    {dxf::TABLE_TEXT_STYLES, "text style", Kind::TextStyleUndefined},
    {dxf::TABLE_DIMENSION_STYLES, "dimension style", Kind::DimensionStyleUndefined},
    {"", "block", Kind::BlockUndefined},
    {dxf::TABLE_BLOCKS, "block", Kind::BlockUndefined},
    {dxf::TABLE_APPLICATIONS, "application", Kind::ApplicationUndefined},
};

struct Required {
  std::string_view table;
  std::string_view entry;  // empty: the table may be empty
};

// From R2000 on.
constexpr Required REQUIRED[] = {
    {dxf::TABLE_VIEWPORTS, ""},
    {dxf::TABLE_LINETYPES, dxf::LINETYPE_BY_BLOCK},
    {dxf::TABLE_LINETYPES, dxf::LINETYPE_BY_LAYER},
    {dxf::TABLE_LINETYPES, dxf::LINETYPE_CONTINUOUS},
    {dxf::TABLE_LAYERS, dxf::DEFAULT_LAYER},
    {dxf::TABLE_TEXT_STYLES, dxf::DEFAULT_STYLE},
    {dxf::TABLE_VIEWS, ""},
    {dxf::TABLE_COORDINATE_SYSTEMS, ""},
    {dxf::TABLE_APPLICATIONS, dxf::DEFAULT_APPLICATION},
    {dxf::TABLE_DIMENSION_STYLES, dxf::DEFAULT_STYLE},
    {dxf::TABLE_BLOCKS, dxf::BLOCK_MODEL_SPACE},
    {dxf::TABLE_BLOCKS, dxf::BLOCK_PAPER_SPACE},
};

constexpr std::size_t LONGEST_OLD_NAME = 31;  // bytes; before R2000
constexpr std::size_t LONGEST_NAME = 255;
// "|" stands in names that come from another drawing.
constexpr std::string_view FORBIDDEN_IN_NAMES = "<>/\\\":;?*,=`";

// Names that a drawing has whether or not its tables say so. What a version wants in them is told once, as a
// missing entry, and not with every use.
constexpr Required IMPLIED[] = {
    {dxf::TABLE_LAYERS, dxf::DEFAULT_LAYER},
    {dxf::TABLE_LINETYPES, dxf::LINETYPE_BY_LAYER},
    {dxf::TABLE_LINETYPES, dxf::LINETYPE_BY_BLOCK},
    {dxf::TABLE_LINETYPES, dxf::LINETYPE_CONTINUOUS},
    {dxf::TABLE_TEXT_STYLES, dxf::DEFAULT_STYLE},
    {dxf::TABLE_DIMENSION_STYLES, dxf::DEFAULT_STYLE},
    {dxf::TABLE_APPLICATIONS, dxf::DEFAULT_APPLICATION},
};

bool IsImplied(std::string_view table, std::string_view folded) {
  return std::any_of(std::begin(IMPLIED), std::end(IMPLIED), [&](const Required& implied) {
    return implied.table == table && SameName(implied.entry, folded);
  });
}

std::string Folded(const dxf::TextCodec& codec, std::string_view raw) {
  return dxf::FoldedName(codec.Decode(raw));
}

// Entries that the big programs do not count in the head of their table.
bool IsUncounted(std::string_view name) {
  constexpr std::string_view PAPER_SPACES = dxf::BLOCK_PAPER_SPACE;  // some have a number behind it
  return SameName(name, dxf::LINETYPE_BY_LAYER) || SameName(name, dxf::LINETYPE_BY_BLOCK) ||
         SameName(name, dxf::BLOCK_MODEL_SPACE) ||
         SameName(name.substr(0, PAPER_SPACES.size()), PAPER_SPACES);
}

// A name for a message, in the characters that people know it by.
std::string Shown(const dxf::TextCodec& codec, std::string_view raw) {
  if (raw.size() > LONGEST_NAME) return Quoted(raw);
  std::string shown = codec.Decode(raw);
  std::replace_if(
      shown.begin(), shown.end(), [](char byte) { return byte >= 0 && byte < ' '; }, '?');
  return fmt::format("\"{}\"", shown);
}

bool IsAllowedInOldName(char byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') ||
         byte == '$' || byte == '_' || byte == '-' || byte == '|';
}

bool IsAllowedName(std::string_view name, int version) {
  if (version < dxf::VERSION_R2000) return std::all_of(name.begin(), name.end(), IsAllowedInOldName);
  return name.find_first_of(FORBIDDEN_IN_NAMES) == std::string_view::npos;
}

bool HasTextStyle(std::string_view type) {
  return type == dxf::TYPE_TEXT || type == dxf::TYPE_MTEXT || type == dxf::TYPE_ATTRIBUTE ||
         type == dxf::TYPE_ATTRIBUTE_DEFINITION;
}

bool HasDimensionStyle(std::string_view type) {
  return type == dxf::TYPE_DIMENSION || type == dxf::TYPE_LEADER || type == dxf::TYPE_TOLERANCE;
}

}  // namespace

void Names::Check(const Object& object) {
  switch (object.place) {
    case Place::SectionEnd:
      if (SameName(object.section, dxf::SECTION_TABLES)) tablesEnd_ = object.Begin();
      break;
    case Place::Table:
      BeginTable(object);
      break;
    case Place::TableEnd:
      if (!tables_.empty()) CheckCount(tables_.back());
      if (!tables_.empty()) tables_.back().end = object.Begin();
      break;
    case Place::TableEntry:
      AddEntry(object);
      break;
    case Place::BlockEntity:
      AddBlock(object);
      UseEntityNames(object);
      break;
    case Place::Entity:
      UseEntityNames(object);
      break;
    default:
      break;
  }
  UseApplications(object);
}

void Names::BeginTable(const Object& object) {
  const Tag* const count = FindTag(object, dxf::CODE_TABLE_COUNT);
  tables_.push_back({object.table, object.Begin(), count == nullptr ? Tag() : *count});
}

// The number is the most entries there were; only one that is too small can mislead a reader.
void Names::CheckCount(const Table& table) {
  if (table.count.code == 0) return;
  if (dxf::ParseInteger(table.count.value).value_or(table.entries) >= table.entries) return;
  findings_.Warning(Kind::TableCount, table.count.value.data(),
                    fmt::format("the table {} announces {} records and has {}", Quoted(table.name),
                                dxf::Trimmed(table.count.value), table.entries));
}

void Names::AddEntry(const Object& object) {
  Table& table = tables_.back();
  const Tag* const name = FindTag(object, dxf::CODE_NAME);
  if (name == nullptr || !IsUncounted(name->value)) ++table.entries;
  if (name == nullptr) return;
  for (int i = 0; i < SpaceCount; ++i)
    if (SameName(SPACES[i].table, table.name)) defined_[static_cast<std::size_t>(i)].push_back(name->value);
  CheckEntryName(object, *name);
  if (SameName(table.name, dxf::TABLE_LAYERS)) {
    if (const Tag* const linetype = FindTag(object, dxf::CODE_LINETYPE)) Use(Linetype, object, *linetype);
  } else if (SameName(table.name, dxf::TABLE_BLOCKS)) {
    Use(Block, object, *name);
  }
}

void Names::CheckEntryName(const Object& object, const Tag& name) {
  if (!SameName(object.table, dxf::TABLE_LAYERS) && !SameName(object.table, dxf::TABLE_LINETYPES)) return;
  const std::size_t longest = header_.version < dxf::VERSION_R2000 ? LONGEST_OLD_NAME : LONGEST_NAME;
  const bool isForbidden = !IsAllowedName(name.value, header_.version);
  if (!isForbidden && !name.value.empty() && name.value.size() <= longest) return;
  findings_.Warning(
      Kind::EntryName, name.value.data(),
      fmt::format("{} {} a name of a {} (group 2)", Quoted(name.value),
                  name.value.size() > longest ? "is too long for" : "is not allowed as", object.type),
      object.number);
}

void Names::AddBlock(const Object& object) {
  if (object.type != dxf::TYPE_BLOCK) return;
  const Tag* const name = FindTag(object, dxf::CODE_NAME);
  if (name == nullptr) return;
  defined_[Block].push_back(name->value);
  if (dxf::NeedsHandles(header_.version)) Use(BlockEntry, object, *name);
}

void Names::UseEntityNames(const Object& object) {
  const bool hasStyle = HasTextStyle(object.type);
  const bool hasDimensionStyle = HasDimensionStyle(object.type);
  const bool hasBlock = object.type == dxf::TYPE_INSERT || object.type == dxf::TYPE_DIMENSION;
  for (const Tag& tag : object.Own()) {
    if (tag.code == dxf::CODE_LAYER) {
      Use(Layer, object, tag);
    } else if (tag.code == dxf::CODE_LINETYPE) {
      Use(Linetype, object, tag);
    } else if (hasStyle && tag.code == dxf::CODE_TEXT_STYLE) {
      Use(TextStyle, object, tag);
    } else if (hasDimensionStyle && tag.code == dxf::CODE_DIMENSION_STYLE) {
      Use(DimensionStyle, object, tag);
    } else if (hasBlock && tag.code == dxf::CODE_NAME) {
      Use(Block, object, tag);
    }
  }
}

void Names::UseApplications(const Object& object) {
  if (object.type == dxf::TYPE_XRECORD) return;
  for (const Tag& tag : object.Extended())
    if (tag.code == dxf::CODE_XDATA_APPLICATION) Use(Application, object, tag);
}

void Names::Use(Space space, const Object& object, const Tag& tag) {
  if (tag.value.empty()) return;
  ++uses_[space].try_emplace(tag.value, FirstUse{tag.value.data(), object.number, 0}).first->second.count;
}

void Names::Finish() {
  const dxf::TextCodec codec(std::string(header_.codePage), dxf::IsUtf8(header_.version));
  for (int i = 0; i < SpaceCount; ++i) {
    FoldDefined(static_cast<Space>(i), codec);
    CheckUses(static_cast<Space>(i), codec);
  }
  if (header_.version >= dxf::VERSION_R2000 && tablesEnd_ != nullptr) CheckRequired();
}

void Names::FoldDefined(Space space, const dxf::TextCodec& codec) {
  for (const std::string_view name : defined_[space]) {
    const bool isNew = folded_[space].insert(Folded(codec, name)).second;
    // An empty name is that of a shape file, of which there can be many.
    if (isNew || name.empty()) continue;
    findings_.Error(
        Kind::EntryTwice, name.data(),
        fmt::format("there is another {} {} before this one", SPACES[space].what, Shown(codec, name)));
  }
}

void Names::CheckUses(Space space, const dxf::TextCodec& codec) {
  const bool isTolerated = space == Layer && header_.version < dxf::VERSION_R13;
  for (const auto& [name, use] : uses_[space]) {
    const std::string folded = Folded(codec, name);
    if (folded_[space].contains(folded) || IsImplied(SPACES[space].table, folded)) continue;
    findings_.Add(
        isTolerated ? Severity::Warning : Severity::Error, SPACES[space].undefined, use.place,
        fmt::format("the {} {} is not in the {}; it is used {}", SPACES[space].what, Shown(codec, name),
                    space == Block ? "section BLOCKS" : fmt::format("table {}", SPACES[space].table),
                    use.count == 1 ? "here" : fmt::format("{} times, here first", use.count)),
        use.handle);
  }
}

void Names::CheckRequired() {
  for (const Required& required : REQUIRED) {
    const auto table = std::find_if(tables_.begin(), tables_.end(), [&](const Table& candidate) {
      return SameName(candidate.name, required.table);
    });
    const auto missesEntry = [&](const SpaceInfo& space) {
      return space.table == required.table &&
             !folded_[static_cast<std::size_t>(&space - SPACES)].contains(dxf::FoldedName(required.entry));
    };
    if (table == tables_.end()) {
      // Once, by the first entry that it would have.
      if (&required == REQUIRED || (&required)[-1].table != required.table) {
        findings_.Error(Kind::TableMissing, tablesEnd_,
                        fmt::format("the table {} is missing", required.table));
      }
    } else if (!required.entry.empty() && std::any_of(std::begin(SPACES), std::end(SPACES), missesEntry)) {
      findings_.Error(
          Kind::EntryMissing, table->end,
          fmt::format("the record {} is missing in the table {}", Quoted(required.entry), required.table));
    }
  }
}

}  // namespace teskarlt::check
