// Owners.h - to what the objects of a drawing say that they belong.
#pragma once

#include <string_view>

#include "teskarlt/dxf/read/Index.h"
#include "teskarlt/dxf/tags/SourceText.h"
#include "teskarlt/dxf/tags/Tag.h"

namespace teskarlt::dxf {

// All give the tag 330 before the class markers of an object and outside of its control groups; its code is 0
// where there is none. Programs write it from R2000 on, and some before.

// Of the object that the range begins with.
Tag OwnerOf(const SourceText& source, std::string_view object);

// Of the first entity of the model space that has one.
Tag OwnerOfEntities(const SourceText& source, const Index& index);

// Of the first entry of the table that has one.
Tag OwnerOfEntries(const SourceText& source, const Table& table);

}  // namespace teskarlt::dxf
