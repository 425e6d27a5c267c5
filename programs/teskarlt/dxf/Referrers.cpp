// Referrers.cpp - SORTENTSTABLE objects.
#include "teskarlt/dxf/Referrers.h"

#include "teskarlt/dxf/ObjectCodes.h"
#include "teskarlt/dxf/TagReader.h"
#include "teskarlt/dxf/TagValue.h"

namespace teskarlt::dxf {

void AddReferrerSplices(const SourceText& source, const Index& index,
                        const std::unordered_set<std::uint64_t>& removedHandles,
                        std::vector<Splice>& splices) {
  const Section* const objects = index.FindSection("OBJECTS");
  if (objects == nullptr || removedHandles.empty()) return;
  TagReader reader(source, {objects->begin, static_cast<std::size_t>(objects->end - objects->begin)});
  std::string_view type;
  bool takesNext = false;  // the sort handle of a removed entity
  for (Tag tag; reader.Next(tag);) {
    if (tag.code == CODE_TYPE) type = tag.value;
    const bool isListed = type == "SORTENTSTABLE" && tag.code == CODE_SORTED_ENTITY;
    const bool isRemoved = isListed && removedHandles.contains(ParseHandle(tag.value).value_or(0));
    if (isRemoved || (takesNext && tag.code == CODE_HANDLE))
      splices.push_back({reader.TagBegin(), reader.TagEnd()});
    takesNext = isRemoved;
  }
}

}  // namespace teskarlt::dxf
