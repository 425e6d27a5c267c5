// Handles.cpp - the handles of a drawing and what refers to them.
#include "teskarlt/check/Handles.h"

#include <algorithm>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

using dxf::Tag;

bool HasHandle(Place place) {
  return place == Place::Table || place == Place::TableEntry || place == Place::BlockEntity ||
         place == Place::Entity || place == Place::Object;
}

}  // namespace

void Handles::Check(const Object& object) {
  if (!HasHandle(object.place)) return;
  AddHandle(object);
  if (dxf::NeedsHandles(header_.version)) AddReferences(object);
}

Handles::Role Handles::RoleOf(const Object& object) {
  if (object.place == Place::Table) return Role::Table;
  if (object.place == Place::TableEntry)
    return object.type == dxf::TABLE_BLOCKS ? Role::BlockEntry : Role::Plain;
  return object.type == dxf::TYPE_POLYLINE || object.type == dxf::TYPE_INSERT ? Role::Sequence : Role::Plain;
}

void Handles::AddHandle(const Object& object) {
  if (object.number != 0) {
    known_.push_back({object.number, object.handle->value.data(), object.type, RoleOf(object)});
  } else if (object.handle != nullptr && dxf::ParseHandle(object.handle->value)) {
    findings_.Error(Kind::HandleMissing, object.handle->value.data(),
                    fmt::format("the {} has the handle 0, which no object can have", object.type));
  } else if (object.handle == nullptr && dxf::NeedsHandles(header_.version)) {
    findings_.Error(Kind::HandleMissing, object.Begin(), fmt::format("the {} has no handle", object.type));
  }
}

void Handles::AddReferences(const Object& object) {
  std::string_view control;  // the {NAME of the control group that is open
  const Tag* owner = nullptr;
  bool isInHead = true;  // before the class markers
  for (const Tag& tag : object.Own()) {
    if (tag.code == dxf::CODE_CONTROL) {
      control = tag.value.starts_with('{') ? dxf::Trimmed(tag.value) : std::string_view();
    } else if (tag.code == dxf::CODE_SUBCLASS) {
      isInHead = false;
    } else if (isInHead && owner == nullptr && tag.code == dxf::CODE_OWNER && control.empty()) {
      owner = &tag;
    } else if (tag.code >= dxf::CODE_OWNER && tag.code <= dxf::CODE_PLOT_STYLE) {
      AddReference(object, tag, control);
    }
  }
  if (!dxf::HasOwners(header_.version) || object.place == Place::Table) return;
  const bool isRoot = object.place == Place::Object && !hasRoot_;
  hasRoot_ = hasRoot_ || isRoot;
  if (owner != nullptr) {
    if (!isRoot) AddOwner(object, *owner);
  } else if (!isRoot) {
    findings_.Error(Kind::OwnerMissing, object.Begin(),
                    fmt::format("the {} does not say to what it belongs (group 330)", object.type),
                    object.number);
  }
}

Handles::Use Handles::OwnerUse(const Object& object) {
  if (object.place == Place::TableEntry) return Use::EntryOwner;
  if (object.place == Place::Object) return Use::ObjectOwner;
  return dxf::IsPartType(object.type) ? Use::PartOwner : Use::EntityOwner;
}

void Handles::AddOwner(const Object& object, const Tag& owner) {
  if (dxf::ParseHandle(owner.value) != std::uint64_t{0}) {
    Refer(object, owner, OwnerUse(object));
  } else if (object.place != Place::Object) {
    findings_.Error(Kind::OwnerMissing, owner.value.data(),
                    fmt::format("the {} belongs to nothing (group 330 is 0)", object.type), object.number);
  }
}

void Handles::AddReference(const Object& object, const Tag& tag, std::string_view control) {
  if (control == dxf::REACTORS_BEGIN) {
    if (tag.code == dxf::CODE_REACTOR) Refer(object, tag, Use::Reactor);
  } else if (control == dxf::EXTENSION_DICTIONARY_BEGIN) {
    if (tag.code == dxf::CODE_EXTENSION_DICTIONARY) Refer(object, tag, Use::ExtensionDictionary);
  } else if (object.place == Place::Object) {
    if (tag.code == dxf::CODE_GROUP_MEMBER && object.type == dxf::TYPE_GROUP) {
      Refer(object, tag, Use::GroupMember);
    } else if (tag.code == dxf::CODE_SORTED_ENTITY && object.type == dxf::TYPE_SORT_TABLE) {
      Refer(object, tag, Use::DrawOrder);
    } else if ((tag.code == dxf::CODE_SOFT_OWNED || tag.code == dxf::CODE_HARD_OWNED) &&
               dxf::IsDictionaryType(object.type)) {
      Refer(object, tag, Use::DictionaryEntry);
    }
  } else if (tag.code == dxf::CODE_PLOT_STYLE && (object.type == dxf::TABLE_LAYERS || object.IsEntity())) {
    Refer(object, tag, Use::PlotStyle);
  }
}

// A null reference refers to nothing on purpose; one that cannot be read is a finding of its own.
void Handles::Refer(const Object& object, const Tag& tag, Use use) {
  const std::uint64_t handle = dxf::ParseHandle(tag.value).value_or(0);
  if (handle != 0) references_.push_back({handle, object.number, tag.value.data(), use});
}

void Handles::Finish() {
  CheckSeed();
  std::stable_sort(known_.begin(), known_.end(),
                   [](const Known& a, const Known& b) { return a.handle < b.handle; });
  CheckUnique();
  for (const Reference& reference : references_)
    CheckReference(reference);
}

void Handles::CheckUnique() {
  const Known* first = nullptr;
  for (const Known& known : known_) {
    if (first == nullptr || first->handle != known.handle) {
      first = &known;
      continue;
    }
    findings_.Error(Kind::HandleTwice, known.place,
                    fmt::format("the {} has the handle {:X}, and so has the {} before it", known.type,
                                known.handle, first->type),
                    known.handle);
  }
}

void Handles::CheckSeed() {
  const Tag& seed = header_.handleSeed;
  if (seed.code == 0 || known_.empty()) return;
  const auto highest = std::max_element(known_.begin(), known_.end(),
                                        [](const Known& a, const Known& b) { return a.handle < b.handle; });
  const auto value = dxf::ParseHandle(seed.value);
  if (!value || *value > highest->handle) return;
  findings_.Error(Kind::HandleSeed, seed.value.data(),
                  fmt::format("$HANDSEED is {} and has to be above the highest handle, {:X}, which a {} has",
                              dxf::Trimmed(seed.value), highest->handle, highest->type));
}

void Handles::CheckReference(const Reference& reference) {
  const auto found = std::lower_bound(
      known_.begin(), known_.end(), reference.handle,
      [](const Known& candidate, std::uint64_t wanted) { return candidate.handle < wanted; });
  if (found != known_.end() && found->handle == reference.handle) {
    CheckOwner(reference, *found);
    return;
  }
  if (elsewhere_.Holds(reference.handle)) return;
  findings_.Error(KindOfUse(reference.use), reference.place,
                  fmt::format("{} {:X} does not exist", NameOfUse(reference.use), reference.handle),
                  reference.from);
}

void Handles::CheckOwner(const Reference& reference, const Known& owner) {
  std::string_view wanted;
  if (reference.use == Use::EntityOwner && owner.role != Role::BlockEntry) {
    wanted = "a BLOCK_RECORD";
  } else if (reference.use == Use::PartOwner && owner.role != Role::BlockEntry &&
             owner.role != Role::Sequence) {
    wanted = "a POLYLINE, an INSERT or a BLOCK_RECORD";
  } else if (reference.use == Use::EntryOwner && owner.role != Role::Table) {
    wanted = "a TABLE";
  } else {
    return;
  }
  findings_.Error(
      Kind::OwnerKind, reference.place,
      fmt::format("the owner {:X} is a {}, and it has to be {}", reference.handle, owner.type, wanted),
      reference.from);
}

Kind Handles::KindOfUse(Use use) {
  switch (use) {
    case Use::GroupMember:
      return Kind::GroupMember;
    case Use::DictionaryEntry:
      return Kind::DictionaryEntry;
    case Use::Reactor:
      return Kind::Reactor;
    case Use::ExtensionDictionary:
      return Kind::ExtensionDictionary;
    case Use::DrawOrder:
      return Kind::DrawOrder;
    case Use::PlotStyle:
      return Kind::PlotStyle;
    default:
      return Kind::OwnerDangling;
  }
}

std::string_view Handles::NameOfUse(Use use) {
  switch (use) {
    case Use::GroupMember:
      return "the member of the group,";
    case Use::DictionaryEntry:
      return "the entry of the dictionary,";
    case Use::Reactor:
      return "the reactor";
    case Use::ExtensionDictionary:
      return "the extension dictionary";
    case Use::DrawOrder:
      return "the entity of the drawing order,";
    case Use::PlotStyle:
      return "the plot style";
    default:
      return "the owner";
  }
}

}  // namespace teskarlt::check
