// DrawnWindow.cpp - reads the windows of a drawing back from the extended data of their entities.
#include "teskarlt/drawing/DrawnWindow.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/Choices.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;

// The items of the description, by kind and in their order. What cannot be read stands as 0 and marks the
// description as damaged: a drawing stays usable when one of its windows is not.
struct Description {
  std::vector<std::string> texts;
  std::vector<std::int32_t> shorts;
  std::vector<double> reals;
  std::vector<double> distances;
  std::vector<double> scales;
  std::vector<RecordPoint> points;
  bool isDamaged = false;
};

enum class Section { Foreign, Element, WindowElement, Description };

// Where the extended data of our applications stands in an entity, and what it says.
struct Marks {
  bool isWindow = false;
  std::int32_t number = 0;
  std::optional<dxf::Tag> numberTag;
  Description description;
};

double RealOf(const dxf::Tag& tag, Description& of) {
  const std::optional<double> value = dxf::ParseReal(tag.value);
  of.isDamaged = of.isDamaged || !value;
  return value.value_or(0.0);
}

std::int32_t IntegerOf(const dxf::Tag& tag, Description& of) {
  const std::optional<std::int64_t> value = dxf::ParseInteger(tag.value);
  const bool fits = value && *value >= std::numeric_limits<std::int32_t>::min() &&
                    *value <= std::numeric_limits<std::int32_t>::max();
  of.isDamaged = of.isDamaged || !fits;
  return fits ? static_cast<std::int32_t>(*value) : 0;
}

void TakeDescription(const dxf::Document& drawing, const dxf::Tag& tag, Description& to) {
  switch (tag.code) {
    case dxf::CODE_XDATA_TEXT:
      to.texts.push_back(drawing.Text(tag));
      break;
    case dxf::CODE_XDATA_INTEGER16:
      to.shorts.push_back(IntegerOf(tag, to));
      break;
    case dxf::CODE_XDATA_REAL:
      to.reals.push_back(RealOf(tag, to));
      break;
    case dxf::CODE_XDATA_DISTANCE:
      to.distances.push_back(RealOf(tag, to));
      break;
    case dxf::CODE_XDATA_SCALE:
      to.scales.push_back(RealOf(tag, to));
      break;
    case dxf::CODE_XDATA_WORLD_POINT:
      to.points.push_back({RealOf(tag, to), 0, 0});
      break;
    case dxf::CODE_XDATA_WORLD_POINT + dxf::Y_DISTANCE:
      if (!to.points.empty()) to.points.back().y = RealOf(tag, to);
      break;
    case dxf::CODE_XDATA_WORLD_POINT + dxf::Z_DISTANCE:
      if (!to.points.empty()) to.points.back().z = RealOf(tag, to);
      break;
    default:
      break;
  }
}

Section SectionOf(std::string_view application) {
  if (dxf::SameName(application, brevanta::ELEMENT_APPLICATION)) return Section::Element;
  if (dxf::SameName(application, brevanta::DESCRIPTION_APPLICATION)) return Section::Description;
  return Section::Foreign;
}

void TakeTag(const dxf::Document& drawing, const dxf::Tag& tag, Section& section, Marks& marks) {
  if (tag.code == dxf::CODE_XDATA_APPLICATION) {
    section = SectionOf(dxf::Trimmed(tag.value));
  } else if (section == Section::Element && tag.code == dxf::CODE_XDATA_TEXT &&
             dxf::Trimmed(tag.value) == brevanta::WINDOW_ELEMENT) {
    section = Section::WindowElement;
    marks.isWindow = true;
  } else if (section == Section::WindowElement && tag.code == dxf::CODE_XDATA_INTEGER32) {
    marks.number = IntegerOf(tag, marks.description);
    marks.numberTag = tag;
  } else if (section == Section::Description) {
    TakeDescription(drawing, tag, marks.description);
  }
}

// The part of the entity's text from its first application name on; empty when nothing of ours can be in it.
std::string_view ExtendedData(const dxf::Document& drawing, const dxf::Entity& entity) {
  if (entity.text.find(brevanta::WINDOW_ELEMENT) == std::string_view::npos) return {};
  dxf::TagReader reader = drawing.Reader(entity);
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code != dxf::CODE_XDATA_APPLICATION) continue;
    return {reader.TagBegin(),
            static_cast<std::size_t>(entity.text.data() + entity.text.size() - reader.TagBegin())};
  }
  return {};
}

Marks ReadMarks(const dxf::Document& drawing, std::string_view extendedData) {
  Marks marks;
  Section section = Section::Foreign;
  dxf::TagReader reader(drawing.Source(), extendedData);
  for (dxf::Tag tag; reader.Next(tag);)
    TakeTag(drawing, tag, section, marks);
  return marks;
}

bool IsComplete(const Description& d) {
  return !d.isDamaged && d.texts.size() >= 4 && d.shorts.size() >= 5 && d.reals.size() >= 7 &&
         !d.distances.empty() && !d.scales.empty() && d.points.size() >= 8;
}

// The window that a complete description tells of; the
// items come in the order in which the module writes them.
void TakeComplete(const Description& d, double unitFactor, DrawnWindow& window) {
  WindowParams& params = window.params;
  params.length = d.reals[0] / unitFactor;
  params.width = d.distances[0] / unitFactor;
  params.frameWidth = d.scales[0] / unitFactor;
  window.text1 = d.texts[0];
  window.text3 = d.texts[1];
  window.openingCode = d.texts[2];
  window.text2 = d.texts[3];
  params.drawOpeningSymbol = d.shorts[1];
  params.frameDepth = d.reals[1] / unitFactor;
  params.lowerEdgeHeight = d.reals[2] / unitFactor;
  params.heightReference = d.shorts[2];
  params.widthAnchor = d.shorts[3];
  params.roofBuildUp = d.shorts[4];
  params.storedPoint = d.points[0];
  params.insertionPoint = d.points[1];
  params.rotation = d.reals[3];
  params.rotation2 = d.reals[4];
  params.layerThickness = d.reals[5] / unitFactor;
  params.pitch = d.reals[6];
  for (std::size_t i = 0; i < 3; ++i) {
    params.secondPlanePoints[i] = d.points[2 + 2 * i];
    params.roofPlanePoints[i] = d.points[3 + 2 * i];
  }
}

bool IsFace(const dxf::Entity& entity) {
  return dxf::SameName(entity.type, dxf::TYPE_FACE);
}

// How many windows the entities are, each with the types of the first one in their order; 1 when they are no
// multiple of a window's.
std::size_t CopiesIn(const DrawnWindow& window) {
  const auto& entities = window.entities;
  const std::size_t lines = entities.size() - window.faces;
  const std::size_t count = lines / LinesOf(window);
  if (!window.isComplete || count < 2 || lines % LinesOf(window) != 0 || window.faces % count != 0 ||
      !brevanta::IsFaceCount(window.faces / count))
    return 1;
  const std::size_t size = entities.size() / count;
  for (std::size_t i = size; i < entities.size(); ++i)
    if (!dxf::SameName(entities[i]->type, entities[i % size]->type)) return 1;
  return count;
}

void AddWithCopies(DrawnWindow window, std::vector<DrawnWindow>& windows) {
  const std::size_t count = CopiesIn(window);
  const std::vector<const dxf::Entity*> entities = std::move(window.entities);
  const std::size_t size = entities.size() / count;
  window.faces /= count;
  for (auto begin = entities.begin(); begin != entities.end(); begin += static_cast<std::ptrdiff_t>(size)) {
    window.entities.assign(begin, begin + static_cast<std::ptrdiff_t>(size));
    windows.push_back(window);
  }
}

DrawnWindow MakeWindow(const Marks& marks, std::int32_t unitFactor) {
  DrawnWindow window;
  window.number = marks.number;
  window.params.markerValue = marks.number;
  window.params.unitFactor = unitFactor;
  window.isComplete = IsComplete(marks.description);
  if (window.isComplete) TakeComplete(marks.description, unitFactor, window);
  return window;
}

}  // namespace

bool CanBePart(std::string_view type) {
  return dxf::SameName(type, dxf::TYPE_LINE) || dxf::SameName(type, dxf::TYPE_FACE);
}

bool IsWindowEntity(const dxf::Document& drawing, const dxf::Entity& entity) {
  const std::string_view extendedData = ExtendedData(drawing, entity);
  return !extendedData.empty() && ReadMarks(drawing, extendedData).isWindow;
}

std::size_t LinesOf(const DrawnWindow& window) {
  return brevanta::LineCount(DrawsSymbol(window.params), window.openingCode);
}

bool HasMoreThanOneWindow(const DrawnWindow& window) {
  return window.isComplete && (window.faces > brevanta::FACES_WITH_SKIRT ||
                               window.entities.size() - window.faces > LinesOf(window));
}

std::string EntityMismatch(const DrawnWindow& window) {
  const std::size_t lines = window.entities.size() - window.faces;
  if (brevanta::IsFaceCount(window.faces) && lines == LinesOf(window)) return {};
  return fmt::format("it has {} faces and {} lines, and should have 0, {} or {} faces and {} lines",
                     window.faces, lines, brevanta::FACES_WITHOUT_SKIRT, brevanta::FACES_WITH_SKIRT,
                     LinesOf(window));
}

std::optional<dxf::Tag> NumberTagOf(const dxf::Document& drawing, const dxf::Entity& entity) {
  return ReadMarks(drawing, ExtendedData(drawing, entity)).numberTag;
}

std::vector<DrawnWindow> FindWindows(const dxf::Document& drawing, std::int32_t unitFactor) {
  constexpr std::size_t notOurs = std::numeric_limits<std::size_t>::max();
  std::vector<DrawnWindow> windows;
  std::unordered_map<std::string_view, std::size_t> windowOf;  // by the bytes of the extended data
  for (const dxf::Entity& entity : drawing.Entities()) {
    const std::string_view extendedData = ExtendedData(drawing, entity);
    if (extendedData.empty() || !CanBePart(entity.type)) continue;
    auto [found, isNew] = windowOf.try_emplace(extendedData, notOurs);
    if (isNew) {
      const Marks marks = ReadMarks(drawing, extendedData);
      if (!marks.isWindow) continue;
      found->second = windows.size();
      windows.push_back(MakeWindow(marks, unitFactor));
    }
    if (found->second == notOurs) continue;
    DrawnWindow& window = windows[found->second];
    window.entities.push_back(&entity);
    if (IsFace(entity)) ++window.faces;
  }
  std::vector<DrawnWindow> withCopies;
  for (DrawnWindow& window : windows)
    AddWithCopies(std::move(window), withCopies);
  std::stable_sort(withCopies.begin(), withCopies.end(), [](const DrawnWindow& a, const DrawnWindow& b) {
    return a.entities.front() < b.entities.front();  // of one array
  });
  return withCopies;
}

WindowNumbers NumbersOf(const std::vector<DrawnWindow>& windows) {
  WindowNumbers numbers;
  for (const DrawnWindow& window : windows)
    numbers.Take(window.number);
  return numbers;
}

}  // namespace teskarlt
