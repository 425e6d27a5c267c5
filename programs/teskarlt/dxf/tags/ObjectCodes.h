// ObjectCodes.h - group codes and names of the section OBJECTS.
#pragma once

#include <string_view>

namespace teskarlt::dxf {

constexpr std::string_view GROUP_DICTIONARY = "ACAD_GROUP";  // names the groups

// Of a dictionary: a name and the object of that name follow each other.
constexpr int CODE_ENTRY_NAME = 3;
constexpr int CODE_HARD_OWNER_FLAG = 280;
constexpr int CODE_SOFT_OWNED = 350;
constexpr int CODE_HARD_OWNED = 360;

// Of a GROUP.
constexpr int CODE_GROUP_UNNAMED = 70;
constexpr int CODE_GROUP_SELECTABLE = 71;
constexpr int CODE_GROUP_DESCRIPTION = 300;
constexpr int CODE_GROUP_MEMBER = 340;

// Of a SORTENTSTABLE; the handle to sort it by follows.
constexpr int CODE_SORTED_ENTITY = 331;

// Of a DIMASSOC: the entities that a dimension measures.
constexpr int CODE_ASSOCIATED = 331;
constexpr int CODE_ASSOCIATED_CROSSING = 332;

// Around the objects that an object tells of its changes.
constexpr int CODE_LIST = 102;
constexpr std::string_view REACTORS_BEGIN = "{ACAD_REACTORS";
constexpr std::string_view LIST_END = "}";

}  // namespace teskarlt::dxf
