// UnreadEntities.cpp - the kinds of entities that are not read, and their remedies.
#include "teskarlt/drawing/UnreadEntities.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt {

namespace {

constexpr std::string_view UNREADABLE_TYPES[] = {
    "3DSOLID",         "BODY",         "REGION",       "SURFACE",     "EXTRUDEDSURFACE",  "LOFTEDSURFACE",
    "REVOLVEDSURFACE", "SWEPTSURFACE", "PLANESURFACE", "NURBSURFACE", "ACAD_PROXY_ENTITY"};
constexpr std::string_view FOREIGN_ENDING = "_ENTITY";  // of what programs add to the format

constexpr std::string_view CANCELLING = " that crosses or retraces itself";

constexpr std::string_view EXPLODE = "explode them into faces, or give the plane by --roof";
constexpr std::string_view MEND = "mend the blocks, or give the plane by --roof";

constexpr std::string_view REDRAW =
    "draw its corners in their order around the roof, or give the plane by --roof";

constexpr std::pair<std::string_view, std::string_view> REMEDIES[] = {
    {UNREAD_ATTACHED, "bind the other drawing into this one, or give the plane by --roof"},
    {UNREAD_MISSING, MEND},
    {UNREAD_ENDLESS, MEND},
    {UNREAD_DEEP, MEND},
    {UNREAD_FLATTENED, MEND},
    {UNREAD_TOO_MANY, "keep the roofs in a drawing of their own, or give the plane by --roof"}};

std::string_view RemedyOf(std::string_view kind) {
  if (kind.ends_with(CANCELLING)) return REDRAW;
  const auto* const found = std::find_if(std::begin(REMEDIES), std::end(REMEDIES),
                                         [&](const auto& remedy) { return remedy.first == kind; });
  return found == std::end(REMEDIES) ? EXPLODE : found->second;
}

constexpr std::size_t MOST = std::numeric_limits<std::size_t>::max();

std::size_t Product(std::size_t a, std::size_t b) {
  return b != 0 && a > MOST / b ? MOST : a * b;
}

std::size_t Sum(std::size_t a, std::size_t b) {
  return a > MOST - b ? MOST : a + b;
}

// "a, b and c".
std::string Enumeration(const std::vector<std::string>& texts) {
  if (texts.size() == 1) return texts.front();
  return fmt::format("{} and {}", fmt::join(texts.begin(), texts.end() - 1, ", "), texts.back());
}

}  // namespace

bool IsUnreadable(std::string_view type) {
  return type.ends_with(FOREIGN_ENDING) ||
         std::any_of(std::begin(UNREADABLE_TYPES), std::end(UNREADABLE_TYPES),
                     [&](std::string_view unreadable) { return dxf::SameName(type, unreadable); });
}

std::string CancellingKind(std::string_view type) {
  return std::string(type).append(CANCELLING);
}

void AddUnread(const UnreadEntities& more, std::size_t times, UnreadEntities& unread) {
  for (const auto& [kind, count] : more) {
    std::size_t& sum = unread[kind];
    sum = Sum(sum, Product(count, times));
  }
}

std::string TextOf(const UnreadEntities& unread) {
  struct Clause {
    std::string_view remedy;
    std::vector<std::string> kinds;
    bool isOne = true;
  };
  std::vector<Clause> clauses;
  for (const auto& [kind, count] : unread) {
    const std::string_view remedy = RemedyOf(kind);
    auto clause = std::find_if(clauses.begin(), clauses.end(),
                               [&](const Clause& other) { return other.remedy == remedy; });
    if (clause == clauses.end()) clause = clauses.insert(clause, Clause{remedy, {}});
    clause->isOne = clause->kinds.empty() && count == 1;
    clause->kinds.push_back(fmt::format("{} {}", count, kind));
  }
  std::vector<std::string> texts;
  texts.reserve(clauses.size());
  for (const Clause& clause : clauses) {
    texts.push_back(fmt::format("{} {} not read: {}", Enumeration(clause.kinds), clause.isOne ? "is" : "are",
                                clause.remedy));
  }
  return fmt::format("{}", fmt::join(texts, "; "));
}

}  // namespace teskarlt
