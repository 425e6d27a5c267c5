// UnreadEntities.h - what of a drawing may be a roof and cannot be read, and what the user can do.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace teskarlt {

// Names of kinds that are no type of entities.
constexpr std::string_view UNREAD_HATCH = "HATCH with curved edges";
constexpr std::string_view UNREAD_ATTACHED = "INSERT of an attached drawing";
constexpr std::string_view UNREAD_MISSING = "INSERT of a missing block";
constexpr std::string_view UNREAD_ENDLESS = "INSERT of a block that contains itself";
constexpr std::string_view UNREAD_DEEP = "INSERT of blocks in blocks in more than 64 steps";
constexpr std::string_view UNREAD_FLATTENED = "INSERT with a scale of 0";
constexpr std::string_view UNREAD_TOO_MANY = "INSERT of more faces than there is room for";

// The kind of faces of that type whose outlines cross themselves or run back on themselves.
std::string CancellingKind(std::string_view type);

// How many there are of each kind, by its name: one of those, or a type of entities. Counts end at the
// highest.
using UnreadEntities = std::map<std::string, std::size_t, std::less<>>;

// Whether entities of this type have a shape that is kept in a form of its own: solids, regions, surfaces,
// and objects that belong to other programs.
bool IsUnreadable(std::string_view type);

// Adds what stands in `more`, each `times` times.
void AddUnread(const UnreadEntities& more, std::size_t times, UnreadEntities& unread);

// For people: "2 3DSOLID and 1 REGION are not read: explode them into faces, or give the plane by --roof", of
// several such clauses with semicolons between them; empty for nothing.
std::string TextOf(const UnreadEntities& unread);

}  // namespace teskarlt
