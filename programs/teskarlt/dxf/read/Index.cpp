// Index.cpp - one pass over a drawing that notes sections, tables, entities and handles.
#include "teskarlt/dxf/read/Index.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/dxf/read/FileKind.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

template <typename Named>
const Named* FindNamed(const std::vector<Named>& list, std::string_view name) {
  const auto found = std::find_if(list.begin(), list.end(),
                                  [&](const Named& candidate) { return SameName(candidate.name, name); });
  return found == list.end() ? nullptr : &*found;
}

class Indexer {
 public:
  explicit Indexer(const SourceText& source) : source_(source), reader_(source, source.Tags()) {}

  Index Run();

 private:
  void ReadSection();
  // Each reads the tags of one section up to its ENDSEC.
  void ReadHeader();
  void ReadTables();
  void ReadEntities();
  void ReadOther();

  void ReadTable();
  void AddEntity(const Entity& entity, bool isInPaperSpace);
  bool NextInSection();
  std::uint64_t ReadHandle();

  const SourceText& source_;
  TagReader reader_;
  Tag tag_;
  Index index_;
};

Index Indexer::Run() {
  while (reader_.Next(tag_)) {
    if (tag_.code == CODE_TYPE && tag_.value == TYPE_FILE_END) {
      // Whatever stands behind it is kept and not looked at.
      if (index_.FindSection(SECTION_ENTITIES) == nullptr) source_.Fail("has no section ENTITIES");
      return std::move(index_);
    }
    if (tag_.code != CODE_TYPE || tag_.value != TYPE_SECTION) {
      source_.FailAt(reader_.TagBegin(), fmt::format("a section should begin here, not {} (group {})",
                                                     Quoted(tag_.value), tag_.code));
    }
    ReadSection();
  }
  source_.Fail("is cut short: EOF is missing at its end");
}

void Indexer::ReadSection() {
  Section section{{}, reader_.TagBegin(), nullptr};
  if (!reader_.Next(tag_) || tag_.code != CODE_NAME)
    source_.FailAt(section.begin, "the section that begins here has no name");
  section.name = Trimmed(tag_.value);
  index_.sections.push_back(section);
  if (SameName(section.name, SECTION_HEADER)) {
    ReadHeader();
  } else if (SameName(section.name, SECTION_TABLES)) {
    ReadTables();
  } else if (SameName(section.name, SECTION_ENTITIES)) {
    ReadEntities();
  } else {
    ReadOther();
  }
  index_.sections.back().end = reader_.TagBegin();
}

// The next tag; false at the ENDSEC.
bool Indexer::NextInSection() {
  const bool isThere = reader_.Next(tag_);
  if (isThere && tag_.code != CODE_TYPE) return true;
  const Section& section = index_.sections.back();
  if (!isThere || tag_.value == TYPE_SECTION || tag_.value == TYPE_FILE_END) {
    source_.FailAt(section.begin,
                   fmt::format("the section {} that begins here is not closed{}", Quoted(section.name),
                               isThere ? "" : ": the file is cut short"));
  }
  return tag_.value != TYPE_SECTION_END;
}

std::uint64_t Indexer::ReadHandle() {
  const std::uint64_t handle = ParseHandle(tag_.value).value_or(0);
  index_.largestHandle = std::max(index_.largestHandle, handle);
  return handle;
}

void Indexer::ReadHeader() {
  bool wantsValue = false;
  while (NextInSection()) {
    if (tag_.code == CODE_VARIABLE) {
      index_.variables.push_back({tag_.value, {}});
    } else if (wantsValue) {
      index_.variables.back().value = tag_;
    }
    wantsValue = tag_.code == CODE_VARIABLE;
  }
}

void Indexer::ReadTables() {
  while (NextInSection()) {
    if (tag_.code == CODE_TYPE && tag_.value == TYPE_TABLE) ReadTable();
  }
}

void Indexer::ReadTable() {
  Table table{{}, reader_.TagBegin(), nullptr, {}, {}, {}};
  bool isInEntry = false;
  bool isNamed = false;  // the entry
  Tag handle;            // of the entry
  while (NextInSection() && !(tag_.code == CODE_TYPE && tag_.value == TYPE_TABLE_END)) {
    if (tag_.code == CODE_TYPE) {
      isInEntry = true;
      isNamed = false;
      handle = {};
    } else if (!isInEntry && tag_.code == CODE_NAME) {
      table.name = Trimmed(tag_.value);
    } else if (!isInEntry && tag_.code == CODE_TABLE_COUNT) {
      table.count = tag_;
    } else if (tag_.code == CODE_DIMSTYLE_HANDLE ||
               (tag_.code == CODE_HANDLE && !(isInEntry && SameName(table.name, TABLE_DIMENSION_STYLES)))) {
      // 5 in a dimension style is the name of an arrow block.
      ReadHandle();
      Tag& owner = isInEntry ? handle : table.handle;
      if (owner.code == 0) owner = tag_;
    } else if (isInEntry && !isNamed && tag_.code == CODE_NAME) {
      isNamed = true;
      table.entries.push_back(tag_.value);
      if (SameName(table.name, TABLE_BLOCKS) && SameName(tag_.value, BLOCK_MODEL_SPACE)) {
        index_.modelSpaceName = tag_;
        index_.modelSpace = handle;
      }
    }
  }
  table.end = reader_.TagBegin();
  if (tag_.value != TYPE_TABLE_END) {
    source_.FailAt(table.begin,
                   fmt::format("the table {} that begins here is not closed", Quoted(table.name)));
  }
  index_.tables.push_back(std::move(table));
}

void Indexer::AddEntity(const Entity& entity, bool isInPaperSpace) {
  if (entity.type.empty()) return;
  if (isInPaperSpace) {
    ++index_.paperSpaceEntities;
  } else {
    index_.entities.push_back(entity);
  }
}

void Indexer::ReadEntities() {
  Entity entity{};
  bool isInPaperSpace = false;
  bool hasParts = false;  // vertices or attributes can follow
  bool isInPart = false;
  const char* begin = nullptr;
  const char* end = nullptr;  // of the last tag that is no comment
  for (;;) {
    const bool isInside = NextInSection();
    if (tag_.code == CODE_TYPE) {
      isInPart = hasParts && IsPartType(tag_.value);
      if (isInPart) {
        hasParts = tag_.value != TYPE_SEQUENCE_END;
      } else {
        if (begin != nullptr) entity.text = {begin, static_cast<std::size_t>(end - begin)};
        AddEntity(entity, isInPaperSpace);
        if (!isInside) return;
        entity = {{}, tag_.value, 0};
        begin = reader_.TagBegin();
        isInPaperSpace = false;
        hasParts = tag_.value == TYPE_POLYLINE || tag_.value == TYPE_INSERT;
      }
    } else if (tag_.code == CODE_HANDLE) {
      const std::uint64_t handle = ReadHandle();
      if (!isInPart && entity.handle == 0) entity.handle = handle;
    } else if (tag_.code == CODE_PAPER_SPACE) {
      if (!isInPart) isInPaperSpace = ParseInteger(tag_.value).value_or(0) == 1;
    }
    end = reader_.TagEnd();
  }
}

void Indexer::ReadOther() {
  const bool isObjects = SameName(index_.sections.back().name, SECTION_OBJECTS);
  while (NextInSection()) {
    if (tag_.code != CODE_HANDLE && tag_.code != CODE_DIMSTYLE_HANDLE) continue;
    if (ReadHandle() != 0 && isObjects) index_.hasObjectHandles = true;
  }
}

}  // namespace

const Section* Index::FindSection(std::string_view name) const {
  return FindNamed(sections, name);
}

const Table* Index::FindTable(std::string_view name) const {
  return FindNamed(tables, name);
}

const HeaderVariable* Index::FindVariable(std::string_view name) const {
  return FindNamed(variables, name);
}

Index BuildIndex(const SourceText& source) {
  RefuseOtherFiles(source);
  return Indexer(source).Run();
}

}  // namespace teskarlt::dxf
