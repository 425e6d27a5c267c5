// ItemChoice.cpp - finds the catalogue item that a user names, or those that come near.
#include <algorithm>
#include <functional>
#include <numeric>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

constexpr std::size_t MOST_NAMES = 5;

using Matches = std::vector<const CatalogueItem*>;
using Comparison = std::function<bool(std::string_view, std::string_view)>;

std::string Maker(const Catalogue& catalogue, const CatalogueItem& item) {
  return CatalogueText(MakerOf(catalogue.sections[item.section]));
}

std::string FullName(const Catalogue& catalogue, const CatalogueItem& item) {
  return Maker(catalogue, item) + "/" + CatalogueText(item.key);
}

// The items whose "SECTION/KEY" or, where the name has no section, whose key is the name. A section may be
// named by its whole header line too.
Matches MatchesOf(const Catalogue& catalogue, std::string_view name, const Comparison& same) {
  Matches matches;
  for (const CatalogueItem& item : catalogue.items) {
    const std::string key = CatalogueText(item.key);
    const std::string header = CatalogueText(catalogue.sections[item.section]);
    if (same(key, name) || same(FullName(catalogue, item), name) ||
        same(fmt::format("{}/{}", header, key), name)) {
      matches.push_back(&item);
    }
  }
  return matches;
}

// How many letters have to be changed, put in or taken out
// (V. Levenshtein, 1965), capital and small being equal.
std::size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (dxf::SameName(a.substr(i, 1), b.substr(j, 1)) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

std::string Quoted(const Catalogue& catalogue, const Matches& items) {
  std::string names;
  for (std::size_t i = 0; i < std::min(items.size(), MOST_NAMES); ++i) {
    names += fmt::format("{}\"{}\"", i == 0 ? "" : ", ", FullName(catalogue, *items[i]));
  }
  return items.size() > MOST_NAMES ? names + ", ..." : names;
}

// The items whose names come nearest, the best first.
Matches Nearest(const Catalogue& catalogue, std::string_view name) {
  std::vector<std::pair<std::size_t, const CatalogueItem*>> ranked;
  for (const CatalogueItem& item : catalogue.items) {
    const std::size_t distance =
        std::min(EditDistance(FullName(catalogue, item), name), EditDistance(CatalogueText(item.key), name));
    ranked.emplace_back(distance, &item);
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  Matches nearest;
  for (std::size_t i = 0; i < std::min(ranked.size(), MOST_NAMES); ++i)
    nearest.push_back(ranked[i].second);
  return nearest;
}

}  // namespace

const CatalogueItem& ChooseItem(const Catalogue& catalogue, std::string_view name, std::string_view option) {
  const Comparison comparisons[] = {[](std::string_view a, std::string_view b) { return a == b; },
                                    dxf::SameName};
  for (const Comparison& same : comparisons) {
    const Matches matches = MatchesOf(catalogue, name, same);
    if (matches.empty()) continue;
    // Of items that stand twice in a section, the first is the one that counts.
    const CatalogueItem& first = *matches.front();
    const bool oneItem = std::all_of(matches.begin(), matches.end(), [&](const CatalogueItem* item) {
      return item->section == first.section && item->key == first.key;
    });
    if (oneItem) return first;
    throw Error(fmt::format("{} {}: {} holds {} of that name: {}", option, name, catalogue.path,
                            matches.size(), Quoted(catalogue, matches)),
                {.value = std::string(name)});
  }
  const Matches nearest = Nearest(catalogue, name);
  throw Error(fmt::format("{} {}: {} has no such window{}{}", option, name, catalogue.path,
                          nearest.empty() ? "" : "; near it are ", Quoted(catalogue, nearest)),
              {.value = std::string(name)});
}

}  // namespace teskarlt
