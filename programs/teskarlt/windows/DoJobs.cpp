// DoJobs.cpp - does the jobs of a file, one after the other.
#include "teskarlt/windows/DoJobs.h"

#include <utility>

#include "teskarlt/windows/WindowInserter.h"

namespace teskarlt {

namespace {

JobResult Change(JobSite& site, const JobOrder& order) {
  WindowEditor editor(site, order.selection, order.isLockedToo);
  std::vector<EditedWindow> edited = editor.Edit(order.window);
  return ChangedWindows{order.kind, editor.Windows(), std::move(edited)};
}

JobResult Do(JobSite& site, const JobOrder& order) {
  switch (order.kind) {
    case JobKind::Insert:
      return InsertedWindows{WindowInserter(site).InsertAll(order.window)};
    case JobKind::Edit:
    case JobKind::Move:
      return Change(site, order);
    case JobKind::Erase:
      break;
  }
  return EraseWindows(site, order.selection, order.isLockedToo);
}

JobResult DoJob(JobSite& site, const Job& job, const WindowOrder& defaults) {
  try {
    return Do(site, ParseJob(job.text, defaults));
  } catch (const Error& error) {
    return error;
  }
}

// Counts what became of each job.
class Counter {
 public:
  explicit Counter(JobTotals& totals) : totals_(totals) {}

  void operator()(const InsertedWindows& inserted) {
    ++totals_.done;
    totals_.inserted += inserted.windows.size();
    for (const PlacedWindow& window : inserted.windows) {
      totals_.faces += window.faces;
      totals_.lines += window.lines;
      AddLayers(window);
    }
  }

  void operator()(const ChangedWindows& changed) {
    ++totals_.done;
    for (const EditedWindow& window : changed.windows) {
      if (window.isRewritten) ++totals_.changed;
      AddLayers(window.placed);
    }
  }

  void operator()(const std::vector<ErasedWindow>& erased) {
    ++totals_.done;
    totals_.erased += erased.size();
  }

  void operator()(const Error&) { ++totals_.refused; }

 private:
  void AddLayers(const PlacedWindow& window) {
    totals_.layers.insert(window.layers.begin(), window.layers.end());
  }

  JobTotals& totals_;
};

}  // namespace

JobTotals DoJobs(JobSite& site, const std::vector<Job>& jobs, const WindowOrder& defaults,
                 const std::function<void(const Job& job, const JobResult& result)>& tell) {
  JobTotals totals;
  for (const Job& job : jobs) {
    const JobResult result = DoJob(site, job, defaults);
    std::visit(Counter(totals), result);
    tell(job, result);
  }
  site.Finish();
  return totals;
}

}  // namespace teskarlt
