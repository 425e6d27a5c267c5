// Houses.cpp - small drawings for the tests, with a roof and windows that the real module makes.
#include "tests/teskarlt/windows/Houses.h"

#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/NewDrawing.h"
#include "teskarlt/windows/WindowInserter.h"

namespace teskarlt {

namespace {

constexpr double WIDTH = 8000;
constexpr double DEPTH = 6000;

void AddFace(const std::vector<geometry::Vec3>& corners, dxf::Document& drawing) {
  std::vector<dxf::TypedTag> tags = {{0, std::string_view("3DFACE")},
                                     {100, std::string_view("AcDbEntity")},
                                     {8, std::string_view("ROOF")},
                                     {100, std::string_view("AcDbFace")}};
  for (int i = 0; i < 4; ++i) {
    const geometry::Vec3& corner = corners[static_cast<std::size_t>(i)];
    tags.push_back({10 + i, dxf::Point{corner.x, corner.y, corner.z}});
  }
  drawing.AddEntity(tags);
}

void InsertWindow(dxf::Document& drawing) {
  const WindowModule module;
  WindowInserter(module, drawing, Millimetres()).Insert(OrderAt(4000, 2000));
}

}  // namespace

dxf::Document DrawingWithFaces(const std::vector<std::vector<geometry::Vec3>>& faces, int units) {
  const dxf::NewDrawingOptions options{.units = units, .layers = {"ROOF"}, .applications = {}};
  dxf::Document drawing = dxf::Document::FromText("house.dxf", dxf::NewDrawing(options));
  for (const std::vector<geometry::Vec3>& face : faces)
    AddFace(face, drawing);
  return Reloaded(drawing);
}

std::vector<geometry::Vec3> RoofAt(double height) {
  return {{0, 0, height}, {WIDTH, 0, height}, {WIDTH, DEPTH, DEPTH + height}, {0, DEPTH, DEPTH + height}};
}

dxf::Document House() {
  return DrawingWithFaces({RoofAt(0)});
}

dxf::Document Reloaded(const dxf::Document& drawing) {
  return dxf::Document::FromText(drawing.FileName(), drawing.Serialize());
}

dxf::Document HouseWithWindow() {
  dxf::Document drawing = House();
  InsertWindow(drawing);
  return Reloaded(drawing);
}

dxf::Document HouseWithCopy() {
  const std::string text = HouseWithWindow().Serialize();
  const std::string head = "ENTITIES\n";
  const std::size_t begin = text.find(head) + head.size();
  const std::size_t end = text.find("  0\nENDSEC", begin);
  std::string twice = text;
  return dxf::Document::FromText("house.dxf", twice.insert(end, text.substr(begin, end - begin)));
}

dxf::Document WithRisenRoof(dxf::Document house, double height) {
  house.RemoveEntity(house.Entities().front());  // the roof
  AddFace(RoofAt(height), house);
  return Reloaded(house);
}

dxf::Document HouseWithRisenRoof(double height) {
  return WithRisenRoof(HouseWithWindow(), height);
}

WindowOrder OrderAt(double x, double y) {
  WindowOrder order;
  order.at = PlanPoint{x, y, std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y))};
  return order;
}

const DrawingUnit& Millimetres() {
  return UnitByName("mm");
}

std::vector<int> NumbersIn(const dxf::Document& drawing) {
  std::vector<int> numbers;
  for (const DrawnWindow& window : FindWindows(drawing, Millimetres().working))
    numbers.push_back(window.number);
  return numbers;
}

}  // namespace teskarlt
