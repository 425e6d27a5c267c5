// PreviewBenchmark.cpp - pictures of few and of many faces, each as the ratio of its time to that of a
// picture of the few: faces that lie side by side, as a town's, and faces over one another.
#include <chrono>
#include <map>
#include <utility>

#include <benchmark/benchmark.h>

#include "teskarlt/preview/Png.h"
#include "teskarlt/preview/Raster.h"
#include "teskarlt/preview/Svg.h"

namespace {

namespace preview = teskarlt::preview;
using preview::Vec3;

constexpr std::int64_t IN_A_ROW = 100;
constexpr int WIDTH = 1600;  // pixels, as the program's own choice

enum Shape : std::int64_t { SIDE_BY_SIDE, STACKED };

// A leaning square of a size and a place.
preview::Surface FaceAt(const Vec3& o, double size) {
  return {{o,
           {o.x + size, o.y, o.z},
           {o.x + size, o.y + size, o.z + size / 2},
           {o.x, o.y + size, o.z + size / 2}},
          0,
          0,
          {200, 90, 60},
          false,
          preview::NO_WINDOW};
}

preview::Scene SceneOf(Shape shape, std::int64_t count) {
  preview::Scene scene;
  scene.layers = {{"ROOF", {200, 90, 60}}};
  for (std::int64_t i = 0; i < count; ++i) {
    const std::int64_t row = i / IN_A_ROW;
    const std::int64_t column = i % IN_A_ROW;
    const preview::Surface face =
        shape == STACKED ? FaceAt({0, 0, static_cast<double>(i)}, 1000)
                         : FaceAt({static_cast<double>(12 * column), static_cast<double>(12 * row), 0}, 10);
    for (const Vec3& corner : face.corners)
      scene.box.Add(corner);
    scene.surfaces.push_back(face);
  }
  return scene;
}

const preview::PictureOptions OPTIONS = {preview::FindView("iso"), WIDTH, {}};

void CountRatio(benchmark::State& state, std::int64_t kind, double seconds) {
  static std::map<std::pair<std::int64_t, std::int64_t>, double> floors;
  state.counters["ratio"] = seconds / floors.try_emplace({kind, state.range(0)}, seconds).first->second;
}

template <typename Draw>
void Time(benchmark::State& state, std::int64_t kind, const Draw& draw) {
  using Clock = std::chrono::steady_clock;
  const preview::Scene scene = SceneOf(static_cast<Shape>(state.range(0)), state.range(1));
  const Clock::time_point start = Clock::now();
  std::int64_t runs = 0;
  for (; state.KeepRunning(); ++runs)
    benchmark::DoNotOptimize(draw(scene));
  CountRatio(state, kind,
             std::chrono::duration<double>(Clock::now() - start).count() / static_cast<double>(runs));
}

void PngOfFaces(benchmark::State& state) {
  Time(state, 0, [](const preview::Scene& scene) { return preview::Png(preview::Render(scene, OPTIONS)); });
}

void SvgOfFaces(benchmark::State& state) {
  Time(state, 1, [](const preview::Scene& scene) { return preview::Svg(scene, OPTIONS); });
}

void FewAndMany(benchmark::internal::Benchmark* pictures) {
  pictures->Args({SIDE_BY_SIDE, 1000})
      ->Args({SIDE_BY_SIDE, 10000})
      ->Args({STACKED, 100})
      ->Args({STACKED, 1000});
  pictures->Unit(benchmark::kMillisecond);
}

BENCHMARK(PngOfFaces)->Apply(FewAndMany);
BENCHMARK(SvgOfFaces)->Apply(FewAndMany);

}  // namespace

BENCHMARK_MAIN();
