// Excerpts.cpp - finds the objects around the changes of a save.
#include "teskarlt/dxf/write/Excerpts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::dxf {
namespace {

// A range of the file that is part of an excerpt.
struct Kept {
  const char* begin;
  const char* end;
  const char* extended;  // where extended data begin; `end` where there are none
};

bool IsInsertion(const Splice& splice) {
  return splice.begin == splice.end;
}

// Whether what comes in begins with an object of its own and does not belong to the one before it.
bool BringsObjects(const Splice& splice) {
  const std::string_view text = splice.text.empty() && splice.more != nullptr && !splice.more->empty()
                                    ? splice.more->front()
                                    : std::string_view(splice.text);
  return ParseInteger(text.substr(0, text.find('\n'))) == CODE_TYPE;
}

class Keeper {
 public:
  Keeper(const SourceText& source, const Index& index, const std::vector<Splice>& splices)
      : source_(source), index_(index), splices_(splices) {}

  std::vector<Kept> Run() {
    for (const Section& section : index_.sections)
      KeepOf(section);
    const Section& last = index_.sections.back();
    TagReader reader = ReaderFrom(last.end);
    Tag end;
    reader.Next(end);  // of the section
    reader.Next(end);  // of the file
    Keep(reader.TagBegin(), reader.TagEnd());
    return std::move(kept_);
  }

 private:
  TagReader ReaderFrom(const char* begin) const {
    const std::string_view all = source_.Text();
    return {source_, {begin, static_cast<std::size_t>(all.data() + all.size() - begin)}};
  }

  void Keep(const char* begin, const char* end) { kept_.push_back({begin, end, end}); }

  void KeepOf(const Section& section) {
    TagReader head = ReaderFrom(section.begin);
    TagReader end = ReaderFrom(section.end);
    Tag tag;
    head.Next(tag);
    head.Next(tag);  // its name
    end.Next(tag);
    if (SameName(section.name, SECTION_HEADER) || SameName(section.name, SECTION_TABLES)) {
      Keep(section.begin, end.TagEnd());
      return;
    }
    Keep(section.begin, head.TagEnd());
    KeepTouched(section, head.TagEnd());
    Keep(section.end, end.TagEnd());
  }

  void KeepTouched(const Section& section, const char* begin) {
    auto splice =
        std::lower_bound(splices_.begin(), splices_.end(), begin,
                         [](const Splice& candidate, const char* place) { return candidate.begin < place; });
    const char* known = begin;  // where an object begins
    for (; splice != splices_.end() && splice->begin <= section.end; ++splice) {
      if (splice->begin == section.end && (!IsInsertion(*splice) || BringsObjects(*splice))) continue;
      const char* const touched = IsInsertion(*splice) ? splice->begin - 1 : splice->begin;
      if (touched < known) continue;  // in the object that was found last
      Kept object = ObjectAround(touched, std::max(known, EntityBefore(section, touched)), section.end);
      if (splice->end > object.end) object.end = object.extended = splice->end;  // goes with its parts
      known = object.end;
      kept_.push_back(object);
    }
  }

  // Begin of the last entity at or before the place; null where none is known.
  const char* EntityBefore(const Section& section, const char* place) const {
    if (!SameName(section.name, SECTION_ENTITIES)) return nullptr;
    const auto behind = std::upper_bound(
        index_.entities.begin(), index_.entities.end(), place,
        [](const char* wanted, const Entity& entity) { return wanted < entity.text.data(); });
    return behind == index_.entities.begin() ? nullptr : std::prev(behind)->text.data();
  }

  // The object that holds the byte at `place`, which stands behind `begin`, where some object begins.
  Kept ObjectAround(const char* place, const char* begin, const char* sectionEnd) const {
    Kept object{begin, sectionEnd, nullptr};
    TagReader reader(source_, {begin, static_cast<std::size_t>(sectionEnd - begin)});
    for (Tag tag; reader.Next(tag);) {
      if (tag.code == CODE_TYPE && reader.TagBegin() > place) {
        object.end = reader.TagBegin();
        break;
      }
      if (tag.code == CODE_TYPE) object = {reader.TagBegin(), sectionEnd, nullptr};
      if (object.extended == nullptr && IsExtendedData(tag.code)) object.extended = reader.TagBegin();
    }
    if (object.extended == nullptr) object.extended = object.end;
    return object;
  }

  const SourceText& source_;
  const Index& index_;
  const std::vector<Splice>& splices_;
  std::vector<Kept> kept_;
};

// What begins where the range ends comes in before its end, or changes the next one.
bool IsIn(const Kept& kept, const Splice& splice) {
  return splice.begin < kept.end || (splice.begin == kept.end && IsInsertion(splice));
}

void Append(std::string& text, const char* begin, const char* end) {
  if (begin < end) text.append(begin, end);
}

// Texts of new entities and of their extended data, which entities of one window share.
void AppendAdded(std::string& text, const std::vector<std::string_view>& added) {
  constexpr std::size_t DISTANCE = 2;  // of the extended data of one entity from those of the next
  for (std::size_t i = 0; i < added.size(); ++i) {
    const bool isShared = i >= DISTANCE && added[i].data() == added[i - DISTANCE].data();
    if (!isShared) text += added[i];
  }
}

}  // namespace

Excerpts MakeExcerpts(const SourceText& source, const Index& index, const std::vector<Splice>& splices) {
  Excerpts excerpts;
  auto splice = splices.begin();
  for (const Kept& kept : Keeper(source, index, splices).Run()) {
    const char* at = kept.begin;
    for (; splice != splices.end() && IsIn(kept, *splice); ++splice) {
      Append(excerpts.edited, at, splice->begin);
      excerpts.edited += splice->text;
      if (splice->more != nullptr) AppendAdded(excerpts.edited, *splice->more);
      at = splice->end;
    }
    Append(excerpts.edited, at, kept.end);
    const bool isRemoved = at == kept.end && at != kept.begin;
    Append(excerpts.loaded, kept.begin, isRemoved ? kept.extended : kept.end);
  }
  return excerpts;
}

}  // namespace teskarlt::dxf
