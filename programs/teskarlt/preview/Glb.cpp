// Glb.cpp - writes the 3D model.
#include "teskarlt/preview/Glb.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "geometry/Vectors.h"
#include "teskarlt/preview/GlassPanes.h"

namespace teskarlt::preview {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::uint32_t MAGIC = 0x46546C67;  // "glTF"
constexpr std::uint32_t VERSION = 2;
constexpr std::uint32_t CHUNK_JSON = 0x4E4F534A;
constexpr std::uint32_t CHUNK_BINARY = 0x004E4942;
constexpr int FLOATS = 5126;  // component type of an accessor
constexpr int VERTICES = 34962;
constexpr int LINES = 1;
constexpr int TRIANGLES = 4;
constexpr std::size_t MOST_NUMBERS = (1U << 24) - 1;  // that a float tells apart

void PutNumber(std::string& to, std::uint32_t value) {
  for (int shift = 0; shift < 32; shift += 8)
    to += static_cast<char>(value >> shift & 255U);
}

void PutChunk(std::string& to, std::uint32_t type, std::string content, char filling) {
  content.resize((content.size() + 3) / 4 * 4, filling);
  PutNumber(to, static_cast<std::uint32_t>(content.size()));
  PutNumber(to, type);
  to += content;
}

// A channel of a screen's colour as an amount of light: the square is close to the exact curve of sRGB and
// the same on every system.
double Light(std::uint8_t channel) {
  const double value = channel / 255.0;
  return std::round(value * value * 1000) / 1000;
}

enum class Kind { Surface, Frame, Glass, Edge, Line };

constexpr const char* NameOf(Kind kind) {
  switch (kind) {
    case Kind::Surface:
      return "surface";
    case Kind::Frame:
      return "frame";
    case Kind::Glass:
      return "glass";
    case Kind::Edge:
    case Kind::Line:
      break;
  }
  return "line";
}

// The primitives of a node are told apart by these.
struct Material {
  Kind kind;
  std::uint8_t red, green, blue;

  bool operator<(const Material& other) const {
    return std::tie(kind, red, green, blue) < std::tie(other.kind, other.red, other.green, other.blue);
  }
};

// Corners of triangles or ends of lines. Those of surfaces and their edges have the number of the surface
// beside them, from 1 on, as it is exact in a float.
struct Vertices {
  std::vector<Vec3> points;
  std::vector<float> surfaces;
};

using Primitives = std::map<Material, Vertices>;

// What a node holds: of a window, or else of the rest of the drawing, which comes first.
struct Place {
  int window;
  std::size_t layer;

  bool operator<(const Place& other) const {
    return std::tie(window, layer) < std::tie(other.window, other.layer);
  }
};

class Writer {
 public:
  explicit Writer(const Scene& scene) : scene_(scene), panes_(scene) {
    scale_ = scene.perMetre > 0 ? 1 / scene.perMetre : 1;
    const Vec3 centre = scene.box.Centre();
    origin_ = {centre.x, centre.y, scene.box.low.z};
  }

  std::string Run() {
    std::map<Place, Primitives> content;
    for (std::size_t i = 0; i < scene_.surfaces.size(); ++i) {
      const Surface& surface = scene_.surfaces[i];
      AddSurface(i, content[{surface.window, surface.layer}]);
    }
    for (const Curve& curve : scene_.curves)
      AddCurve(curve, content[{curve.window, curve.layer}]);
    Begin();
    PutNodes(content);
    PutWindows();
    return File();
  }

 private:
  static bool IsLine(const Material& material) {
    return material.kind == Kind::Edge || material.kind == Kind::Line;
  }

  static Material MaterialOf(Kind kind, const Colour& colour) {
    return {kind, colour.red, colour.green, colour.blue};
  }

  static float NumberOf(std::size_t surface) { return static_cast<float>(surface % MOST_NUMBERS + 1); }

  static void AddLine(const Vec3& a, const Vec3& b, Vertices& lines) {
    lines.points.push_back(a);
    lines.points.push_back(b);
  }

  static void NumberAll(Vertices& vertices, std::size_t surface) {
    vertices.surfaces.resize(vertices.points.size(), NumberOf(surface));
  }

  static Kind KindOf(const Surface& surface) {
    if (surface.isGlass) return Kind::Glass;
    return surface.window == NO_WINDOW ? Kind::Surface : Kind::Frame;
  }

  void AddSurface(std::size_t index, Primitives& node) const {
    const Surface& surface = scene_.surfaces[index];
    const std::vector<Vec3>& corners = surface.corners;
    Vertices& triangles = node[MaterialOf(KindOf(surface), PaintOf(surface))];
    for (const std::size_t corner : Triangles(corners))
      triangles.points.push_back(corners[corner]);
    NumberAll(triangles, index);
    Vertices& edges = node[MaterialOf(Kind::Edge, EdgeInk(surface.colour))];
    for (std::size_t k = 0; k < corners.size(); ++k) {
      if (k >= HIDDEN_EDGE_BITS || (surface.hiddenEdges >> k & 1U) == 0)
        AddLine(corners[k], corners[(k + 1) % corners.size()], edges);
    }
    NumberAll(edges, index);
  }

  void AddCurve(const Curve& curve, Primitives& node) const {
    const bool isOutline = curve.outlined != NO_SURFACE;
    Vertices& lines = node[MaterialOf(isOutline ? Kind::Edge : Kind::Line, Ink(curve.colour))];
    const DashPattern pattern = ReadablePattern(scene_.patterns[curve.pattern], ShortestPeriod(curve));
    for (const std::vector<Vec3>& dash : Dashes(panes_.OntoPane(curve), pattern)) {
      for (std::size_t i = 1; i < dash.size(); ++i)
        AddLine(dash[i - 1], dash[i], lines);
    }
    if (isOutline) NumberAll(lines, curve.outlined);
  }

  // Such that dashes are told apart where the drawing, or the curve, is seen as a whole.
  double ShortestPeriod(const Curve& curve) const {
    constexpr double ofDrawing = 1.0 / 120;
    constexpr double ofCurve = 1.0 / 8;
    double length = 0;
    for (std::size_t i = 1; i < curve.points.size(); ++i)
      length += geometry::Distance(curve.points[i - 1], curve.points[i]);
    return std::min(geometry::Distance(scene_.box.low, scene_.box.high) * ofDrawing, length * ofCurve);
  }

  // Drawing to model: metres from the origin, y up.
  Vec3 Placed(const Vec3& p) const {
    return {(p.x - origin_.x) * scale_, (p.z - origin_.z) * scale_, (origin_.y - p.y) * scale_};
  }

  void Begin() {
    json_["asset"] = {{"version", "2.0"},
                      {"generator", "teskarlt"},
                      {"extras",
                       {{"name", scene_.name},
                        {"unit", scene_.unit},
                        {"origin", {origin_.x, origin_.y, origin_.z}},
                        {"windows", Json::array()}}}};
    json_["scene"] = 0;
    json_["scenes"] = {{{"name", scene_.name}, {"nodes", Json::array()}}};
    for (const char* list : {"nodes", "meshes", "materials", "accessors", "bufferViews"})
      json_[list] = Json::array();
  }

  std::size_t MaterialIndex(const Material& material) {
    const auto [found, isNew] = materials_.try_emplace(material, materials_.size());
    if (!isNew) return found->second;
    const bool isGlass = material.kind == Kind::Glass;
    json_["materials"].push_back(
        {{"name", NameOf(material.kind)},
         {"pbrMetallicRoughness",
          {{"baseColorFactor", {Light(material.red), Light(material.green), Light(material.blue), 1.0}},
           {"metallicFactor", 0.0},
           {"roughnessFactor", isGlass ? 0.1 : 0.9}}},
         {"doubleSided", true}});
    return found->second;
  }

  void PutNodes(const std::map<Place, Primitives>& content) {
    for (const auto& [place, primitives] : content) {
      const std::optional<std::size_t> node = PutLayer(scene_.layers[place.layer], primitives);
      if (!node) continue;
      if (place.window == NO_WINDOW) {
        json_["scenes"][0]["nodes"].push_back(*node);
      } else {
        layersOf_[static_cast<std::size_t>(place.window)].push_back(*node);
      }
    }
  }

  // Adds a node with what lies on the layer and gives its index; none where that is nothing.
  std::optional<std::size_t> PutLayer(const SceneLayer& layer, const Primitives& content) {
    Json primitives = Json::array();
    for (const auto& [material, vertices] : content) {
      if (vertices.points.empty()) continue;
      Json attributes = {{"POSITION", PutPoints(vertices.points)}};
      if (!vertices.surfaces.empty()) attributes["_SURFACE"] = PutNumbers(vertices.surfaces);
      primitives.push_back({{"attributes", attributes},
                            {"material", MaterialIndex(material)},
                            {"mode", IsLine(material) ? LINES : TRIANGLES}});
    }
    if (primitives.empty()) return std::nullopt;
    json_["nodes"].push_back({{"name", layer.name},
                              {"mesh", json_["meshes"].size()},
                              {"extras", {{"colour", Hex(layer.colour)}}}});
    json_["meshes"].push_back({{"name", layer.name}, {"primitives", primitives}});
    return json_["nodes"].size() - 1;
  }

  void PutWindows() {
    for (const auto& [index, layers] : layersOf_) {
      const SceneWindow& window = scene_.windows[index];
      const std::size_t node = json_["nodes"].size();
      json_["scenes"][0]["nodes"].push_back(node);
      json_["nodes"].push_back({{"name", window.name.empty() ? std::to_string(window.number) : window.name},
                                {"children", layers},
                                {"extras", ValuesOf(window)}});
      json_["asset"]["extras"]["windows"].push_back(Summary(window, node));
    }
  }

  // What the schedule knows of the window; what it does not know is left out.
  static Json ValuesOf(const SceneWindow& window) {
    Json values = {{"number", window.number}};
    if (window.values.empty()) return values;
    const Json known = Json::parse(window.values);
    for (const auto& [name, value] : known.items()) {
      if (!value.is_null()) values[name] = value;
    }
    return values;
  }

  // Where the window of that node is to be seen.
  Json Summary(const SceneWindow& window, std::size_t node) const {
    const Vec3 middle = Placed(window.box.Centre());
    return {{"node", node},
            {"number", window.number},
            {"name", window.name},
            {"label", window.label},
            {"middle", {middle.x, middle.y, middle.z}},
            {"size", geometry::Distance(window.box.low, window.box.high) * scale_},
            {"facing", {window.facing.x, window.facing.z, -window.facing.y}}};
  }

  // Adds an accessor with these points and gives its index.
  std::size_t PutPoints(const std::vector<Vec3>& points) {
    const std::size_t begin = binary_.size();
    Box box;
    for (const Vec3& point : points) {
      const Vec3 p = Placed(point);
      const float coordinates[3] = {static_cast<float>(p.x), static_cast<float>(p.y),
                                    static_cast<float>(p.z)};
      for (const float coordinate : coordinates)
        PutFloat(coordinate);
      box.Add({coordinates[0], coordinates[1], coordinates[2]});
    }
    const std::size_t accessor = PutAccessor(begin, points.size(), "VEC3");
    json_["accessors"][accessor]["min"] = {box.low.x, box.low.y, box.low.z};
    json_["accessors"][accessor]["max"] = {box.high.x, box.high.y, box.high.z};
    return accessor;
  }

  std::size_t PutNumbers(const std::vector<float>& numbers) {
    const std::size_t begin = binary_.size();
    for (const float number : numbers)
      PutFloat(number);
    return PutAccessor(begin, numbers.size(), "SCALAR");
  }

  void PutFloat(float value) { PutNumber(binary_, std::bit_cast<std::uint32_t>(value)); }

  // Adds an accessor of so many values from `begin` to the end of the bytes, and gives its index.
  std::size_t PutAccessor(std::size_t begin, std::size_t count, const char* type) {
    json_["bufferViews"].push_back(
        {{"buffer", 0}, {"byteOffset", begin}, {"byteLength", binary_.size() - begin}, {"target", VERTICES}});
    json_["accessors"].push_back({{"bufferView", json_["bufferViews"].size() - 1},
                                  {"componentType", FLOATS},
                                  {"count", count},
                                  {"type", type}});
    return json_["accessors"].size() - 1;
  }

  std::string File() {
    json_["buffers"] = {{{"byteLength", binary_.size()}}};
    std::string chunks;
    PutChunk(chunks, CHUNK_JSON, json_.dump(), ' ');
    PutChunk(chunks, CHUNK_BINARY, std::move(binary_), '\0');
    std::string file;
    PutNumber(file, MAGIC);
    PutNumber(file, VERSION);
    PutNumber(file, static_cast<std::uint32_t>(chunks.size() + 12));
    return file + chunks;
  }

  const Scene& scene_;
  GlassPanes panes_;
  double scale_ = 1;
  Vec3 origin_{};
  Json json_;
  std::map<std::size_t, std::vector<std::size_t>> layersOf_;  // nodes of each window, by its index
  std::map<Material, std::size_t> materials_;
  std::string binary_;
};

}  // namespace

std::string Glb(const Scene& scene) {
  return Writer(scene).Run();
}

}  // namespace teskarlt::preview
