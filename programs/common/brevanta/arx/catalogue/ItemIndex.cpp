// ItemIndex.cpp - an open hash table over section and key, and a chain of items for every section.
#include "arx/catalogue/ItemIndex.h"

#include <algorithm>
#include <functional>

namespace brevanta {

namespace {

constexpr std::size_t FIRST_TABLE_SIZE = 64;
constexpr std::uint64_t SECTION_SPREAD = 0x9E3779B97F4A7C15ULL;  // 2^64 over the golden ratio

std::uint32_t HashOf(ItemIndex::Section section, std::string_view key) {
  const std::uint64_t hash = std::hash<std::string_view>()(key) ^ (section * SECTION_SPREAD);
  return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
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

bool ItemIndex::IsItem(const Slot& slot, std::uint32_t hash, Section section, std::string_view key) const {
  if (slot.hash != hash) return false;
  const CBrevantaItem* item = set_.GetItem(slot.position);
  return item->key.View() == key && item->section == SectionName(section);
}

bool ItemIndex::NoteKey(Section section, std::string_view key) {
  if ((usedSlots_ + 1) * 4 > slots_.size() * 3) Grow();
  const std::uint32_t hash = HashOf(section, key);
  const std::size_t mask = slots_.size() - 1;
  std::size_t i = hash & mask;
  for (; slots_[i].position != NO_ITEM; i = (i + 1) & mask)
    if (IsItem(slots_[i], hash, section, key)) return true;
  slots_[i] = {hash, NextPosition()};
  ++usedSlots_;
  return false;
}

void ItemIndex::Grow() {
  std::vector<Slot> wider(std::max(FIRST_TABLE_SIZE, slots_.size() * 2));
  const std::size_t mask = wider.size() - 1;
  for (const Slot& slot : slots_) {
    if (slot.position == NO_ITEM) continue;
    std::size_t i = slot.hash & mask;
    while (wider[i].position != NO_ITEM)
      i = (i + 1) & mask;
    wider[i] = slot;
  }
  slots_.swap(wider);
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
