// ItemIndex.cpp - an open hash table of keys and a chain of items for every section.
#include "arx/merge/ItemIndex.h"

#include <algorithm>
#include <functional>

namespace brevanta {

namespace {

constexpr std::size_t FIRST_TABLE_SIZE = 8;

std::uint32_t HashOf(std::string_view key) {
  return static_cast<std::uint32_t>(std::hash<std::string_view>()(key));
}

}  // namespace

ItemIndex::Section ItemIndex::FindSection(std::string_view header) const {
  const auto found = numbers_.find(header);
  return found == numbers_.end() ? NO_SECTION : found->second;
}

ItemIndex::Section ItemIndex::NumberSection(std::string_view header) {
  Section section = FindSection(header);
  if (section != NO_SECTION) return section;
  section = static_cast<Section>(sections_.size());
  sections_.push_back({CString(header)});
  numbers_.emplace(sections_.back().name.View(), section);
  return section;
}

bool ItemIndex::NoteKey(Section section, std::string_view key) {
  SectionItems& items = sections_[section];
  if ((items.usedSlots + 1) * 4 > items.slots.size() * 3) Grow(items.slots);
  const std::uint32_t hash = HashOf(key);
  const std::size_t mask = items.slots.size() - 1;
  std::size_t i = hash & mask;
  for (; items.slots[i].position != NO_ITEM; i = (i + 1) & mask) {
    const Slot& slot = items.slots[i];
    if (slot.hash == hash && set_.GetItem(slot.position)->key.View() == key) return true;
  }
  items.slots[i] = {hash, NextPosition()};
  ++items.usedSlots;
  return false;
}

void ItemIndex::Grow(std::vector<Slot>& slots) {
  std::vector<Slot> wider(std::max(FIRST_TABLE_SIZE, slots.size() * 2));
  const std::size_t mask = wider.size() - 1;
  for (const Slot& slot : slots) {
    if (slot.position == NO_ITEM) continue;
    std::size_t i = slot.hash & mask;
    while (wider[i].position != NO_ITEM)
      i = (i + 1) & mask;
    wider[i] = slot;
  }
  slots.swap(wider);
}

void ItemIndex::NoteItem(Section section) {
  const std::uint32_t position = NextPosition();
  nextInSection_.push_back(NO_ITEM);
  SectionItems& items = sections_[section];
  if (items.first == NO_ITEM) {
    items.first = position;
  } else {
    nextInSection_[items.last] = position;
  }
  items.last = position;
}

}  // namespace brevanta
