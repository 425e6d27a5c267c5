// Objects.cpp - where the objects begin and end.
#include "teskarlt/dxf/read/Objects.h"

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"

namespace teskarlt::dxf {

std::vector<ObjectText> ReadObjects(const SourceText& source, const Index& index) {
  std::vector<ObjectText> objects;
  const Section* const section = index.FindSection(SECTION_OBJECTS);
  if (section == nullptr) return objects;
  std::string_view type;
  const char* begin = nullptr;
  const auto endAt = [&](const char* end) {
    if (begin != nullptr) objects.push_back({type, {begin, static_cast<std::size_t>(end - begin)}});
  };
  TagReader reader(source, {section->begin, static_cast<std::size_t>(section->end - section->begin)});
  for (Tag tag; reader.Next(tag);) {
    if (tag.code != CODE_TYPE) continue;
    endAt(reader.TagBegin());
    type = tag.value;
    begin = reader.TagBegin();
  }
  endAt(section->end);
  return objects;
}

}  // namespace teskarlt::dxf
