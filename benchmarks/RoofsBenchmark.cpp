// RoofsBenchmark.cpp - the roof of each of 10,000 windows in drawings of few and of many faces, as a ratio:
// where the time went before faces had an index. The houses stand apart, or their faces make one large roof.
#include <chrono>
#include <map>
#include <vector>

#include <benchmark/benchmark.h>

#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/windows/RoofChoice.h"

namespace {

using geometry::Vec3;

constexpr double MILLIMETRE = 1.0;
constexpr std::int64_t FEW = 100;
constexpr std::int64_t MANY = 20000;
constexpr std::int64_t IN_A_ROW = 100;
constexpr std::int64_t WINDOWS = 10000;
constexpr double WIDTH = 5000;
constexpr double DEPTH = 4000;
constexpr double GAP = 2000;  // between houses

enum Shape : std::int64_t { HOUSES, LARGE_ROOF };

Vec3 CornerOf(std::int64_t face, Shape shape) {
  const double gap = shape == HOUSES ? GAP : 0.0;
  const double x = static_cast<double>(face % IN_A_ROW) * (WIDTH + gap);
  const std::int64_t row = face / IN_A_ROW;
  const double y = static_cast<double>(row) * (DEPTH + gap);
  return {x, y, y};
}

teskarlt::Roofs RoofsOf(std::int64_t count, Shape shape) {
  std::vector<teskarlt::RoofFace> faces;
  faces.reserve(static_cast<std::size_t>(count));
  for (std::int64_t i = 0; i < count; ++i) {
    const Vec3 o = CornerOf(i, shape);
    faces.push_back(*teskarlt::MakeRoofFace({o,
                                             {o.x + WIDTH, o.y, o.z},
                                             {o.x + WIDTH, o.y + DEPTH, o.z + DEPTH},
                                             {o.x, o.y + DEPTH, o.z + DEPTH}},
                                            MILLIMETRE));
  }
  return {faces, MILLIMETRE};
}

// 1 x 1 m in the plan, on the middle of a face.
teskarlt::Outline WindowOn(std::int64_t face, Shape shape) {
  constexpr double SIZE = 1000;
  const Vec3 o = CornerOf(face, shape);
  const Vec3 start = {o.x + WIDTH / 2, o.y + DEPTH / 2, o.z + DEPTH / 2};
  return {start,
          {start.x, start.y + SIZE, start.z + SIZE},
          {start.x + SIZE, start.y + SIZE, start.z + SIZE},
          {start.x + SIZE, start.y, start.z}};
}

// What inserting the windows asks the roofs for: the choice, the faces near, and how much they cover.
double CoverOfWindows(const teskarlt::Roofs& roofs, std::int64_t count, Shape shape) {
  double covered = 0.0;
  for (std::int64_t i = 0; i < WINDOWS; ++i) {
    const teskarlt::Outline outline = WindowOn(i * 7919 % count, shape);
    teskarlt::WindowOrder order;
    order.at = teskarlt::PlanPoint{outline[0].x, outline[0].y, ""};
    const teskarlt::RoofChoice roof = teskarlt::ChooseRoof(order, "", roofs);
    covered += static_cast<double>(roof.facesNear(teskarlt::PlanBoxOf(outline)).size());
    covered += teskarlt::CoveredPart(outline, roofs);
  }
  return covered;
}

// Counts the time as a ratio to that of the first run of the shape, which has few faces.
void RoofsOfWindows(benchmark::State& state) {
  using Clock = std::chrono::steady_clock;
  static std::map<Shape, double> floors;
  const auto shape = static_cast<Shape>(state.range(0));
  const teskarlt::Roofs roofs = RoofsOf(state.range(1), shape);
  const Clock::time_point start = Clock::now();
  std::int64_t runs = 0;
  for (; state.KeepRunning(); ++runs)
    benchmark::DoNotOptimize(CoverOfWindows(roofs, state.range(1), shape));
  const double seconds =
      std::chrono::duration<double>(Clock::now() - start).count() / static_cast<double>(runs);
  state.counters["ratio"] = seconds / floors.try_emplace(shape, seconds).first->second;
}

void FindSurfaces(benchmark::State& state) {
  const auto shape = static_cast<Shape>(state.range(0));
  while (state.KeepRunning())
    benchmark::DoNotOptimize(RoofsOf(state.range(1), shape));
}

BENCHMARK(RoofsOfWindows)
    ->Args({HOUSES, FEW})
    ->Args({HOUSES, MANY})
    ->Args({LARGE_ROOF, FEW})
    ->Args({LARGE_ROOF, MANY})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(FindSurfaces)->Args({HOUSES, MANY})->Args({LARGE_ROOF, MANY})->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
