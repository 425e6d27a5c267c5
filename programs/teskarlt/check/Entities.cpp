// Entities.cpp - vertices, attributes, face meshes and control groups.
#include "teskarlt/check/Entities.h"

#include <fmt/format.h>

#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

using dxf::Tag;

constexpr int CODE_CONTROL = 102;
constexpr int CODE_X = 10;
constexpr int CODE_HAS_ATTRIBUTES = 66;
constexpr int CODE_FLAGS = 70;
constexpr int CODE_FIRST_INDEX = 71;
constexpr int CODE_LAST_INDEX = 74;
constexpr int CODE_VERTEX_COUNT = 90;
constexpr std::int64_t FLAG_FACE_MESH = 64;  // of a POLYLINE, and of a VERTEX that is a point of one
constexpr std::int64_t FLAG_FACE_RECORD = 128;

std::int64_t IntegerOf(const Object& object, int code) {
  const Tag* const tag = FindTag(object, code);
  return tag == nullptr ? 0 : dxf::ParseInteger(tag->value).value_or(0);
}

}  // namespace

void Entities::Take(const Object& object) {
  if (object.place == Place::SectionEnd || object.place == Place::Section) CloseSequence();
  if (object.type != "XRECORD") CheckControlGroups(object);
  if (object.IsEntity()) TakeEntity(object);
}

void Entities::TakeEntity(const Object& object) {
  const std::string_view type = object.type;
  if (type == "VERTEX" || type == "ATTRIB" || type == "SEQEND") {
    TakePart(object);
  } else {
    CloseSequence();
    if (type == "POLYLINE") {
      sequence_ = {object.Begin(), object.number, true,
                   (IntegerOf(object, CODE_FLAGS) & FLAG_FACE_MESH) != 0};
    } else if (type == "INSERT" && IntegerOf(object, CODE_HAS_ATTRIBUTES) == 1) {
      sequence_ = {object.Begin(), object.number, false};
    } else if (type == "LWPOLYLINE") {
      CheckVertexCount(object);
    }
  }
  if (FindTag(object, dxf::CODE_LAYER) == nullptr) {
    findings_.Warning(Kind::LayerMissing, object.Begin(),
                      fmt::format("the {} names no layer (group 8)", type), object.number);
  }
}

void Entities::TakePart(const Object& object) {
  const bool isVertex = object.type == "VERTEX";
  const bool isEnd = object.type == "SEQEND";
  if (sequence_.place == nullptr || (!isEnd && isVertex != sequence_.isPolyline)) {
    findings_.Error(Kind::PartOutside, object.Begin(),
                    fmt::format("the {} does not follow {}", object.type,
                                isVertex ? "a POLYLINE"
                                         : (isEnd ? "vertices or attributes" : "an INSERT with attributes")),
                    object.number);
  } else if (isEnd) {
    CheckFaces();
    sequence_ = {};
  } else if (isVertex && sequence_.isFaceMesh) {
    TakeVertex(object);
  }
}

void Entities::TakeVertex(const Object& object) {
  const std::int64_t flags = IntegerOf(object, CODE_FLAGS);
  if ((flags & FLAG_FACE_RECORD) == 0 || (flags & FLAG_FACE_MESH) != 0) {
    ++sequence_.vertices;
    return;
  }
  for (const Tag& tag : object.Own()) {
    if (tag.code < CODE_FIRST_INDEX || tag.code > CODE_LAST_INDEX) continue;
    faces_.push_back({dxf::ParseInteger(tag.value).value_or(0), tag.value.data(), object.number});
  }
}

// A negative index hides the edge, and 0 is no corner.
void Entities::CheckFaces() {
  for (const FaceIndex& face : faces_) {
    if (face.index >= -sequence_.vertices && face.index <= sequence_.vertices) continue;
    findings_.Error(
        Kind::FaceIndex, face.place,
        fmt::format("a face has the corner {}, and its mesh has {} vertices", face.index, sequence_.vertices),
        face.handle);
  }
  faces_.clear();
}

void Entities::CheckVertexCount(const Object& object) {
  const Tag* const count = FindTag(object, CODE_VERTEX_COUNT);
  if (count == nullptr) return;
  std::int64_t vertices = 0;
  for (const Tag& tag : object.Own())
    if (tag.code == CODE_X) ++vertices;
  if (dxf::ParseInteger(count->value).value_or(vertices) == vertices) return;
  findings_.Error(Kind::VertexCount, count->value.data(),
                  fmt::format("the LWPOLYLINE says that it has {} vertices and has {}",
                              dxf::Trimmed(count->value), vertices),
                  object.number);
}

void Entities::CloseSequence() {
  if (sequence_.place != nullptr) {
    CheckFaces();
    findings_.Error(Kind::SequenceEndMissing, sequence_.place,
                    fmt::format("the {} that begins here is not closed by SEQEND",
                                sequence_.isPolyline ? "POLYLINE" : "INSERT with attributes"),
                    sequence_.handle);
  }
  sequence_ = {};
}

void Entities::CheckControlGroups(const Object& object) {
  const Tag* open = nullptr;
  for (const Tag& tag : object.Own()) {
    if (tag.code != CODE_CONTROL) continue;
    const bool opens = tag.value.starts_with('{');
    if (opens == (open != nullptr)) {
      findings_.Error(
          Kind::ControlGroup, tag.value.data(),
          fmt::format("{} (group 102) {}", dxf::Quoted(tag.value),
                      opens ? "stands inside of another control group" : "closes no control group"),
          object.number);
    }
    open = opens ? &tag : nullptr;
  }
  if (open == nullptr) return;
  findings_.Error(Kind::ControlGroup, open->value.data(),
                  fmt::format("the control group {} (group 102) is not closed", dxf::Quoted(open->value)),
                  object.number);
}

}  // namespace teskarlt::check
