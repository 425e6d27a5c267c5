// NewGroups.h - named groups of entities that a drawing gets, and members that its own groups get.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "teskarlt/dxf/read/GroupObjects.h"
#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/Splice.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/dxf/write/HandleSeed.h"
#include "teskarlt/dxf/write/Rules.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {

// Lists the objects that are to hear of changes of the object being written.
void WriteReactors(TagWriter& writer, std::span<const std::uint64_t> reactors);

// All references must outlive the object. Drawings before R13 have no groups: there nothing is added.
class NewGroups {
 public:
  NewGroups(const SourceText& source, const Index& index, const TextCodec& codec, const Rules& rules,
            HandleSeed& handles);

  // Whether what is written says to what it belongs and whom it tells of its changes: from R2000 on, and
  // before where the drawing's own objects do.
  bool NamesOwners() const;

  // Groups of the file that list all of these entities.
  std::vector<const GroupObject*> GroupsOf(std::span<const std::uint64_t> entities) const;

  // The handle of a group to be made; 0 where the drawing has none.
  std::uint64_t AllocateHandle();
  // Adds the group. A name that is taken gets a number behind it. Texts are as they stand in the file.
  void Add(std::uint64_t handle, std::string_view name, std::string_view description,
           std::span<const std::uint64_t> members);
  // Adds members to a group of the file.
  void Extend(const GroupObject& group, std::span<const std::uint64_t> members);

  // Number of additions so far, and the way back to it.
  std::size_t Count() const { return additions_.size(); }
  void GoBack(std::size_t count);

  // What of the drawing's own the additions mend, in sentences for the user.
  std::vector<std::string> Notes() const;

  // What the additions change in the file, and what the removal of entities changes in its groups: they lose
  // those members, and a group that loses the last one goes with its name.
  void AddSplices(const std::unordered_set<std::uint64_t>& removedEntities,
                  std::vector<Splice>& splices) const;

 private:
  struct Addition {
    const GroupObject* group;  // that gets members; null: a new one
    std::string text;          // of the new object, or of the members
    std::string foldedName;    // of a new group
    std::string entry;         // of the dictionary, for a new group
    bool opensDictionary;      // the first group of a drawing without a dictionary for them
    std::uint64_t root;        // handles of the dictionaries that it opens
    std::uint64_t names;
  };

  const GroupObjects& Objects() const;
  bool HasName(const std::string& foldedName) const;
  std::string FreeName(std::string_view name) const;
  std::uint64_t NamesHandle(Addition& addition);
  void RefuseOtherNames() const;
  const Addition* Opener() const;
  void AddRemovals(const std::unordered_set<std::uint64_t>& removedEntities,
                   std::vector<Splice>& splices) const;
  void AddDictionarySplices(const std::string& entries, std::string& objects,
                            std::vector<Splice>& splices) const;
  void AddObjectsSplice(std::string objects, std::vector<Splice>& splices) const;

  const SourceText& source_;
  const Index& index_;
  const TextCodec& codec_;
  const Rules& rules_;
  HandleSeed& handles_;
  std::vector<Addition> additions_;
  std::unordered_set<std::string> newNames_;     // folded
  mutable std::optional<GroupObjects> objects_;  // read when first needed
  mutable std::unordered_set<std::string> fileNames_;
  mutable std::unordered_map<std::uint64_t, std::vector<const GroupObject*>> groupsOfMember_;
};

}  // namespace teskarlt::dxf
