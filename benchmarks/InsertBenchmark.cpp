// InsertBenchmark.cpp - one window from its record to the lists of its entities, beside a floor that only
// allocates and releases as many nodes and texts in the same run. The host does nothing with the lists.
#include <cstddef>
#include <vector>

#include <benchmark/benchmark.h>

#include "arx/BvMakeWindow/BvMakeWindow.h"
#include "arx/exports/DefaultParams.h"
#include "inc/HostFunctionTable.h"
#include "inc/ValueList.h"
#include "platform/Heap.h"

namespace {

using brevanta::ValueNode;

std::size_t nodes = 0;
std::size_t texts = 0;

std::int32_t CountingHost(ValueNode* list, std::int32_t /*reserved*/) {
  for (; list != nullptr; list = list->next) {
    ++nodes;
    texts += brevanta::SameValueKind(brevanta::TypeCodeKind(list->typeCode), brevanta::KIND_TEXT) ? 1 : 0;
  }
  return 0;
}

std::int32_t NullHost(ValueNode* /*list*/, std::int32_t /*reserved*/) {
  return 0;
}

brevanta::WindowParams Window() {
  brevanta::WindowParams record{};
  brevanta::SetDefaultWindowParams(&record);
  record.placeByHeight = 0;
  record.markerValue = 1;
  record.roofPlanePoints[1] = {8000, 0, 0};
  record.roofPlanePoints[2] = {8000, 5000, 3500};
  return record;
}

void MakeOne(brevanta::CbvMakeWindow& window, brevanta::MakeEntityFunction makeEntity) {
  brevanta::HostFunctionTable table{};
  table.entries[brevanta::ENTRY_MAKE_ENTITY] = reinterpret_cast<brevanta::HostFunction>(makeEntity);
  window.hostTable = &table;
  brevanta::WindowParams record = Window();
  window.Make(&record, 1000);
  window.hostTable = nullptr;
}

void InsertWindow(benchmark::State& state) {
  brevanta::CbvMakeWindow window;
  while (state.KeepRunning())
    MakeOne(window, NullHost);
}

// As many blocks of the same sizes, taken and given back in the same order.
void AllocationFloor(benchmark::State& state) {
  constexpr std::size_t textSize = 8;
  brevanta::CbvMakeWindow window;
  nodes = texts = 0;
  MakeOne(window, CountingHost);
  std::vector<void*> blocks(nodes + texts);
  while (state.KeepRunning()) {
    for (std::size_t i = 0; i < blocks.size(); ++i)
      blocks[i] = HeapAllocate(i < nodes ? sizeof(ValueNode) : textSize);
    benchmark::DoNotOptimize(blocks.data());
    for (void* block : blocks)
      HeapRelease(block);
  }
  state.counters["nodes"] = static_cast<double>(nodes);
  state.counters["texts"] = static_cast<double>(texts);
}

BENCHMARK(AllocationFloor);
BENCHMARK(InsertWindow);

}  // namespace

BENCHMARK_MAIN();
