// Entities.h - checks what has to be in each entity, and entities that only make sense one after the other.
#pragma once

#include <cstdint>
#include <vector>

#include "teskarlt/check/Findings.h"
#include "teskarlt/check/Object.h"

namespace teskarlt::check {

class Entities {
 public:
  explicit Entities(Findings& findings) : findings_(findings) {}

  void Check(const Object& object);
  // At the end of the drawing.
  void Finish() { CloseSequence(); }

 private:
  // A POLYLINE or INSERT whose vertices or attributes are being read.
  struct Sequence {
    const char* place = nullptr;  // null: none is open
    std::uint64_t handle = 0;
    bool isPolyline = false;
    bool isFaceMesh = false;
    std::int64_t vertices = 0;
  };

  struct FaceIndex {
    std::int64_t index;
    const char* place;
    std::uint64_t handle;
  };

  void CheckEntity(const Object& object);
  void CheckPart(const Object& object);
  void AddVertex(const Object& object);
  void CheckControlGroups(const Object& object);
  void CheckVertexCount(const Object& object);
  void CheckFaces();
  void CloseSequence();

  Findings& findings_;
  Sequence sequence_;
  std::vector<FaceIndex> faces_;  // of the open face mesh
};

}  // namespace teskarlt::check
