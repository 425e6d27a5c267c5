// PlacedFaces.cpp - walks through the entities of a drawing and of its blocks.
#include "teskarlt/drawing/PlacedFaces.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "teskarlt/drawing/Blocks.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/EntityFaces.h"
#include "teskarlt/drawing/Rings.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"

namespace teskarlt {

namespace {

using geometry::Matrix4;
using geometry::Vec3;

constexpr std::size_t MOST_NESTED = 64;  // blocks in blocks
constexpr std::size_t MOST_IN_BLOCKS = 4'000'000;

struct BlockContent;

struct Insertion {
  std::string name;
  std::string layer;
  InsertCopies copies;
  const BlockContent* content;
};

struct NamedFaces {
  std::string name;
  EntityFaces faces;
};

// What a block holds, read once.
struct BlockContent {
  bool isRead = false;
  std::vector<NamedFaces> faces;
  std::vector<Insertion> insertions;  // of blocks that hold faces
  std::size_t faceCount = 0;          // with those of the insertions; at most one more than there may be
  UnreadEntities unread;              // likewise
};

// Where a block's faces come to lie.
struct Placement {
  std::string prefix;  // of names
  std::string layer;
  Matrix4 matrix;
};

std::string NameOf(const dxf::Entity& entity, std::size_t number) {
  return entity.handle != 0 ? fmt::format("{:X}", entity.handle) : fmt::format("N{}", number);
}

std::string NumberedName(const std::string& name, std::size_t number, std::size_t count) {
  return count == 1 ? name : fmt::format("{}.{}", name, number);
}

// Product of counts that ends above MOST_IN_BLOCKS.
std::size_t Times(std::size_t a, std::size_t b) {
  return a != 0 && b > MOST_IN_BLOCKS / a ? MOST_IN_BLOCKS + 1 : a * b;
}

// Whether a hatch fills a piece of a plan: level at height 0.
bool IsInPlan(const dxf::TagList& hatch) {
  const Vec3 extrusion = hatch.Point(dxf::CODE_EXTRUSION, {0, 0, 1});
  return extrusion.x == 0 && extrusion.y == 0 && hatch.Real(dxf::CODE_HATCH_ELEVATION) == 0;
}

void Transform(const Matrix4& matrix, Ring& ring) {
  for (Vec3& point : ring)
    geometry::MatTransformPoint(matrix, point, point);
}

class FaceWalk {
 public:
  FaceWalk(const dxf::Document& drawing, const std::function<void(PlacedFace)>& take)
      : drawing_(drawing), take_(take) {}

  UnreadEntities Run() {
    std::size_t number = 0;
    for (const dxf::Entity& entity : drawing_.Entities()) {
      ++number;
      if (dxf::SameName(entity.type, dxf::TYPE_INSERT)) {
        if (const std::optional<Insertion> insertion = ReadInsertion(entity, number, unread_))
          PlaceAll(*insertion);
      } else if (std::optional<EntityFaces> faces = ReadFaces(entity, unread_)) {
        Take(NameOf(entity, number), *std::move(faces));
      }
    }
    return std::move(unread_);
  }

 private:
  // The faces of an entity that is no INSERT; nothing where it has none, which is noted when it may be a
  // roof.
  std::optional<EntityFaces> ReadFaces(const dxf::Entity& entity, UnreadEntities& unread) const {
    if (IsUnreadable(entity.type)) ++unread[std::string(entity.type)];
    if (!CanHaveFaces(entity.type) || IsWindowEntity(drawing_, entity)) return std::nullopt;
    EntityFaces faces = FacesOf(drawing_, entity);
    if (!faces.faces.empty()) return faces;
    if (dxf::SameName(entity.type, dxf::TYPE_HATCH) && !IsInPlan(drawing_.TagLists(entity.text).front()))
      ++unread[std::string(UNREAD_HATCH)];
    return std::nullopt;
  }

  // Nothing where the inserted block holds no faces.
  std::optional<Insertion> ReadInsertion(const dxf::Entity& entity, std::size_t number,
                                         UnreadEntities& unread) {
    const dxf::TagList insert = drawing_.TagLists(entity.text).front();
    const auto leaveOut = [&](std::string_view kind) {
      ++unread[std::string(kind)];
      return std::nullopt;
    };
    if (!blocks_) blocks_ = ReadBlocks(drawing_);
    const auto block = blocks_->find(dxf::FoldedName(insert.Text(dxf::CODE_NAME)));
    if (block == blocks_->end()) return leaveOut(UNREAD_MISSING);
    if (block->second.isAttached && block->second.entities.empty()) return leaveOut(UNREAD_ATTACHED);
    for (int axis = 0; axis < 3; ++axis)
      if (insert.Real(dxf::CODE_INSERT_SCALE_X + axis, 1.0) == 0) return leaveOut(UNREAD_FLATTENED);
    if (reading_ == MOST_NESTED) return leaveOut(UNREAD_DEEP);
    const BlockContent& content = ContentOf(block->second);
    if (!content.isRead) return leaveOut(UNREAD_ENDLESS);
    if (content.faceCount == 0 && content.unread.empty()) return std::nullopt;
    Insertion insertion{NameOf(entity, number), insert.Text(dxf::CODE_LAYER, dxf::DEFAULT_LAYER),
                        InsertCopies(insert, block->second.base), &content};
    AddUnread(content.unread, insertion.copies.Count(), unread);
    if (content.faceCount == 0) return std::nullopt;
    return insertion;
  }

  const BlockContent& ContentOf(const Block& block) {
    std::unique_ptr<BlockContent>& content = contents_[&block];
    if (content != nullptr) return *content;
    content = std::make_unique<BlockContent>();
    BlockContent& made = *content;
    ++reading_;
    ReadContent(block, made);
    --reading_;
    made.isRead = true;
    return made;
  }

  void ReadContent(const Block& block, BlockContent& content) {
    std::size_t number = 0;
    for (const dxf::Entity& entity : block.entities) {
      ++number;
      std::size_t more = 0;
      if (dxf::SameName(entity.type, dxf::TYPE_INSERT)) {
        std::optional<Insertion> insertion = ReadInsertion(entity, number, content.unread);
        if (!insertion) continue;
        more = Times(insertion->content->faceCount, insertion->copies.Count());
        content.insertions.push_back(*std::move(insertion));
      } else if (std::optional<EntityFaces> faces = ReadFaces(entity, content.unread)) {
        more = faces->faces.size();
        content.faces.push_back({NameOf(entity, number), *std::move(faces)});
      }
      content.faceCount = std::min(content.faceCount + more, MOST_IN_BLOCKS + 1);
    }
  }

  void PlaceAll(const Insertion& insertion) {
    const std::size_t more = Times(insertion.content->faceCount, insertion.copies.Count());
    if (more > MOST_IN_BLOCKS - placed_) {
      ++unread_[std::string(UNREAD_TOO_MANY)];
      return;
    }
    placed_ += more;
    Placement around{{}, std::string(dxf::DEFAULT_LAYER), {}};
    geometry::MatIdentity(around.matrix);
    Place(insertion, around);
  }

  void Place(const Insertion& insertion, const Placement& around) {
    const std::size_t count = insertion.copies.Count();
    Placement inside{{}, insertion.layer == dxf::DEFAULT_LAYER ? around.layer : insertion.layer, {}};
    for (std::size_t copy = 0; copy < count; ++copy) {
      inside.prefix = count == 1 ? fmt::format("{}{}.", around.prefix, insertion.name)
                                 : fmt::format("{}{}-{}.", around.prefix, insertion.name, copy + 1);
      geometry::MatMultiply(around.matrix, insertion.copies.At(copy), inside.matrix);
      PlaceContent(*insertion.content, inside);
    }
  }

  void PlaceContent(const BlockContent& content, const Placement& placement) {
    for (const NamedFaces& named : content.faces) {
      EntityFaces faces = named.faces;
      if (faces.layer == dxf::DEFAULT_LAYER) faces.layer = placement.layer;
      for (EntityFace& face : faces.faces) {
        Transform(placement.matrix, face.corners);
        for (Ring& hole : face.holes)
          Transform(placement.matrix, hole);
      }
      Take(placement.prefix + named.name, std::move(faces));
    }
    for (const Insertion& insertion : content.insertions)
      Place(insertion, placement);
  }

  void Take(const std::string& name, EntityFaces faces) {
    const std::size_t count = faces.faces.size();
    for (std::size_t i = 0; i < count; ++i) {
      take_({NumberedName(name, i + 1, count), name, faces.layer, faces.type, faces.isFlatKind,
             std::move(faces.faces[i])});
    }
  }

  const dxf::Document& drawing_;
  const std::function<void(PlacedFace)>& take_;
  std::optional<Blocks> blocks_;  // read when the first is inserted
  std::unordered_map<const Block*, std::unique_ptr<BlockContent>> contents_;
  std::size_t reading_ = 0;  // blocks within one another that are being read
  std::size_t placed_ = 0;   // faces of blocks
  UnreadEntities unread_;
};

}  // namespace

UnreadEntities ReadPlacedFaces(const dxf::Document& drawing, const std::function<void(PlacedFace)>& take) {
  return FaceWalk(drawing, take).Run();
}

}  // namespace teskarlt
