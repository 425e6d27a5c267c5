// NewTableEntries.h - table entries that a drawing lacks and gets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/Splice.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/dxf/write/HandleSeed.h"
#include "teskarlt/dxf/write/Rules.h"
#include "teskarlt/dxf/write/TableEntries.h"

namespace teskarlt::dxf {

// All references must outlive the object. Names are as they stand in the file. Throws Error.
class NewTableEntries {
 public:
  NewTableEntries(const SourceText& source, const Index& index, const TextCodec& codec, const Rules& rules,
                  HandleSeed& handles);

  // Each adds the entry unless the drawing has one of that name. RequireLayer gives the name that the
  // drawing uses; the reference is valid until GoBack.
  const std::string& RequireLayer(std::string_view name);
  void RequireLinetype(std::string_view name);
  void RequireApplication(std::string_view name);

  bool Has(TableKind kind, std::string_view name) const;

  // Number of entries added so far, and the way back to it.
  std::size_t Count() const { return entries_.size(); }
  void GoBack(std::size_t count);

  // What the entries change in the file.
  void AddSplices(std::vector<Splice>& splices) const;

 private:
  struct Entry {
    TableKind kind;
    std::string foldedName;
    std::string text;
    bool opensTable;      // the first of a table that the file does not have
    std::uint64_t table;  // handle of that table
  };
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };
  using Names = std::unordered_map<std::string, std::string, TextHash, std::equal_to<>>;

  bool HasFolded(TableKind kind, const std::string& foldedName) const;
  const std::unordered_set<std::string>& FileNames(TableKind kind) const;
  const Entry* Opener(TableKind kind) const;
  void OpenTable(TableKind kind);
  bool NamesOwners() const;
  std::uint64_t OwnerOfNew(TableKind kind);
  std::uint64_t OwnerInFile(const Table& table) const;
  void Add(TableKind kind, std::string_view utf8Name);
  std::string EntryText(TableKind kind, std::string_view raw, const EntryHead& head) const;
  std::uint64_t AllocateEntryHandle();
  const char* PlaceOf(TableKind kind) const;
  static void AddCountSplice(const Table& table, std::size_t added, std::vector<Splice>& splices);
  void AddSectionSplice(const std::string& tables, std::vector<Splice>& splices) const;
  std::string NewTable(TableKind kind) const;
  std::string TextsOf(TableKind kind) const;
  std::size_t CountOf(TableKind kind) const;

  const SourceText& source_;
  const Index& index_;
  const TextCodec& codec_;
  const Rules& rules_;
  HandleSeed& handles_;
  std::vector<Entry> entries_;
  mutable std::map<TableKind, std::unordered_set<std::string>> fileNames_;  // folded, read when first needed
  // Names that were required since the last GoBack, with those that the drawing uses.
  Names layers_;
  Names linetypes_;
  Names applications_;
};

// A layer name as a version allows it: other characters become "_", names before R2000 are in capitals and
// cut at 31 characters. UTF-8.
std::string AllowedLayerName(std::string_view utf8, int version);

}  // namespace teskarlt::dxf
