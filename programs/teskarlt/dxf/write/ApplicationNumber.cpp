// ApplicationNumber.cpp - looks an application's number up in its table entry.
#include "teskarlt/dxf/write/ApplicationNumber.h"

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

std::optional<ApplicationEntry> EntryIn(const SourceText& source, const Table& table, std::string_view name) {
  std::optional<ApplicationEntry> entry;
  bool isOwnData = false;
  TagReader reader(source, {table.begin, static_cast<std::size_t>(table.end - table.begin)});
  for (Tag tag; reader.Next(tag);) {
    if (!entry) {
      if (tag.code == CODE_NAME && SameName(tag.value, name)) entry.emplace().end = table.end;
    } else if (tag.code == CODE_TYPE) {
      entry->end = reader.TagBegin();
      break;
    } else if (tag.code == CODE_XDATA_APPLICATION) {
      isOwnData = SameName(tag.value, name);
    } else if (isOwnData && tag.code == CODE_XDATA_INTEGER32 && entry->number.code == 0) {
      entry->number = tag;
    }
  }
  return entry;
}

}  // namespace

std::optional<ApplicationEntry> FindApplicationEntry(const SourceText& source, const Index& index,
                                                     std::string_view name) {
  for (const Table& table : index.tables) {
    if (!SameName(table.name, TABLE_APPLICATIONS)) continue;
    if (const auto entry = EntryIn(source, table, name)) return entry;
  }
  return std::nullopt;
}

}  // namespace teskarlt::dxf
