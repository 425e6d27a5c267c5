// ReferenceMerge.cpp - the merge with a walk over the set for every item and every header.
#include "ReferenceMerge.h"

#include <memory>
#include <vector>

#include "arx/merge/BrevantaSet.h"
#include "lttools/SUPP.h"

namespace brevanta {

namespace {

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::string_view read = text.substr(0, 254);
    const std::size_t newline = read.find('\n');
    const std::string_view line = read.substr(0, newline);
    lines.emplace_back(line.substr(0, line.find('\0')));
    text.remove_prefix(newline == std::string_view::npos ? read.size() : newline + 1);
  }
  return lines;
}

bool IsHeader(const std::string& line) {
  return lttools::MatchPatternList(line, "VYROBCE*") == 5100;
}

std::string Key(const std::string& line) {
  lttools::TextList fields;
  lttools::SplitFields(line.c_str(), ";", fields);
  std::string key = fields[0];
  while (key.starts_with(' '))
    key.erase(0, 1);
  return key;
}

void Collect(std::string_view text, CBrevantaSet& set, bool unique) {
  std::string section;
  for (const std::string& line : Lines(text)) {
    if (line.empty()) continue;
    if (IsHeader(line)) {
      section = line;
    } else if (!section.empty()) {
      auto item = std::make_unique<CBrevantaItem>();
      item->section = CString(std::string_view(section));
      item->key = CString(std::string_view(Key(line)));
      item->line = CString(std::string_view(line));
      if (unique ? set.AddUnique(item.get()) : set.Add(item.get()) >= 0) static_cast<void>(item.release());
    }
  }
}

void WriteSection(const std::string& header, CBrevantaSet& set, std::string& merged) {
  for (std::uint32_t i = 0; i < set.GetCount();) {
    const CBrevantaItem* item = set.GetItem(i);
    if (IsSame(item->section, CString(std::string_view(header))) == 0) {
      ++i;
      continue;
    }
    merged.append(item->line.View()).append("\n");
    set.RemoveAt(i, 1);
    delete item;
  }
}

}  // namespace

std::string ReferenceMerge(std::string_view target, std::string_view source) {
  CBrevantaSet set;
  Collect(target, set, false);
  Collect(source, set, true);

  std::string merged;
  bool inSection = false;
  for (const std::string& line : Lines(target)) {
    if (IsHeader(line)) {
      inSection = true;
      merged += line + "\n";
      WriteSection(line, set, merged);
    } else if (line.empty() || !inSection) {
      merged += line + "\n";
    }
  }
  CString last;
  for (std::uint32_t i = 0; i < set.GetCount(); ++i) {
    const CBrevantaItem* item = set.GetItem(i);
    if (IsDifferent(item->section, last) != 0) merged.append(item->section.View()).append("\n");
    last = item->section;
    merged.append(item->line.View()).append("\n");
  }
  return merged;
}

}  // namespace brevanta
