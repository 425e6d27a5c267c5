// Names.h - checks that the layers, linetypes, styles, blocks and applications in use are in the tables.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt::check {

class Names {
 public:
  // `header` must outlive this and be filled before the first object.
  Names(const Header& header, Findings& findings) : header_(header), findings_(findings) {}

  void Check(const Object& object);

  // What can be told only when all tables are known.
  void Finish();

 private:
  // What a name can be of.
  enum Space { Layer, Linetype, TextStyle, DimensionStyle, Block, BlockEntry, Application, SpaceCount };

  struct FirstUse {
    const char* place;
    std::uint64_t handle;
    std::size_t count;
  };

  struct Table {
    std::string_view name;
    const char* end;           // its ENDTAB; while that is not known, its TABLE
    dxf::Tag count;            // of entries, by its head; code 0 when the head does not say
    std::int64_t entries = 0;  // that it has
  };

  void BeginTable(const Object& object);
  void AddEntry(const Object& object);
  void CheckCount(const Table& table);
  void UseEntityNames(const Object& object);
  void AddBlock(const Object& object);
  void UseApplications(const Object& object);
  void Use(Space space, const Object& object, const dxf::Tag& tag);
  void CheckEntryName(const Object& object, const dxf::Tag& name);

  void FoldDefined(Space space, const dxf::TextCodec& codec);
  void CheckUses(Space space, const dxf::TextCodec& codec);
  void CheckRequired();

  const Header& header_;
  Findings& findings_;
  std::array<std::vector<std::string_view>, SpaceCount> defined_;
  std::array<std::unordered_set<std::string>, SpaceCount> folded_;
  std::array<std::unordered_map<std::string_view, FirstUse>, SpaceCount> uses_;
  std::vector<Table> tables_;
  const char* tablesEnd_ = nullptr;  // of the section; null while there is none
};

}  // namespace teskarlt::check
