// DrawnWindow.cpp - reads the windows of a drawing back from the extended data of their entities.
#include "teskarlt/drawing/DrawnWindow.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <fmt/format.h>

#include "teskarlt/drawing/DescriptionReader.h"
#include "teskarlt/drawing/PartGroups.h"
#include "teskarlt/drawing/WindowParts.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "window/Choices.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

constexpr std::int32_t NO_NUMBER = 0;

enum class Section { Foreign, Element, WindowElement, Description, Mark };

// What the extended data of an entity says of its window.
struct WindowData {
  bool isWindow = false;
  std::optional<dxf::Tag> numberTag;
  std::string mark;    // UTF-8
  DrawnWindow window;  // without its entities
};

Section SectionOf(std::string_view application) {
  if (dxf::SameName(application, brevanta::ELEMENT_APPLICATION)) return Section::Element;
  if (dxf::SameName(application, brevanta::DESCRIPTION_APPLICATION)) return Section::Description;
  if (dxf::SameName(application, brevanta::MARK_APPLICATION)) return Section::Mark;
  return Section::Foreign;
}

bool IsWindowElement(const dxf::Tag& tag) {
  return tag.code == dxf::CODE_XDATA_TEXT && dxf::Trimmed(tag.value) == brevanta::WINDOW_ELEMENT;
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

// What of it tells windows apart: the text of the sections of our applications, but for the mark.
std::string OwnData(const dxf::Document& drawing, std::string_view extendedData) {
  std::string own;
  Section section = Section::Foreign;
  dxf::TagReader reader(drawing.Source(), extendedData);
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_XDATA_APPLICATION) section = SectionOf(dxf::Trimmed(tag.value));
    if (section != Section::Foreign && section != Section::Mark)
      own.append(reader.TagBegin(), reader.TagEnd());
  }
  return own;
}

// Reads all but the entities; what no complete description tells stays as it is by default.
WindowData ReadData(const dxf::Document& drawing, std::string_view extendedData, const WorkingUnit& unit) {
  WindowData data;
  DrawnWindow described;
  DescriptionReader description(drawing, unit, described);
  Section section = Section::Foreign;
  dxf::TagReader reader(drawing.Source(), extendedData);
  for (dxf::Tag tag; reader.Next(tag);) {
    if (tag.code == dxf::CODE_XDATA_APPLICATION) {
      section = SectionOf(dxf::Trimmed(tag.value));
    } else if (section == Section::Element && IsWindowElement(tag)) {
      section = Section::WindowElement;
      data.isWindow = true;
    } else if (section == Section::WindowElement && tag.code == dxf::CODE_XDATA_INTEGER32) {
      data.numberTag = tag;
    } else if (section == Section::Mark && tag.code == dxf::CODE_XDATA_TEXT && data.mark.empty()) {
      data.mark = drawing.Text(tag);
    } else if (section == Section::Description) {
      description.Read(tag);
    }
  }
  const std::optional<std::int32_t> number = data.numberTag ? IntegerOf(*data.numberTag) : NO_NUMBER;
  DrawnWindow& window = data.window;
  if (number && description.IsComplete()) {
    window = std::move(described);
    window.isComplete = true;
  }
  window.number = number.value_or(NO_NUMBER);
  window.params.markerValue = window.number;
  window.params.unitFactor = unit.perMetre;
  window.unit = unit;
  return data;
}

bool IsFace(const dxf::Entity& entity) {
  return dxf::SameName(entity.type, dxf::TYPE_FACE);
}

using Entities = std::vector<const dxf::Entity*>;

// How many windows the entities can be by their number; 1 when they are no multiple of a window's.
std::size_t CopiesIn(const DrawnWindow& window) {
  const std::size_t lines = window.entities.size() - window.faces;
  const std::size_t count = lines / LinesOf(window);
  const bool isMultiple = window.isComplete && count >= 2 && lines % LinesOf(window) == 0 &&
                          window.faces % count == 0 && brevanta::IsFaceCount(window.faces / count);
  return isMultiple ? count : 1;
}

std::size_t FacesAmong(const Entities& entities) {
  return static_cast<std::size_t>(
      std::count_if(entities.begin(), entities.end(), [](const auto* entity) { return IsFace(*entity); }));
}

// One copy behind the other; empty where they do not have the types of the first one in their order.
std::vector<Entities> SplitInOrder(const Entities& entities, std::size_t count) {
  const std::size_t size = entities.size() / count;
  for (std::size_t i = size; i < entities.size(); ++i)
    if (!dxf::SameName(entities[i]->type, entities[i % size]->type)) return {};
  std::vector<Entities> copies;
  copies.reserve(count);
  for (auto begin = entities.begin(); begin != entities.end(); begin += static_cast<std::ptrdiff_t>(size))
    copies.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(size));
  return copies;
}

bool AreWhole(const dxf::Document& drawing, const DrawnWindow& window, const std::vector<Entities>& copies) {
  const double tolerance = SAME_PLACE * window.params.unitFactor;
  return std::all_of(copies.begin(), copies.end(), [&](const Entities& copy) {
    WindowParts parts = ReadParts(drawing, copy, window.unit);
    return PutInOrder(DrawsSymbol(window.params), tolerance, parts);
  });
}

// By where the entities lie; empty when that does not give as many windows, each with all of its own.
std::vector<Entities> SplitByPlace(const dxf::Document& drawing, const DrawnWindow& window,
                                   std::size_t count) {
  const double factor = DrawingUnitsPerMetre(window.unit);
  const double reach = std::min(window.params.width, window.params.length) * factor / 2;
  std::vector<Entities> copies = GroupByPlace(drawing, window.entities, SAME_PLACE * factor, reach);
  const auto isOne = [&](const Entities& copy) {
    return copy.size() == window.entities.size() / count && FacesAmong(copy) == window.faces / count;
  };
  if (copies.size() != count || !std::all_of(copies.begin(), copies.end(), isOne)) return {};
  return copies;
}

// The entities of each window that they are.
std::vector<Entities> Split(const dxf::Document& drawing, const DrawnWindow& window) {
  const std::size_t count = CopiesIn(window);
  if (count == 1) return {window.entities};
  std::vector<Entities> inOrder = SplitInOrder(window.entities, count);
  if (!inOrder.empty() && AreWhole(drawing, window, inOrder)) return inOrder;
  if (std::vector<Entities> byPlace = SplitByPlace(drawing, window, count); !byPlace.empty()) return byPlace;
  if (inOrder.empty()) return {window.entities};
  return inOrder;
}

void AddWithCopies(const dxf::Document& drawing, const DrawnWindow& window,
                   std::vector<DrawnWindow>& windows) {
  for (Entities& entities : Split(drawing, window)) {
    DrawnWindow& copy = windows.emplace_back(window);
    copy.faces = FacesAmong(entities);
    copy.entities = std::move(entities);
  }
}

}  // namespace

bool CanBePart(std::string_view type) {
  return dxf::SameName(type, dxf::TYPE_LINE) || dxf::SameName(type, dxf::TYPE_FACE);
}

bool IsWindowEntity(const dxf::Document& drawing, const dxf::Entity& entity) {
  const std::string_view extendedData = ExtendedData(drawing, entity);
  return !extendedData.empty() && ReadData(drawing, extendedData, IN_DRAWING_UNITS).isWindow;
}

std::string ShownMark(const DrawnWindow& window) {
  return window.mark.empty() ? fmt::format("W{:02}", window.number) : window.mark;
}

std::string DrawnWindow::*TextMember(const brevanta::RecordField& field) {
  const auto* text = std::find_if(std::begin(DRAWN_TEXTS), std::end(DRAWN_TEXTS),
                                  [&](const DrawnText& drawn) { return drawn.field == field.name; });
  return text->text;
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
  return ReadData(drawing, ExtendedData(drawing, entity), IN_DRAWING_UNITS).numberTag;
}

std::vector<DrawnWindow> FindWindows(const dxf::Document& drawing, const WorkingUnit& unit) {
  constexpr std::size_t notOurs = std::numeric_limits<std::size_t>::max();
  std::vector<DrawnWindow> windows;
  std::unordered_map<std::string_view, std::size_t> windowOf;  // by the bytes of all extended data
  std::unordered_map<std::string, std::size_t> windowOfOwn;    // by those of ours
  for (const dxf::Entity& entity : drawing.Entities()) {
    const std::string_view extendedData = ExtendedData(drawing, entity);
    if (extendedData.empty() || !CanBePart(entity.type)) continue;
    auto [found, isNew] = windowOf.try_emplace(extendedData, notOurs);
    if (isNew) {
      WindowData data = ReadData(drawing, extendedData, unit);
      if (!data.isWindow) continue;
      found->second = windowOfOwn.try_emplace(OwnData(drawing, extendedData), windows.size()).first->second;
      if (found->second == windows.size()) windows.push_back(std::move(data.window));
      if (std::string& mark = windows[found->second].mark; mark.empty()) mark = std::move(data.mark);
    }
    if (found->second == notOurs) continue;
    DrawnWindow& window = windows[found->second];
    window.entities.push_back(&entity);
    if (IsFace(entity)) ++window.faces;
  }
  std::vector<DrawnWindow> withCopies;
  for (const DrawnWindow& window : windows)
    AddWithCopies(drawing, window, withCopies);
  std::stable_sort(withCopies.begin(), withCopies.end(), [](const DrawnWindow& a, const DrawnWindow& b) {
    return a.entities.front() < b.entities.front();  // of one array
  });
  return withCopies;
}

WindowNumbers NumbersOf(const dxf::Document& drawing, const std::vector<DrawnWindow>& windows) {
  WindowNumbers numbers;
  numbers.KeepTaken(drawing.ApplicationNumber(brevanta::ELEMENT_APPLICATION).value_or(0));
  for (const DrawnWindow& window : windows)
    numbers.Take(window.number);
  return numbers;
}

void KeepNumberTaken(dxf::Document& drawing, const std::vector<DrawnWindow>& windows, std::int32_t number) {
  const bool isHighest = std::none_of(windows.begin(), windows.end(),
                                      [&](const DrawnWindow& window) { return window.number > number; });
  if (isHighest && number > drawing.ApplicationNumber(brevanta::ELEMENT_APPLICATION).value_or(0))
    drawing.KeepApplicationNumber(brevanta::ELEMENT_APPLICATION, number);
}

}  // namespace teskarlt
