// Entities.cpp - vertices, attributes, face meshes and control groups.
#include "teskarlt/check/Entities.h"

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"

namespace teskarlt::check {
namespace {

using dxf::Tag;

std::int64_t IntegerOf(const Object& object, int code) {
  const Tag* const tag = FindTag(object, code);
  return tag == nullptr ? 0 : dxf::ParseInteger(tag->value).value_or(0);
}

}  // namespace

void Entities::Check(const Object& object) {
  if (object.place == Place::SectionEnd || object.place == Place::Section) CloseSequence();
  if (object.type != dxf::TYPE_XRECORD) CheckControlGroups(object);
  if (object.IsEntity()) CheckEntity(object);
}

void Entities::CheckEntity(const Object& object) {
  const std::string_view type = object.type;
  if (dxf::IsPartType(type)) {
    CheckPart(object);
  } else {
    CloseSequence();
    if (type == dxf::TYPE_POLYLINE) {
      sequence_ = {object.Begin(), object.number, true,
                   (IntegerOf(object, dxf::CODE_POLYLINE_FLAGS) & dxf::POLYLINE_POLYFACE_MESH) != 0};
    } else if (type == dxf::TYPE_INSERT && IntegerOf(object, dxf::CODE_INSERT_HAS_ATTRIBUTES) == 1) {
      sequence_ = {object.Begin(), object.number, false};
    } else if (type == dxf::TYPE_LWPOLYLINE) {
      CheckVertexCount(object);
    }
  }
  if (FindTag(object, dxf::CODE_LAYER) == nullptr) {
    findings_.Warning(Kind::LayerMissing, object.Begin(),
                      fmt::format("the {} names no layer (group 8)", type), object.number);
  }
}

void Entities::CheckPart(const Object& object) {
  const bool isVertex = object.type == dxf::TYPE_VERTEX;
  const bool isEnd = object.type == dxf::TYPE_SEQUENCE_END;
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
    AddVertex(object);
  }
}

void Entities::AddVertex(const Object& object) {
  const std::int64_t flags = IntegerOf(object, dxf::CODE_VERTEX_FLAGS);
  if ((flags & dxf::VERTEX_OF_POLYFACE) == 0 || (flags & dxf::VERTEX_OF_MESH) != 0) {
    ++sequence_.vertices;
    return;
  }
  for (const Tag& tag : object.Own()) {
    if (tag.code < dxf::CODE_FIRST_FACE_VERTEX || tag.code > dxf::CODE_LAST_FACE_VERTEX) continue;
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
  const Tag* const count = FindTag(object, dxf::CODE_LWPOLYLINE_COUNT);
  if (count == nullptr) return;
  std::int64_t vertices = 0;
  for (const Tag& tag : object.Own())
    if (tag.code == dxf::CODE_VERTEX_POINT) ++vertices;
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
    if (tag.code != dxf::CODE_CONTROL) continue;
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
