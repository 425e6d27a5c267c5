// Handles.h - checks that handles are there, unique and below the seed, and that references lead somewhere.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt::check {

class Handles {
 public:
  // `header` must outlive this and be filled before the first object. References to `elsewhere` are right.
  Handles(const Header& header, const dxf::HandleRange& elsewhere, Findings& findings)
      : header_(header), elsewhere_(elsewhere), findings_(findings) {}

  void Check(const Object& object);

  // What can be told only when all objects are known.
  void Finish();

 private:
  // What an object can be the owner of, or stand for in a reference.
  enum class Role : std::uint8_t { Plain, BlockEntry, Sequence, Table };

  // What a reference is, and so what it has to lead to.
  enum class Use : std::uint8_t {
    EntityOwner,
    PartOwner,  // of vertices, attributes and what ends them
    EntryOwner,
    ObjectOwner,
    GroupMember,
    DictionaryEntry,
    Reactor,
    ExtensionDictionary,
    DrawOrder,
    PlotStyle,
  };

  struct Known {
    std::uint64_t handle;
    const char* place;
    std::string_view type;
    Role role;
  };

  struct Reference {
    std::uint64_t handle;
    std::uint64_t from;  // handle of the object that refers
    const char* place;
    Use use;
  };

  void AddHandle(const Object& object);
  void AddReferences(const Object& object);
  void AddReference(const Object& object, const dxf::Tag& tag, std::string_view control);
  void AddOwner(const Object& object, const dxf::Tag& owner);
  void Refer(const Object& object, const dxf::Tag& tag, Use use);
  static Role RoleOf(const Object& object);
  static Use OwnerUse(const Object& object);

  void CheckUnique();
  void CheckSeed();
  void CheckReference(const Reference& reference);
  void CheckOwner(const Reference& reference, const Known& owner);
  static Kind KindOfUse(Use use);
  static std::string_view NameOfUse(Use use);

  const Header& header_;
  dxf::HandleRange elsewhere_;
  Findings& findings_;
  std::vector<Known> known_;
  std::vector<Reference> references_;
  bool hasRoot_ = false;  // the first object, which nothing owns
};

}  // namespace teskarlt::check
