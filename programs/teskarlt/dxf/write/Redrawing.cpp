// Redrawing.cpp - replaces an entity's geometry and extended data, tag by tag.
#include "teskarlt/dxf/write/Redrawing.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/write/EntityTags.h"
#include "teskarlt/dxf/write/NewGroups.h"
#include "teskarlt/dxf/write/TableEntries.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {
namespace {

// Points, and the marks of a face's visible edges.
bool IsGeometry(int code) {
  constexpr int coordinates = 3;
  constexpr int mostCorner = CODE_FOURTH_CORNER + (coordinates - 1) * Y_DISTANCE;
  const bool isPoint =
      code >= CODE_FIRST_CORNER && code <= mostCorner && code % Y_DISTANCE <= CODE_FOURTH_CORNER % Y_DISTANCE;
  return isPoint || code == CODE_FLAGS;
}

class Redrawing {
 public:
  Redrawing(const SourceText& source, const Rules& rules, const Redrawn& redrawn,
            std::vector<Splice>& splices)
      : source_(source),
        rules_(rules),
        redrawn_(redrawn),
        splices_(splices),
        geometry_(TextOfTags([](const TypedTag& tag) { return IsGeometry(tag.code); })),
        extendedData_(redrawn.extendedData) {}

  void Run(std::string_view entity) {
    hasReactors_ = entity.find(REACTORS_BEGIN) != std::string_view::npos;
    isLinetypeRenewed_ = redrawn_.linetype == LinetypeOnRedraw::Renewed && !HasForeignLinetype(entity);
    if (isLinetypeRenewed_)
      linetype_ = TextOfTags([](const TypedTag& tag) { return tag.code == CODE_LINETYPE; });
    TagReader reader(source_, entity);
    for (Tag tag; reader.Next(tag);)
      Take(tag, reader.TagBegin(), reader.TagEnd());
  }

 private:
  bool HasForeignLinetype(std::string_view entity) const {
    TagReader reader(source_, entity);
    for (Tag tag; reader.Next(tag) && !IsExtendedData(tag.code);)
      if (tag.code == CODE_LINETYPE) return !SameName(Trimmed(tag.value), LINETYPE_DASHED);
    return false;
  }

  template <typename Wanted>
  std::string TextOfTags(Wanted wanted) const {
    std::string text;
    TagWriter writer(text, rules_.lineEnd);
    for (const TypedTag& tag : redrawn_.tags.first(ExtendedDataBegin(redrawn_.tags)))
      if (wanted(tag)) WriteTag(writer, tag);
    return text;
  }

  void Take(const Tag& tag, const char* begin, const char* end) {
    if (IsExtendedData(tag.code)) {
      TakeExtended(tag, begin, end);
    } else if (tag.code == CODE_CONTROL) {
      isInList_ = tag.value != CONTROL_END;
      if (tag.value == REACTORS_BEGIN) AddToReactors(end);
    } else if (isInList_) {
      return;
    } else if (tag.code == CODE_HANDLE && !hasReactors_) {
      AddReactors(end);
    } else if (IsGeometry(tag.code)) {
      splices_.push_back({begin, end, std::exchange(geometry_, {})});
    } else if (tag.code == CODE_LINETYPE && isLinetypeRenewed_) {
      splices_.push_back({begin, end});
    } else if (tag.code == CODE_LAYER && !linetype_.empty()) {
      Insert(end, std::exchange(linetype_, {}));
    }
  }

  // The first application that is replaced gives way to all the new data.
  void TakeExtended(const Tag& tag, const char* begin, const char* end) {
    if (tag.code == CODE_XDATA_APPLICATION) isReplaced_ = IsNewApplication(Trimmed(tag.value));
    if (isReplaced_) splices_.push_back({begin, end, {}, std::exchange(extendedData_, nullptr)});
  }

  bool IsNewApplication(std::string_view name) const {
    return std::any_of(redrawn_.tags.begin(), redrawn_.tags.end(), [&](const TypedTag& tag) {
      return tag.code == CODE_XDATA_APPLICATION && SameName(TextOf(tag), name);
    });
  }

  void AddToReactors(const char* listBegin) {
    if (redrawn_.reactor == 0) return;
    std::string text;
    TagWriter(text, rules_.lineEnd).Handle(CODE_REACTOR, redrawn_.reactor);
    Insert(listBegin, std::move(text));
  }

  void AddReactors(const char* at) {
    if (redrawn_.reactor == 0) return;
    std::string text;
    TagWriter writer(text, rules_.lineEnd);
    WriteReactors(writer, std::array{redrawn_.reactor});
    Insert(at, std::move(text));
  }

  void Insert(const char* at, std::string text) { splices_.push_back({at, at, std::move(text)}); }

  const SourceText& source_;
  const Rules& rules_;
  const Redrawn& redrawn_;
  std::vector<Splice>& splices_;
  std::string geometry_;  // what is still to be written
  std::string linetype_;
  const std::vector<std::string_view>* extendedData_;
  bool hasReactors_ = false;
  bool isLinetypeRenewed_ = false;
  bool isInList_ = false;
  bool isReplaced_ = false;
};

}  // namespace

void AddRedrawSplices(const SourceText& source, const Rules& rules, std::string_view entity,
                      const Redrawn& redrawn, std::vector<Splice>& splices) {
  Redrawing(source, rules, redrawn, splices).Run(entity);
}

}  // namespace teskarlt::dxf
