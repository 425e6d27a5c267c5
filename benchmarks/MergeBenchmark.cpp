// MergeBenchmark.cpp - the library merge in process, beside
// a floor that moves the same bytes in the same run.
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_set>

#include <benchmark/benchmark.h>

#include "arx/merge/MergeLibraryFiles.h"
#include "inc/LibraryMerge.h"

namespace {

namespace fs = std::filesystem;
constexpr int SECTIONS = 100;

void WriteFile(const std::string& path, std::string_view text) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  std::fwrite(text.data(), 1, text.size(), file);
  std::fclose(file);
}

std::string ReadFile(const std::string& path) {
  std::string text(fs::file_size(path), '\0');
  std::FILE* file = std::fopen(path.c_str(), "rb");
  text.resize(std::fread(text.data(), 1, text.size(), file));
  std::fclose(file);
  return text;
}

// A catalogue of `items` items in SECTIONS sections; every third one has a key that all catalogues share.
std::string Catalogue(const std::string& name, int items) {
  std::string text = "# " + name + "\n";
  for (int section = 0; section < SECTIONS; ++section) {
    text += "VYROBCE " + std::to_string(section) + " maker of roof windows\n";
    for (int i = 0; i < items / SECTIONS; ++i) {
      text += (i % 3 == 0 ? "shared " : name + " ") + std::to_string(section) + "-" + std::to_string(i);
      text += "; 78; 118; 10; 8; D; roof window\n";
    }
    text += "\n";
  }
  return text;
}

// Reads both files, keeps every line once in a hash set
// and writes the lines of both: what no merge can avoid.
void Floor(const std::string& target, const std::string& source) {
  const std::string texts[] = {ReadFile(target), ReadFile(source)};
  std::unordered_set<std::string_view> lines;
  std::string merged;
  for (const std::string_view text : texts) {
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = text.find('\n', begin) + 1;
      const std::string_view line = text.substr(begin, end - begin);
      if (lines.insert(line).second) merged += line;
      begin = end;
    }
  }
  WriteFile(target, merged);
  benchmark::DoNotOptimize(merged.data());
}

class Files {
 public:
  explicit Files(int items)
      : folder_(fs::temp_directory_path() / "brevanta_merge_benchmark"),
        targetText_(Catalogue("target", items)) {
    fs::create_directories(folder_);
    WriteFile(Source(), Catalogue("source", items));
  }
  ~Files() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  std::string Target() const { return (folder_ / "BREVANTA.LIB").string(); }
  std::string Source() const { return (folder_ / "update.LIB").string(); }

  // Processor seconds of one run on a fresh target; the
  // clock on the wall depends on what else the machine does.
  template <typename Run>
  double Seconds(Run run) const {
    fs::remove(Target());
    WriteFile(Target(), targetText_);
    const std::clock_t begin = std::clock();
    run();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  }

 private:
  fs::path folder_;
  std::string targetText_;
};

// "vs_floor" is the merge's time as a multiple of the floor's; it stays level when the merge is linear.
void BM_Merge(benchmark::State& state) {
  const Files files(static_cast<int>(state.range(0)));
  double merge = 0;
  double floor = 0;
  for (auto step : state) {
    static_cast<void>(step);
    floor += files.Seconds([&] { Floor(files.Target(), files.Source()); });
    const double seconds = files.Seconds([&] {
      const auto result = brevanta::mergeLibraryFiles(nullptr, files.Source().c_str(), files.Target().c_str(),
                                                      brevanta::CATALOGUE_FOLDER_KIND);
      if (result != brevanta::MERGE_DONE) state.SkipWithError("the merge failed");
    });
    merge += seconds;
    state.SetIterationTime(seconds);
  }
  state.counters["vs_floor"] = merge / floor;
  state.SetItemsProcessed(state.iterations() * state.range(0) * 2);
}
BENCHMARK(BM_Merge)->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000)->UseManualTime()->Unit(
    benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
