// Edits.h - what is to be added to a drawing and taken out of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/dxf/tags/TypedTag.h"
#include "teskarlt/dxf/write/Excerpts.h"
#include "teskarlt/dxf/write/HandleSeed.h"
#include "teskarlt/dxf/write/NewGroups.h"
#include "teskarlt/dxf/write/NewTableEntries.h"
#include "teskarlt/dxf/write/Redrawing.h"
#include "teskarlt/dxf/write/Rules.h"
#include "teskarlt/dxf/write/TextStore.h"

namespace teskarlt::dxf {

// A state of the edits to which a document can go back.
struct EditMark {
  std::size_t addedTexts;
  std::size_t removedEntities;
  std::size_t replacedValues;
  std::size_t addedEntries;
  std::size_t addedGroups;
  bool isGrouping;
  std::uint64_t nextHandle;
};

// The references must outlive the object. Functions as those of Document, which are described there.
class Edits {
 public:
  Edits(const SourceText& source, const Index& index, const TextCodec& codec, const Rules& rules);

  std::uint64_t AddEntity(std::span<const TypedTag> tags);
  void RemoveEntity(const Entity& entity);
  bool IsRemoved(const Entity& entity) const;
  void Redraw(const Entity& entity, std::span<const TypedTag> tags, LinetypeOnRedraw linetype);
  void SetExtendedData(const Entity& entity, std::span<const TypedTag> tags);
  void ReplaceValue(const Tag& tag, std::string value);
  void KeepApplicationNumber(std::string_view name, std::int32_t number);
  void BeginGroup(std::span<const Entity* const> replaced);
  void EndGroup(std::string_view name, std::string_view description);
  NewTableEntries& TableEntries() { return entries_; }
  const NewTableEntries& TableEntries() const { return entries_; }

  bool IsChanged() const;
  EditMark Mark() const;
  void Rollback(const EditMark& mark);

  std::vector<std::string> Notes() const { return groups_.Notes(); }

  Excerpts MakeExcerpts() const;

  // Gives the drawing's bytes with the edits to `sink`, piece by piece.
  void Write(const std::function<void(std::string_view)>& sink) const;

 private:
  // The groups that new entities come into.
  struct Grouping {
    std::uint64_t newGroup = 0;                  // handle of a group to be made, or 0
    std::vector<const GroupObject*> fileGroups;  // groups of the file
    std::vector<std::uint64_t> reactors;         // handles of both
    std::vector<std::uint64_t> members;
  };

  // A new entity that stands for all others that differ from it in numbers and handles alone.
  struct FirstOfShape {
    std::size_t shape;
    std::size_t text;  // its place in added_
    std::size_t texts;
  };

  std::uint64_t AddCheckedEntity(std::span<const TypedTag> tags);
  void RequireNames(std::span<const TypedTag> tags);
  std::uint64_t OwnerOfNew();
  std::uint64_t FindOwner() const;
  // Texts as they are written; equal ones that follow each other share theirs.
  std::string_view ExtendedData(std::span<const TypedTag> tags);
  const std::vector<std::string_view>& SharedData(std::span<const TypedTag> tags);
  void NoteShape(std::span<const TypedTag> own, std::size_t text);
  std::size_t NumberOf(const Entity& entity) const;
  std::vector<Splice> Splices() const;
  void AddSeedSplice(std::vector<Splice>& splices) const;

  const SourceText& source_;
  const Index& index_;
  const Rules& rules_;
  HandleSeed handles_;
  NewTableEntries entries_;
  NewGroups groups_;
  std::optional<Grouping> grouping_;
  std::optional<std::uint64_t> owner_;  // of new entities, looked up when first needed

  TextStore store_;
  std::vector<std::string_view> added_;  // texts of new entities, one behind the other
  std::vector<FirstOfShape> firsts_;
  std::unordered_set<std::size_t> shapes_;  // of new entities
  std::vector<std::size_t> removed_;        // numbers of entities in the order of their removal
  std::vector<bool> isRemoved_;
  std::vector<Splice> replaced_;  // values of tags
  // Texts of extended data that redrawn entities share, one each.
  std::deque<std::vector<std::string_view>> sharedData_;

  std::string scratch_;
  // The extended data that were written last: the entities of one window share theirs.
  std::string lastKey_;
  std::string_view lastExtendedData_;
  std::size_t lastShape_ = 0;
};

}  // namespace teskarlt::dxf
