// PartOrder.cpp - finds the outlines of a window among its lines and faces, and by them what the others are.
#include "teskarlt/drawing/PartOrder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

#include "geometry/Vectors.h"
#include "window/Parts.h"

namespace teskarlt {

namespace {

using geometry::Vec3;
using Parts = std::span<const PartCorners>;
using Loop = std::array<std::size_t, 4>;  // numbers of parts, each of which begins where the one before ends

constexpr double FLAT = 1e-4;      // sine of the angle
constexpr double PARALLEL = 1e-3;  // likewise

Vec3 Along(const PartCorners& part) {
  return Difference(part[1], part[0]);
}

// Whether b continues a: a line from its end, a face beside it in a wall or ring around the window.
using Continues = bool (*)(const PartCorners& a, const PartCorners& b, double tolerance);

bool LineContinues(const PartCorners& a, const PartCorners& b, double tolerance) {
  return Distance(a[1], b[0]) <= tolerance && Distance(a[0], b[1]) > tolerance;
}

bool FaceContinues(const PartCorners& a, const PartCorners& b, double tolerance) {
  return Distance(a[1], b[0]) <= tolerance && Distance(a[2], b[3]) <= tolerance;
}

bool IsClosed(Parts parts, std::size_t first, Continues continues, double tolerance) {
  for (std::size_t k = 0; k < 4; ++k)
    if (!continues(parts[first + k], parts[first + (k + 1) % 4], tolerance)) return false;
  return true;
}

bool IsParallelogram(Parts parts, const Loop& loop, double tolerance) {
  const Vec3 gap = Sum(Along(parts[loop[0]]), Along(parts[loop[2]]));
  return geometry::VecLength(gap) <= 2 * tolerance;
}

// Puts the parts that continue the loop's first `size` ones behind them, in every way that closes it.
void Close(Parts parts, Continues continues, double tolerance, std::size_t size, Loop& loop,
           std::vector<Loop>& loops) {
  const PartCorners& last = parts[loop[size - 1]];
  if (size == loop.size()) {
    if (continues(last, parts[loop[0]], tolerance) && IsParallelogram(parts, loop, tolerance))
      loops.push_back(loop);
    return;
  }
  for (std::size_t next = loop[0] + 1; next < parts.size(); ++next) {  // the first has the least number
    if (!continues(last, parts[next], tolerance)) continue;
    loop[size] = next;
    Close(parts, continues, tolerance, size + 1, loop, loops);
  }
}

// All closed parallelograms of four parts.
std::vector<Loop> LoopsOf(Parts parts, Continues continues, double tolerance) {
  std::vector<Loop> loops;
  for (std::size_t first = 0; first < parts.size(); ++first) {
    Loop loop{first};
    Close(parts, continues, tolerance, 1, loop, loops);
  }
  return loops;
}

double Perimeter(Parts parts, const Loop& loop) {
  double perimeter = 0;
  for (const std::size_t part : loop)
    perimeter += geometry::VecLength(Along(parts[part]));
  return perimeter;
}

Vec3 NormalOf(Parts parts, const Loop& loop) {
  return Unit(Cross(Along(parts[loop[0]]), Along(parts[loop[1]])));
}

// The loop whose first part is the one that goes farthest in the direction.
Loop Turned(Parts parts, Loop loop, const Vec3& direction) {
  const auto first = std::max_element(loop.begin(), loop.end(), [&](std::size_t a, std::size_t b) {
    return VecDot(Along(parts[a]), direction) < VecDot(Along(parts[b]), direction);
  });
  std::rotate(loop.begin(), first, loop.end());
  return loop;
}

// The edge of the loop that leads up the slope.
Vec3 UpOf(Parts parts, const Loop& loop) {
  const Vec3 normal = NormalOf(parts, loop);
  const bool isFlat = std::hypot(normal.x, normal.y) <= FLAT;
  const Vec3 upwards = isFlat ? Vec3{0, 1, 0} : Vec3{0, 0, 1};
  return Unit(Along(parts[Turned(parts, loop, upwards)[0]]));
}

bool IsParallelTo(const Vec3& a, const Vec3& b) {
  return geometry::VecLength(Cross(Unit(a), Unit(b))) <= PARALLEL;
}

void Append(const Loop& loop, PartOrder& order) {
  order.insert(order.end(), loop.begin(), loop.end());
}

// The parts that are not in the order yet, in that of the file.
PartOrder Others(std::size_t count, const PartOrder& order) {
  PartOrder others;
  for (std::size_t part = 0; part < count; ++part)
    if (std::find(order.begin(), order.end(), part) == order.end()) others.push_back(part);
  return others;
}

// The three rectangles of a symbol. The frame's goes round the other way, above the outline or on it.
struct SymbolLoops {
  Loop outline;
  Loop frame;
  Loop sash;
};

std::optional<SymbolLoops> FindSymbol(Parts lines, double tolerance) {
  std::vector<Loop> loops = LoopsOf(lines, LineContinues, tolerance);
  if (loops.size() < 3) return std::nullopt;
  std::stable_sort(loops.begin(), loops.end(), [&](const Loop& a, const Loop& b) {
    return Perimeter(lines, a) > Perimeter(lines, b) + tolerance;
  });
  const Loop& largest = loops[0];
  const auto isSash = [&](const Loop& loop) {  // and no diamond
    const Vec3 edge = Along(lines[loop[0]]);
    return IsParallelTo(edge, Along(lines[largest[0]])) || IsParallelTo(edge, Along(lines[largest[1]]));
  };
  const auto sash = std::find_if(loops.begin() + 2, loops.end(), isSash);
  if (sash == loops.end()) return std::nullopt;
  const bool isFirstOutline = VecDot(NormalOf(lines, largest), NormalOf(lines, *sash)) > 0;
  const Vec3 up = UpOf(lines, *sash);
  return SymbolLoops{Turned(lines, loops[isFirstOutline ? 0 : 1], up),
                     Turned(lines, loops[isFirstOutline ? 1 : 0], Scaled(up, -1.0)),
                     Turned(lines, *sash, up)};
}

// Where a line of an opening mark stands among all that there can be, by where its ends lie in the sash: each
// end at a corner (0 to 3) or in the middle of an edge (4 to 7, from the corner of that number less 4).
std::size_t PlaceOfMark(const PartCorners& mark, Parts lines, const Loop& sash) {
  constexpr std::pair<std::size_t, std::size_t> MARKS[] = {{0, 5}, {5, 3}, {1, 7}, {7, 2}, {4, 5}, {5, 6},
                                                           {6, 7}, {7, 4}, {0, 6}, {6, 1}, {2, 4}, {4, 3}};
  const auto pointAt = [&](std::size_t place) {
    const PartCorners& edge = lines[sash[place % 4]];
    return place < 4 ? edge[0] : geometry::Between(edge[0], edge[1], 0.5);
  };
  const auto* const nearest =
      std::min_element(std::begin(MARKS), std::end(MARKS), [&](const auto& a, const auto& b) {
        const auto distance = [&](const auto& ends) {
          return Distance(mark[0], pointAt(ends.first)) + Distance(mark[1], pointAt(ends.second));
        };
        return distance(a) < distance(b);
      });
  return static_cast<std::size_t>(nearest - std::begin(MARKS));
}

PartOrder OrderOfSymbol(Parts lines, double tolerance) {
  const std::optional<SymbolLoops> symbol = FindSymbol(lines, tolerance);
  if (!symbol) return {};
  PartOrder order;
  Append(symbol->frame, order);
  Append(symbol->sash, order);
  PartOrder known = order;
  Append(symbol->outline, known);
  PartOrder marks = Others(lines.size(), known);
  std::sort(marks.begin(), marks.end(), [&](std::size_t a, std::size_t b) {
    return PlaceOfMark(lines[a], lines, symbol->sash) < PlaceOfMark(lines[b], lines, symbol->sash);
  });
  order.insert(order.end(), marks.begin(), marks.end());
  Append(symbol->outline, order);
  return order;
}

// The walls that stand on the outline, from below; the wall inside; then the rings that lie between them.
void SortBands(Parts faces, const Vec3& normal, double tolerance, std::vector<Loop>& bands) {
  std::sort(bands.begin(), bands.end(), [&](const Loop& a, const Loop& b) {
    return VecDot(normal, faces[a[0]][0]) < VecDot(normal, faces[b[0]][0]);
  });
  const auto rings = std::stable_partition(bands.begin(), bands.end(), [&](const Loop& band) {
    const PartCorners& face = faces[band[0]];
    return std::abs(VecDot(normal, Difference(face[3], face[0]))) > tolerance;
  });
  const auto inside = std::min_element(bands.begin(), rings, [&](const Loop& a, const Loop& b) {
    return Perimeter(faces, a) < Perimeter(faces, b);
  });
  if (inside != rings) std::rotate(inside, inside + 1, rings);
}

// The opening, the frame's upper edge, which runs like the third line of the opening's outline, and the
// cross.
PartOrder OrderOfOpening(Parts lines, double tolerance) {
  const std::vector<Loop> loops = LoopsOf(lines, LineContinues, tolerance);
  if (loops.size() != 1 || lines.size() != brevanta::LINES_OF_OPENING) return {};
  const Loop opening = Turned(lines, loops[0], UpOf(lines, loops[0]));
  PartOrder order;
  Append(opening, order);
  PartOrder others = Others(lines.size(), order);
  const Vec3 across = Along(lines[opening[1]]);
  const auto isEdge = [&](std::size_t line) {
    return IsParallelTo(Along(lines[line]), across) && VecDot(Along(lines[line]), across) > 0;
  };
  const auto edge = std::find_if(others.begin(), others.end(), isEdge);
  if (edge == others.end()) return {};
  std::rotate(others.begin(), edge, edge + 1);
  if (Distance(lines[others[1]][0], lines[others[0]][0]) > tolerance) std::swap(others[1], others[2]);
  order.insert(order.end(), others.begin(), others.end());
  return order;
}

bool GoTogether(const PartCorners& a, const PartCorners& b) {
  return IsParallelTo(Along(a), Along(b)) && VecDot(Along(a), Along(b)) > 0;
}

bool IsSymbol(Parts lines, double tolerance) {
  if (lines.size() < brevanta::LINES_OF_SYMBOL + brevanta::LINES_OF_OUTLINE) return false;
  const std::size_t outline = lines.size() - brevanta::LINES_OF_OUTLINE;
  const std::size_t sash = brevanta::FIRST_LINE_OF_SASH;
  const bool areClosed = IsClosed(lines, 0, LineContinues, tolerance) &&
                         IsClosed(lines, sash, LineContinues, tolerance) &&
                         IsClosed(lines, outline, LineContinues, tolerance);
  return areClosed && GoTogether(lines[sash], lines[outline]) && GoTogether(lines[2], lines[outline]);
}

bool IsOpening(Parts lines, double tolerance) {
  if (lines.size() != brevanta::LINES_OF_OPENING) return false;
  const PartCorners& edge = lines[brevanta::UPPER_EDGE_OF_FRAME];
  const auto isArm = [&](std::size_t line, const Vec3& from, const Vec3& to) {
    return Distance(lines[line][0], from) <= tolerance && Distance(lines[line][1], to) <= tolerance;
  };
  return IsClosed(lines, 0, LineContinues, tolerance) && isArm(5, edge[0], lines[3][0]) &&
         isArm(6, edge[1], lines[0][0]);
}

// Every wall and ring stands where the one before it ends.
bool IsBody(Parts faces, double tolerance) {
  for (std::size_t first = 0; first + 4 < faces.size(); first += 4)  // the pane is the last
    if (!IsClosed(faces, first, FaceContinues, tolerance)) return false;
  const bool hasSkirt = faces.size() == brevanta::FACES_WITH_SKIRT;
  if (!hasSkirt && faces.size() != brevanta::FACES_WITHOUT_SKIRT) return false;
  const std::size_t outer = hasSkirt ? brevanta::FACES_OF_SKIRT : 0;
  const std::size_t inner = outer + 4;
  const std::size_t ring = outer + brevanta::FIRST_FACE_OF_RING;
  const std::size_t upperRing = ring + 4;
  const auto meet = [&](std::size_t a, std::size_t cornerA, std::size_t b, std::size_t cornerB) {
    return Distance(faces[a][cornerA], faces[b][cornerB]) <= tolerance;
  };
  return (!hasSkirt || meet(0, 3, outer, 0)) && meet(outer, 0, ring, 0) && meet(outer, 3, upperRing, 0) &&
         meet(inner, 0, ring, 3) && meet(inner, 3, upperRing, 3);
}

}  // namespace

bool LinesAreInOrder(Parts lines, bool hasSymbol, double tolerance) {
  return hasSymbol ? IsSymbol(lines, tolerance) : IsOpening(lines, tolerance);
}

bool FacesAreInOrder(Parts faces, double tolerance) {
  return faces.empty() || IsBody(faces, tolerance);
}

PartOrder OrderOfLines(Parts lines, bool hasSymbol, double tolerance) {
  return hasSymbol ? OrderOfSymbol(lines, tolerance) : OrderOfOpening(lines, tolerance);
}

PartOrder OrderOfFaces(Parts faces, double tolerance) {
  std::vector<Loop> bands = LoopsOf(faces, FaceContinues, tolerance);
  if (bands.size() * 4 + 1 != faces.size()) return {};
  const Vec3 up = UpOf(faces, bands[0]);
  const Vec3 some = NormalOf(faces, bands[0]);
  const Vec3 normal = some.z < 0 ? Scaled(some, -1.0) : some;
  for (Loop& band : bands)
    band = Turned(faces, band, up);
  SortBands(faces, normal, tolerance, bands);
  PartOrder order;
  for (const Loop& band : bands)
    Append(band, order);
  const PartOrder pane = Others(faces.size(), order);
  order.insert(order.end(), pane.begin(), pane.end());
  return order;
}

}  // namespace teskarlt
