// PlanLines.cpp - reads the lines of all kinds of entities.
#include "teskarlt/drawing/PlanLines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "geometry/Matrix4.h"
#include "teskarlt/drawing/Blocks.h"
#include "teskarlt/drawing/Curves.h"
#include "teskarlt/drawing/EntityFaces.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/dxf/tags/TextCodec.h"
#include "teskarlt/dxf/tags/TextCodes.h"

namespace teskarlt {

namespace {

using geometry::Matrix4;
using geometry::Vec3;

constexpr int MOST_NESTED = 8;  // blocks in blocks
constexpr std::size_t MOST_COPIES = 1000;
constexpr std::size_t MOST_LINES_IN_BLOCK = 1'000'000;

constexpr std::string_view LINE_BREAK = "\\P";  // of an MTEXT
constexpr double LINE_SPACING = 1.6;            // heights of the text
constexpr std::int64_t ATTACHMENTS_IN_ROW = 3;

PlanBox BoxOf(const PlanLine& line) {
  return PlanBoxOf(std::array{line.from, line.to});
}

double LettersIn(std::string_view utf8) {
  return static_cast<double>(std::count_if(utf8.begin(), utf8.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

// Around a text whose own box, not yet turned, is given by its place.
PlanLine TurnedText(const dxf::TagList& text, const PlanBox& box) {
  Matrix4 turn{};
  geometry::MatRotationZ(geometry::DegToRad(text.Real(dxf::CODE_TEXT_ROTATION)), turn);
  const Vec3 place = text.Point(dxf::CODE_TEXT_POINT);
  std::array<Vec3, 4> corners = {{{box.lowX, box.lowY, 0},
                                  {box.highX, box.lowY, 0},
                                  {box.highX, box.highY, 0},
                                  {box.lowX, box.highY, 0}}};
  for (Vec3& corner : corners) {
    geometry::MatTransformPoint(turn, corner, corner);
    geometry::VecAdd(corner, place, corner);
  }
  const PlanBox turned = PlanBoxOf(corners);
  return {{turned.lowX, turned.lowY, place.z}, {turned.highX, turned.highY, place.z}, true};
}

PlanLine LineOverText(const dxf::TagList& text) {
  const double height = text.Real(dxf::CODE_TEXT_HEIGHT);
  return TurnedText(text,
                    {0, 0, LettersIn(text.Text(dxf::CODE_TEXT_CONTENT)) * LETTER_WIDTH * height, height});
}

PlanLine LineOverMText(const dxf::TagList& text) {
  const double letterHeight = text.Real(dxf::CODE_TEXT_HEIGHT);
  const std::string value = text.Text(dxf::CODE_TEXT_CONTENT);
  double rows = 1;
  for (std::size_t at = value.find(LINE_BREAK); at != std::string::npos;
       at = value.find(LINE_BREAK, at + LINE_BREAK.size()))
    ++rows;
  const double width = LettersIn(value) / rows * LETTER_WIDTH * letterHeight;
  const double height = rows * LINE_SPACING * letterHeight;
  const std::int64_t attachment = std::max<std::int64_t>(text.Integer(dxf::CODE_MTEXT_ATTACHMENT, 1), 1) - 1;
  const double left = -width * static_cast<double>(attachment % ATTACHMENTS_IN_ROW) / 2;
  const std::int64_t row = attachment / ATTACHMENTS_IN_ROW;
  const double top = height * static_cast<double>(row) / 2;
  return TurnedText(text, {left, top - height, left + width, top});
}

void AddChain(const std::vector<Vec3>& points, bool isClosed, std::vector<PlanLine>& lines) {
  for (std::size_t i = 1; i < points.size(); ++i)
    lines.push_back({points[i - 1], points[i]});
  if (isClosed && !points.empty()) lines.push_back({points.back(), points.front()});
}

class LineReader {
 public:
  explicit LineReader(const dxf::Document& drawing) : drawing_(drawing) {}

  // In the coordinates in which the entity stands; `depth` blocks are around it.
  std::vector<PlanLine> LinesOf(const dxf::Entity& entity, int depth = 0) {
    std::vector<PlanLine> lines;
    const std::vector<dxf::TagList> lists = drawing_.TagLists(entity.text);
    const dxf::TagList& own = lists.front();
    if (dxf::SameName(entity.type, dxf::TYPE_INSERT)) {
      AddCopies(own, depth, lines);
    } else if (dxf::SameName(entity.type, dxf::TYPE_DIMENSION)) {
      lines = BlockLines(own, depth);
    } else if (dxf::SameName(entity.type, dxf::TYPE_TEXT)) {
      lines.push_back(LineOverText(own));
    } else if (dxf::SameName(entity.type, dxf::TYPE_MTEXT)) {
      lines.push_back(LineOverMText(own));
    } else if (const std::optional<CurvePoints> points = PointsOf(lists)) {
      AddChain(*points, false, lines);
    } else {
      for (const EntityFace& face : FacesOf(lists).faces) {
        AddChain(face.corners, true, lines);
        for (const std::vector<Vec3>& hole : face.holes)
          AddChain(hole, true, lines);
      }
    }
    return lines;
  }

 private:
  const Block* BlockOf(const dxf::TagList& insert) {
    if (!blocks_) blocks_ = ReadBlocks(drawing_);
    const auto found = blocks_->find(dxf::FoldedName(insert.Text(dxf::CODE_NAME)));
    return found == blocks_->end() ? nullptr : &found->second;
  }

  // Of the block that the INSERT or DIMENSION names, in the block's coordinates; each block is read once.
  const std::vector<PlanLine>& BlockLines(const dxf::TagList& insert, int depth) {
    const Block* const block = depth < MOST_NESTED ? BlockOf(insert) : nullptr;
    const auto [known, isNew] = ofBlocks_.try_emplace(block);
    if (block == nullptr || !isNew) return known->second;
    std::vector<PlanLine> lines;
    for (const dxf::Entity& entity : block->entities) {
      const std::vector<PlanLine> more = LinesOf(entity, depth + 1);
      if (lines.size() + more.size() <= MOST_LINES_IN_BLOCK)
        lines.insert(lines.end(), more.begin(), more.end());
    }
    return ofBlocks_[block] = std::move(lines);
  }

  void AddCopies(const dxf::TagList& insert, int depth, std::vector<PlanLine>& lines) {
    const Block* const block = BlockOf(insert);
    if (block == nullptr) return;
    const InsertCopies copies(insert, block->base);
    const std::vector<PlanLine>& inside = BlockLines(insert, depth);
    for (std::size_t copy = 0; copy < std::min(copies.Count(), MOST_COPIES); ++copy) {
      const Matrix4 matrix = copies.At(copy);
      for (PlanLine line : inside) {
        geometry::MatTransformPoint(matrix, line.from, line.from);
        geometry::MatTransformPoint(matrix, line.to, line.to);
        lines.push_back(line);
      }
    }
  }

  const dxf::Document& drawing_;
  std::optional<Blocks> blocks_;  // read when first needed
  std::map<const Block*, std::vector<PlanLine>> ofBlocks_;
};

}  // namespace

std::vector<PlanLine> PlanLinesIn(const dxf::Document& drawing,
                                  const std::unordered_set<const dxf::Entity*>& passed,
                                  const PlanIndex& areas) {
  LineReader reader(drawing);
  std::vector<PlanLine> near;
  for (const dxf::Entity& entity : drawing.Entities()) {
    if (passed.contains(&entity)) continue;
    for (const PlanLine& line : reader.LinesOf(entity))
      if (!areas.Touching(BoxOf(line)).empty()) near.push_back(line);
  }
  return near;
}

}  // namespace teskarlt
