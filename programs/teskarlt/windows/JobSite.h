// JobSite.h - a drawing on which one job after the other works, with what each needs to know of it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>

#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/Answers.h"
#include "teskarlt/windows/WindowChoice.h"
#include "teskarlt/windows/WindowMarks.h"
#include "teskarlt/windows/WorkedDrawing.h"

namespace teskarlt {

// Windows are read once. Jobs tell what they did, so that places and numbers are those of the moment; a job
// on a window that another one drew has the drawing read anew, as if it had been saved and loaded.
class JobSite {
 public:
  // Looks at the edits before they are taken over, and may throw.
  using Prove = std::function<void(const dxf::Document& drawing)>;

  // Module, drawing and unit must outlive the object.
  JobSite(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit, Prove prove = {});
  JobSite(const JobSite&) = delete;
  JobSite& operator=(const JobSite&) = delete;

  const WindowModule& Module() const { return module_; }
  // As it was read last; good until ReadFor.
  const WorkedDrawing& Work() const { return *work_; }
  // Of the windows that stand in the drawing now.
  const WindowNumbers& Numbers() const { return numbers_; }
  const WindowFit& Fit() const { return *fit_; }
  CatalogueShelf& Shelf() { return shelf_; }
  // Of the windows that stand in the drawing now, and of those that a job is drawing.
  WindowMarks& Marks() { return marks_; }

  // Reads the drawing anew where the selection may mean a window that is not as Work() has it.
  void ReadFor(const WindowSelection& selection);

  // What a job did to a window; outlines in working units, none where its entities show none.
  void NoteInserted(std::int32_t number, const Outline& outline, const std::string& mark);
  void NoteMoved(std::int32_t number, const std::optional<Outline>& from, const std::optional<Outline>& to);
  void NoteRedrawn(std::int32_t number) { changed_.insert(number); }
  void NoteErased(std::int32_t number, const std::optional<Outline>& outline, const std::string& mark);

  // Leaves with the drawing what later programs need to know of erased windows. Once, before it is saved.
  void Finish();

 private:
  bool IsChanged(const WindowSelection& selection) const;
  void Read();

  const WindowModule& module_;
  dxf::Document& drawing_;
  const DrawingUnit& unit_;
  Prove prove_;
  std::optional<WorkedDrawing> work_;
  WindowNumbers numbers_;
  WindowMarks marks_;
  std::optional<WindowFit> fit_;
  CatalogueShelf shelf_;
  std::set<std::int32_t> changed_;  // numbers of windows that are not as work_ has them
  std::int32_t kept_ = 0;           // the number of an erased window that is to be kept taken; 0: none
};

}  // namespace teskarlt
