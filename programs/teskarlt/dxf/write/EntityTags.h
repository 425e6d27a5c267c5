// EntityTags.h - checks the tags of a new entity and writes them.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "teskarlt/dxf/tags/TypedTag.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {

// Throws Error unless the list can become an entity: it starts with its type, every code is one of entities
// and has a value of its kind and range, numbers are finite, and extended data stand at the end, each under
// an application. Handle and owner are not among the tags.
void CheckTags(std::span<const TypedTag> tags);

// Throws Error unless each tag stands under an application and has a value of its kind and range, and an
// entity that has `others` bytes of extended data besides (ExtendedData.h) can hold them.
void CheckExtendedData(std::span<const TypedTag> tags, std::size_t others = 0);

// Number of tags before the extended data.
std::size_t ExtendedDataBegin(std::span<const TypedTag> tags);

// What integers say is part of what an entity is (flags, colours), or a mere number.
enum class Integers { Count, DoNotCount };

// A number that is the same for lists that differ in nothing but the values of reals and points and of
// integers that do not count. Others have, as good as always, another one.
std::size_t ShapeOf(std::span<const TypedTag> tags, Integers integers);

// The text of a tag that holds one.
std::string_view TextOf(const TypedTag& tag);

// Writes a tag that passed the check.
void WriteTag(TagWriter& writer, const TypedTag& tag);

}  // namespace teskarlt::dxf
