// KernelBenchmark.cpp - timings of the kernel's hot routines as ratios to a floor measured in the same run.
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>

#include <benchmark/benchmark.h>

#include "geometry/Matrix4.h"
#include "geometry/RoofPlane.h"
#include "geometry/Trigonometry.h"
#include "geometry/Vec3.h"

namespace {

using geometry::Matrix4;
using geometry::Vec3;

constexpr std::size_t COUNT = 256;  // enough that no branch is learnt by heart, small enough for the cache

double Spread(std::size_t i, int salt) {
  return std::fmod(static_cast<double>(i) * 0.6180339887 + salt * 0.7548776662, 1.0) * 10 + 0.5;
}

const std::array<Vec3, COUNT>& Vectors() {
  static const std::array<Vec3, COUNT> vectors = [] {
    std::array<Vec3, COUNT> made{};
    for (std::size_t i = 0; i < COUNT; ++i)
      made[i] = {Spread(i, 1), Spread(i, 2), Spread(i, 3)};
    return made;
  }();
  return vectors;
}

const std::array<Matrix4, COUNT>& Matrices() {
  static const std::array<Matrix4, COUNT> matrices = [] {
    std::array<Matrix4, COUNT> made{};
    for (std::size_t i = 0; i < COUNT; ++i) {
      int salt = 0;
      for (auto& row : made[i].m) {
        for (double& element : row)
          element = Spread(i, ++salt);
      }
    }
    return made;
  }();
  return matrices;
}

// Calls the routine with a number that runs around the inputs.
template <class Routine>
void Run(benchmark::State& state, const Routine& routine) {
  std::size_t i = 0;
  for (auto _ : state)
    routine(i++ % (COUNT - 2));
}

// One root, one division, three products.
void NormaliseFloor(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    const Vec3& v = Vectors()[i];
    const double scale = 1.0 / std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    Vec3 unit{v.x * scale, v.y * scale, v.z * scale};
    benchmark::DoNotOptimize(unit);
  });
}

void NormaliseKernel(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    Vec3 unit{};
    benchmark::DoNotOptimize(geometry::VecNormalize(Vectors()[i], unit));
    benchmark::DoNotOptimize(unit);
  });
}

// Elimination without pivots, scales and checks: the 34 products and 6 divisions of any factorisation.
void LuFloor(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    Matrix4 a = Matrices()[i];
    for (int k = 0; k < 3; ++k) {
      const double reciprocal = 1.0 / a.m[k][k];
      for (int row = k + 1; row < 4; ++row) {
        const double factor = a.m[row][k] *= reciprocal;
        for (int column = k + 1; column < 4; ++column)
          a.m[row][column] -= factor * a.m[k][column];
      }
    }
    benchmark::DoNotOptimize(a);
  });
}

void LuKernel(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    Matrix4 a = Matrices()[i];
    std::int32_t index[4];
    double parity = 0.0;
    benchmark::DoNotOptimize(geometry::LuDecompose(a, index, parity));
    benchmark::DoNotOptimize(a);
  });
}

// The normal, and the frame's turn from the normal itself instead of from an angle.
void FitFloor(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    const Vec3& p1 = Vectors()[i];
    const Vec3& p2 = Vectors()[i + 1];
    const Vec3& p3 = Vectors()[i + 2];
    const Vec3 a{p1.x - p2.x, p1.y - p2.y, p1.z - p2.z};
    const Vec3 b{p2.x - p3.x, p2.y - p3.y, p2.z - p3.z};
    Vec3 n{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
    const double scale = (n.z < 0 ? -1.0 : 1.0) / std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
    n = {n.x * scale, n.y * scale, n.z * scale};
    const double across = 1.0 / std::sqrt(n.x * n.x + n.y * n.y);
    const double c = -n.y * across;
    const double s = -n.x * across;
    Matrix4 toLocal{
        {{c, -s, 0, s * p3.y - c * p3.x}, {s, c, 0, -s * p3.x - c * p3.y}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
    Matrix4 toWorld{{{c, s, 0, p3.x}, {-s, c, 0, p3.y}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
    benchmark::DoNotOptimize(n);
    benchmark::DoNotOptimize(toLocal);
    benchmark::DoNotOptimize(toWorld);
  });
}

// The five circular functions that a fit takes in extended precision, and nothing else.
void FitAnglesFloor(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    const Vec3& v = Vectors()[i];
    const double angle = geometry::ArcTangent2(v.x, v.y);
    double sum =
        geometry::Sine(angle) + geometry::Cosine(angle) + geometry::Sine(-angle) + geometry::Cosine(-angle);
    benchmark::DoNotOptimize(sum);
  });
}

void FitKernel(benchmark::State& state) {
  Run(state, [](std::size_t i) {
    benchmark::DoNotOptimize(geometry::FitRoofPlane(Vectors()[i], Vectors()[i + 1], Vectors()[i + 2], 1));
    benchmark::DoNotOptimize(geometry::roofPlane);
  });
}

BENCHMARK(NormaliseFloor);
BENCHMARK(NormaliseKernel);
BENCHMARK(LuFloor);
BENCHMARK(LuKernel);
BENCHMARK(FitFloor);
BENCHMARK(FitAnglesFloor);
BENCHMARK(FitKernel);

// The usual table, and below it how many times its floor each routine takes.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
      time_[run.benchmark_name()] = run.GetAdjustedCPUTime();
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    Print("NormaliseKernel", "NormaliseFloor");
    Print("LuKernel", "LuFloor");
    Print("FitKernel", "FitFloor");
    Print("FitKernel", "FitAnglesFloor");
  }

 private:
  void Print(const char* routine, const char* floor) {
    if (time_.contains(routine) && time_.contains(floor))
      std::printf("%s / %s: %.2f\n", routine, floor, time_[routine] / time_[floor]);
  }

  std::map<std::string, double> time_;
};

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  RatioReporter reporter;
  return benchmark::RunSpecifiedBenchmarks(&reporter) == 0 ? 1 : 0;
}
