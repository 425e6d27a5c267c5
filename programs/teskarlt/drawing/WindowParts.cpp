// WindowParts.cpp - reads the parts of windows and puts them in order.
#include "teskarlt/drawing/WindowParts.h"

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/Choices.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

PartCorners CornersOf(const dxf::Document& drawing, const dxf::Entity& entity, const WorkingUnit& unit) {
  const dxf::TagList tags = drawing.TagLists(entity.text).front();
  const auto corner = [&](int code) { return ToWorking(tags.Point(code), unit); };
  return {corner(dxf::CODE_FIRST_CORNER), corner(dxf::CODE_SECOND_CORNER), corner(dxf::CODE_THIRD_CORNER),
          corner(dxf::CODE_FOURTH_CORNER)};
}

void Reorder(const PartOrder& order, std::vector<PartCorners>& corners,
             std::vector<const dxf::Entity*>& entities) {
  const std::vector<PartCorners> oldCorners = corners;
  const std::vector<const dxf::Entity*> oldEntities = entities;
  for (std::size_t i = 0; i < order.size(); ++i) {
    corners[i] = oldCorners[order[i]];
    entities[i] = oldEntities[order[i]];
  }
}

// Where the roles of each kind of line begin: far enough apart.
constexpr int OUTLINE_ROLE = 100;
constexpr int OPENING_ROLE = 200;
constexpr int MARK_ROLE = 300;
constexpr int ROLES_OF_A_MARK = 10;

void AddRoles(int first, std::size_t count, std::vector<PartRole>& roles) {
  for (std::size_t i = 0; i < count; ++i)
    roles.push_back({false, first + static_cast<int>(i)});
}

}  // namespace

bool PartRole::IsMark() const {
  return !isFace && number >= MARK_ROLE;
}

std::vector<PartRole> FaceRoles(std::size_t faces) {
  const int skirt = faces == brevanta::FACES_WITH_SKIRT ? static_cast<int>(brevanta::FACES_OF_SKIRT) : 0;
  std::vector<PartRole> roles;
  roles.reserve(faces);
  for (int i = 0; i < static_cast<int>(faces); ++i)
    roles.push_back({true, i - skirt});
  return roles;
}

std::vector<PartRole> LineRoles(bool hasSymbol, std::string_view openingCode) {
  std::vector<PartRole> roles;
  if (!hasSymbol) {
    AddRoles(OPENING_ROLE, brevanta::LINES_OF_OPENING, roles);
    return roles;
  }
  AddRoles(0, brevanta::LINES_OF_SYMBOL, roles);
  for (const brevanta::OpeningMark& mark : brevanta::OPENING_MARKS) {
    if (openingCode.find(mark.letter) != std::string_view::npos)
      AddRoles(MARK_ROLE + ROLES_OF_A_MARK * (mark.letter - 'A'), mark.lines, roles);
  }
  AddRoles(OUTLINE_ROLE, brevanta::LINES_OF_OUTLINE, roles);
  return roles;
}

std::map<PartRole, const dxf::Entity*> PartsByRole(const dxf::Document& drawing, const DrawnWindow& window) {
  std::map<PartRole, const dxf::Entity*> byRole;
  const bool hasSymbol = DrawsSymbol(window.params);
  WindowParts parts = ReadParts(drawing, window.entities, window.unit);
  if (!EntityMismatch(window).empty() || !PutInOrder(hasSymbol, SAME_PLACE * window.params.unitFactor, parts))
    return byRole;
  const auto add = [&](const std::vector<PartRole>& roles, const std::vector<const dxf::Entity*>& entities) {
    for (std::size_t i = 0; i < roles.size(); ++i)
      byRole.emplace(roles[i], entities[i]);
  };
  add(FaceRoles(window.faces), parts.faceEntities);
  add(LineRoles(hasSymbol, window.openingCode), parts.lineEntities);
  return byRole;
}

WindowParts ReadParts(const dxf::Document& drawing, std::span<const dxf::Entity* const> entities,
                      const WorkingUnit& unit) {
  WindowParts parts;
  for (const dxf::Entity* const entity : entities) {
    const bool isLine = dxf::SameName(entity->type, dxf::TYPE_LINE);
    (isLine ? parts.lines : parts.faces).push_back(CornersOf(drawing, *entity, unit));
    (isLine ? parts.lineEntities : parts.faceEntities).push_back(entity);
  }
  return parts;
}

bool PutInOrder(bool hasSymbol, double tolerance, WindowParts& parts) {
  const bool linesAre = LinesAreInOrder(parts.lines, hasSymbol, tolerance);
  const bool facesAre = FacesAreInOrder(parts.faces, tolerance);
  const PartOrder lines = linesAre ? PartOrder() : OrderOfLines(parts.lines, hasSymbol, tolerance);
  const PartOrder faces = facesAre ? PartOrder() : OrderOfFaces(parts.faces, tolerance);
  if ((!linesAre && lines.empty()) || (!facesAre && faces.empty())) return false;
  Reorder(lines, parts.lines, parts.lineEntities);
  Reorder(faces, parts.faces, parts.faceEntities);
  return true;
}

}  // namespace teskarlt
