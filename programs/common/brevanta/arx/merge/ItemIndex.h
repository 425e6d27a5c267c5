// ItemIndex.h - finds the items of a set by section and key, and all items of a section, without walking it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "arx/merge/BrevantaSet.h"
#include "platform/CString.h"

namespace brevanta {

// Lies beside a set while it is collected: whoever adds to the set tells the index first. It answers what a
// walk over the set would answer, in constant time. Raises std::bad_alloc while it is filled, never later.
class ItemIndex {
 public:
  // Numbers the sections in the order in which they were met.
  using Section = std::uint32_t;
  static constexpr Section NO_SECTION = UINT32_MAX;

  static constexpr std::uint32_t NO_ITEM = UINT32_MAX;

  explicit ItemIndex(const CBrevantaSet& set) : set_(set) {}

  // The section with this header line; a new number when it was not met before.
  Section NumberSection(std::string_view header);

  // The section with this header line, or NO_SECTION.
  Section FindSection(std::string_view header) const;

  // The section's header line, shared by all its items.
  const CString& SectionName(Section section) const { return sections_[section].name; }

  // True when an item of this section and key was noted before; else notes it for the set's next position.
  bool NoteKey(Section section, std::string_view key);

  // Notes that the item at the set's next position stands in this section.
  void NoteItem(Section section);

  // The positions of a section's items in the order of the set, NO_ITEM behind the last.
  std::uint32_t FirstItem(Section section) const { return sections_[section].first; }
  std::uint32_t NextItem(std::uint32_t position) const { return nextInSection_[position]; }

 private:
  // A slot of an open hash table; the first item of every key has one.
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t position = NO_ITEM;
  };

  // Every section has a table of its own: catalogues go through their sections one by one, so the table in
  // use stays in the processor's cache.
  struct SectionItems {
    CString name;
    std::uint32_t first = NO_ITEM;
    std::uint32_t last = NO_ITEM;
    std::size_t usedSlots = 0;
    std::vector<Slot> slots = {};  // a power of two, or none
  };

  std::uint32_t NextPosition() const { return static_cast<std::uint32_t>(set_.GetCount()); }
  static void Grow(std::vector<Slot>& slots);

  const CBrevantaSet& set_;
  std::vector<SectionItems> sections_;
  std::unordered_map<std::string_view, Section> numbers_;  // the names are those in sections_
  std::vector<std::uint32_t> nextInSection_;               // by position in the set
};

}  // namespace brevanta
