// Edits.cpp - new entities as text, removals, and the file that comes of them.
#include "teskarlt/dxf/write/Edits.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <unordered_set>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/read/Owners.h"
#include "teskarlt/dxf/read/TagReader.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/ExtendedData.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/Version.h"
#include "teskarlt/dxf/write/ApplicationNumber.h"
#include "teskarlt/dxf/write/EntityTags.h"
#include "teskarlt/dxf/write/Referrers.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {
namespace {

HandleSeed SeedOf(const Index& index, const Rules& rules) {
  const HeaderVariable* const variable = index.FindVariable(VARIABLE_HANDLE_SEED);
  const std::uint64_t seed = variable == nullptr ? 0 : ParseHandle(variable->value.value).value_or(0);
  return {index.largestHandle, seed, rules.usesHandles};
}

template <typename Plain>
void AppendBytes(std::string& key, const Plain& value) {
  key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

// Equal for equal tags alone.
void AppendKey(std::string& key, const TypedTag& tag) {
  AppendBytes(key, tag.code);
  AppendBytes(key, tag.value.index());
  if (const auto* const text = std::get_if<std::string_view>(&tag.value)) {
    AppendBytes(key, text->size());
    key.append(*text);
  } else if (const auto* const point = std::get_if<Point>(&tag.value)) {
    AppendBytes(key, *point);
  } else if (const auto* const real = std::get_if<double>(&tag.value)) {
    AppendBytes(key, *real);
  } else {
    AppendBytes(key, std::get<std::int64_t>(tag.value));
  }
}

// What is taken out of an object that goes as a whole needs no change of its own. The splices are in order.
void DropNested(std::vector<Splice>& splices) {
  const char* end = splices.empty() ? nullptr : splices.front().begin;
  std::erase_if(splices, [&](const Splice& splice) {
    if (splice.begin < end) return true;
    end = splice.end;
    return false;
  });
}

}  // namespace

Edits::Edits(const SourceText& source, const Index& index, const TextCodec& codec, const Rules& rules)
    : source_(source),
      index_(index),
      rules_(rules),
      handles_(SeedOf(index, rules)),
      entries_(source, index, codec, rules, handles_),
      groups_(source, index, codec, rules, handles_),
      isRemoved_(index.entities.size()) {}

std::uint64_t Edits::AddEntity(std::span<const TypedTag> tags) {
  const EditMark mark = Mark();
  try {
    CheckTags(tags);
    return AddCheckedEntity(tags);
  } catch (...) {
    Rollback(mark);
    throw;
  }
}

std::uint64_t Edits::AddCheckedEntity(std::span<const TypedTag> tags) {
  RequireNames(tags);
  const std::size_t extended = ExtendedDataBegin(tags);
  const std::uint64_t handle = handles_.Allocate();
  scratch_.clear();
  TagWriter writer(scratch_, rules_.lineEnd);
  writer.Text(CODE_TYPE, TextOf(tags[0]));
  if (handle != 0) writer.Handle(CODE_HANDLE, handle);
  if (grouping_) {
    grouping_->members.push_back(handle);
    if (groups_.NamesOwners()) WriteReactors(writer, grouping_->reactors);
  }
  if (const std::uint64_t owner = OwnerOfNew(); owner != 0) writer.Handle(CODE_OWNER, owner);
  for (const TypedTag& tag : tags.subspan(1, extended - 1)) {
    if (tag.code == CODE_SUBCLASS && !HasSubclassMarkers(rules_.version)) continue;
    if (tag.code == CODE_LAYER) {
      WriteTag(writer, {CODE_LAYER, std::string_view(entries_.RequireLayer(TextOf(tag)))});
    } else {
      WriteTag(writer, tag);
    }
  }
  const std::string_view body = store_.Add(scratch_);
  const std::string_view extendedData = ExtendedData(tags.subspan(extended));
  const std::size_t place = added_.size();
  added_.push_back(body);
  if (!extendedData.empty()) added_.push_back(extendedData);
  NoteShape(tags.first(extended), place);
  return handle;
}

// `own` are the tags before the extended data, `text` is the place of the entity in added_.
void Edits::NoteShape(std::span<const TypedTag> own, std::size_t text) {
  const std::size_t texts = added_.size() - text;
  std::size_t shape = ShapeOf(own, Integers::Count);
  if (texts > 1) shape = std::rotl(shape, 1) ^ lastShape_;
  if (grouping_) shape += grouping_->reactors.size();
  if (shapes_.insert(shape).second) firsts_.push_back({shape, text, texts});
}

// What the entity refers to by name must be in the drawing, else strict programs refuse all of it.
void Edits::RequireNames(std::span<const TypedTag> tags) {
  for (const TypedTag& tag : tags) {
    if (tag.code == CODE_LAYER) entries_.RequireLayer(TextOf(tag));
    if (tag.code == CODE_LINETYPE) entries_.RequireLinetype(TextOf(tag));
    if (tag.code == CODE_XDATA_APPLICATION) entries_.RequireApplication(TextOf(tag));
  }
}

// The owner of new entities; 0 where there is none to name.
std::uint64_t Edits::OwnerOfNew() {
  if (!owner_) owner_ = FindOwner();
  return *owner_;
}

// The entry of the model space, or what the drawing's own entities name where that entry is damaged. Before
// R2000, new entities name one where those do.
std::uint64_t Edits::FindOwner() const {
  if (!HasSubclassMarkers(rules_.version)) return 0;
  const Tag& entry = index_.modelSpace;
  if (HasOwners(rules_.version)) {
    if (const auto handle = ParseHandle(entry.value); handle && *handle != 0) return *handle;
  }
  const Tag neighbour = OwnerOfEntities(source_, index_);
  if (const auto handle = ParseHandle(neighbour.value); handle && *handle != 0) return *handle;
  if (!HasOwners(rules_.version) || index_.modelSpaceName.code == 0) return 0;
  constexpr const char* NEED =
      "and new entities of the model space have to refer to it; let a CAD program repair the drawing first";
  if (entry.code != 0)
    source_.FailAt(entry.value.data(), fmt::format("{} is no handle, {}", Quoted(entry.value), NEED));
  source_.FailAt(index_.modelSpaceName.value.data(), fmt::format("this record has no handle, {}", NEED));
}

std::string_view Edits::ExtendedData(std::span<const TypedTag> tags) {
  if (tags.empty()) return {};
  std::string key;
  for (const TypedTag& tag : tags)
    AppendKey(key, tag);
  if (key == lastKey_) return lastExtendedData_;
  scratch_.clear();
  TagWriter writer(scratch_, rules_.lineEnd);
  for (const TypedTag& tag : tags)
    if (tag.code != CODE_XDATA_MARKER) WriteTag(writer, tag);
  lastExtendedData_ = store_.Add(scratch_);
  lastKey_ = std::move(key);
  lastShape_ = ShapeOf(tags, Integers::DoNotCount);
  return lastExtendedData_;
}

const std::vector<std::string_view>& Edits::SharedData(std::span<const TypedTag> tags) {
  const std::string_view extendedData = ExtendedData(tags);
  if (sharedData_.empty() || sharedData_.back().front().data() != extendedData.data())
    sharedData_.push_back({extendedData});
  return sharedData_.back();
}

std::size_t Edits::NumberOf(const Entity& entity) const {
  const Entity* const first = index_.entities.data();
  if (std::less<>()(&entity, first) || !std::less<>()(&entity, first + index_.entities.size()))
    source_.Fail("this entity is not one of the drawing");
  return static_cast<std::size_t>(&entity - first);
}

void Edits::RemoveEntity(const Entity& entity) {
  const std::size_t number = NumberOf(entity);
  if (isRemoved_[number]) return;
  isRemoved_[number] = true;
  removed_.push_back(number);
}

void Edits::Redraw(const Entity& entity, std::span<const TypedTag> tags, LinetypeOnRedraw linetype) {
  CheckTags(tags);
  const std::size_t extended = ExtendedDataBegin(tags);
  for (const TypedTag& tag : tags) {
    if (tag.code == CODE_LINETYPE && linetype == LinetypeOnRedraw::Renewed)
      entries_.RequireLinetype(TextOf(tag));
    if (tag.code == CODE_XDATA_APPLICATION) entries_.RequireApplication(TextOf(tag));
  }
  Redrawn redrawn{tags, &SharedData(tags.subspan(extended)), linetype};
  if (grouping_ && grouping_->fileGroups.empty()) {  // in those of the file it is already
    grouping_->members.push_back(entity.handle);
    if (groups_.NamesOwners()) redrawn.reactor = grouping_->newGroup;
  }
  AddRedrawSplices(source_, rules_, entity.text, redrawn, replaced_);
  const std::size_t number = NumberOf(entity);
  if (!isRemoved_[number]) return;
  isRemoved_[number] = false;
  removed_.erase(std::next(std::find(removed_.rbegin(), removed_.rend(), number)).base());
}

bool Edits::IsRemoved(const Entity& entity) const {
  return isRemoved_[NumberOf(entity)];
}

void Edits::SetExtendedData(const Entity& entity, std::span<const TypedTag> tags) {
  const std::string_view application = TextOf(tags.front());
  const char* begin = entity.text.data() + entity.text.size();  // of what it has of the application
  const char* end = begin;
  bool isOfIt = false;
  std::size_t others = 0;
  TagReader reader(source_, entity.text);
  for (Tag tag; reader.Next(tag);) {
    if (!IsExtendedData(tag.code)) continue;
    if (tag.code == CODE_XDATA_APPLICATION) isOfIt = SameName(Trimmed(tag.value), application);
    if (!isOfIt) {
      others += ExtendedSize(tag.code, tag.value.size());
      continue;
    }
    if (tag.code == CODE_XDATA_APPLICATION) begin = reader.TagBegin();
    end = reader.TagEnd();
  }
  CheckExtendedData(tags, others);
  if (tags.size() == 1) {
    replaced_.push_back({begin, end});
    return;
  }
  entries_.RequireApplication(application);
  replaced_.push_back({begin, end, {}, &SharedData(tags)});
}

void Edits::ReplaceValue(const Tag& tag, std::string value) {
  replaced_.push_back({tag.value.data(), tag.value.data() + tag.value.size(), std::move(value)});
}

void Edits::KeepApplicationNumber(std::string_view name, std::int32_t number) {
  const std::optional<ApplicationEntry> entry = FindApplicationEntry(source_, index_, name);
  if (!entry) return;
  if (entry->number.code != 0) {
    ReplaceValue(entry->number, std::to_string(number));
    return;
  }
  std::string data;
  TagWriter writer(data, rules_.lineEnd);
  writer.Text(CODE_XDATA_APPLICATION, name);
  writer.Integer(CODE_XDATA_INTEGER32, number);
  replaced_.push_back({entry->end, entry->end, std::move(data)});
}

// Entities that replace others come into the groups that had all of those.
void Edits::BeginGroup(std::span<const Entity* const> replaced) {
  if (!HasSubclassMarkers(rules_.version)) return;
  std::vector<std::uint64_t> old;
  for (const Entity* const entity : replaced)
    old.push_back(entity->handle);
  Grouping grouping;
  grouping.fileGroups = groups_.GroupsOf(old);
  for (const GroupObject* const group : grouping.fileGroups)
    grouping.reactors.push_back(group->handle);
  if (grouping.fileGroups.empty()) {
    grouping.newGroup = groups_.AllocateHandle();
    grouping.reactors.push_back(grouping.newGroup);
  }
  grouping_ = std::move(grouping);
}

void Edits::EndGroup(std::string_view name, std::string_view description) {
  if (!grouping_) return;
  Grouping grouping = std::move(*grouping_);
  grouping_.reset();
  std::sort(grouping.members.begin(), grouping.members.end());
  for (const GroupObject* const group : grouping.fileGroups)
    if (!grouping.members.empty()) groups_.Extend(*group, grouping.members);
  groups_.Add(grouping.newGroup, name, description, grouping.members);
}

bool Edits::IsChanged() const {
  return !added_.empty() || !removed_.empty() || !replaced_.empty() || entries_.Count() > 0 ||
         groups_.Count() > 0;
}

EditMark Edits::Mark() const {
  return {added_.size(),   removed_.size(),       replaced_.size(), entries_.Count(),
          groups_.Count(), grouping_.has_value(), handles_.Next()};
}

void Edits::Rollback(const EditMark& mark) {
  added_.resize(std::min(mark.addedTexts, added_.size()));
  for (; !firsts_.empty() && firsts_.back().text >= added_.size(); firsts_.pop_back())
    shapes_.erase(firsts_.back().shape);
  while (removed_.size() > mark.removedEntities) {
    isRemoved_[removed_.back()] = false;
    removed_.pop_back();
  }
  while (replaced_.size() > mark.replacedValues)
    replaced_.pop_back();
  if (entries_.Count() > mark.addedEntries) entries_.GoBack(mark.addedEntries);
  groups_.GoBack(mark.addedGroups);
  if (!mark.isGrouping) grouping_.reset();
  if (grouping_)
    std::erase_if(grouping_->members, [&](std::uint64_t handle) { return handle >= mark.nextHandle; });
  handles_.GoBack(mark.nextHandle);
}

void Edits::AddSeedSplice(std::vector<Splice>& splices) const {
  if (!handles_.HasMoved()) return;
  std::string text;
  TagWriter writer(text, rules_.lineEnd);
  if (const HeaderVariable* const variable = index_.FindVariable(VARIABLE_HANDLE_SEED);
      variable != nullptr && variable->value.code != 0) {
    const std::string_view old = variable->value.value;
    splices.push_back({old.data(), old.data() + old.size(), fmt::format("{:X}", handles_.Next())});
  } else if (const Section* const header = index_.FindSection(SECTION_HEADER); header != nullptr) {
    writer.Text(CODE_VARIABLE, VARIABLE_HANDLE_SEED);
    writer.Handle(CODE_HANDLE, handles_.Next());
    splices.push_back({header->end, header->end, std::move(text)});
  }
}

std::vector<Splice> Edits::Splices() const {
  std::vector<Splice> splices = replaced_;
  AddSeedSplice(splices);
  entries_.AddSplices(splices);
  std::unordered_set<std::uint64_t> removedHandles;
  for (const std::size_t number : removed_) {
    const Entity& entity = index_.entities[number];
    splices.push_back({entity.text.data(), entity.text.data() + entity.text.size()});
    if (entity.handle != 0) removedHandles.insert(entity.handle);
  }
  AddReferrerSplices(source_, index_, removedHandles, splices);
  groups_.AddSplices(removedHandles, splices);
  const char* const end = index_.FindSection(SECTION_ENTITIES)->end;
  if (!added_.empty()) splices.push_back({end, end, {}, &added_});
  std::stable_sort(splices.begin(), splices.end(), [](const Splice& a, const Splice& b) {
    return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;  // additions first
  });
  DropNested(splices);
  return splices;
}

Excerpts Edits::MakeExcerpts() const {
  std::vector<std::string_view> entities;
  for (const FirstOfShape& first : firsts_) {
    const auto begin = added_.begin() + static_cast<std::ptrdiff_t>(first.text);
    entities.insert(entities.end(), begin, begin + static_cast<std::ptrdiff_t>(first.texts));
  }
  Excerpts excerpts = dxf::MakeExcerpts(source_, index_, Splices(), entities);
  excerpts.newHandles = {handles_.First(), handles_.Next()};
  return excerpts;
}

void Edits::Write(const std::function<void(std::string_view)>& sink) const {
  source_.Write(Splices(), sink);
}

}  // namespace teskarlt::dxf
