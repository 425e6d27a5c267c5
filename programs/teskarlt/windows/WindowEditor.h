// WindowEditor.h - changes windows of a drawing.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "teskarlt/Error.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/JobSite.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/RoofChoice.h"
#include "teskarlt/windows/WindowChoice.h"
#include "teskarlt/windows/WindowOrder.h"
#include "window/RecordFields.h"

namespace teskarlt {

// A window that can be changed, as it stands in the drawing.
struct EditableWindow {
  const DrawnWindow* drawn;  // of the site
  WindowReading reading;
  std::optional<Outline> outline;  // as WindowFit knows it
};

struct EditedWindow {
  PlacedWindow placed;
  std::string markBefore;  // UTF-8
  // The fields that differ from EditableWindow::reading, as ChangedFields gives them.
  std::vector<const brevanta::RecordField*> changes;
  bool isRewritten = false;  // else it stood there as ordered, and the drawing is what it was
};

class WindowEditor {
 public:
  // Reads the selected windows. The site must outlive the object and read nothing anew meanwhile. Throws
  // Error when ChooseWindows does, when a window cannot be changed, or when its layer is locked or frozen and
  // `isLockedToo` is false.
  WindowEditor(JobSite& site, const WindowSelection& selection, bool isLockedToo);
  // The same with a site of its own. Module and drawing must outlive the object.
  WindowEditor(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit,
               const WindowSelection& selection, bool isLockedToo);
  WindowEditor(const WindowEditor&) = delete;
  WindowEditor& operator=(const WindowEditor&) = delete;

  // The selected windows by their numbers.
  const std::vector<EditableWindow>& Windows() const { return windows_; }

  // Changes what the order says of all the windows, and gives them in the order of Windows(). Each keeps its
  // number and, where the order names no place, its own. Throws Error with the reason, and with the number
  // where there are several windows, when one of them is refused; the drawing is what it was before then.
  // Once, since the windows are others then.
  std::vector<EditedWindow> Edit(const WindowOrder& order);

 private:
  const WorkedDrawing& Work() const { return site_.Work(); }
  void Choose(const WindowSelection& selection, bool isLockedToo);
  void EditAll(const WindowOrder& order, std::vector<EditedWindow>& edited);
  EditedWindow EditOne(const EditableWindow& window, const WindowOrder& order);
  CommandOutcome EditOnto(const RoofChoice& roof, const WindowRequest& request, LengthStyle lengths);
  // Puts the point for which the order's words stand into the request.
  void PutPlace(const WindowOrder& order, const RoofChoice& roof, WindowRequest& request);
  // Looks whether the edited windows fit, and tells the site where they stand now. Throws Error for those
  // that do not where the order is strict; they stand where they stood then.
  void Fit(std::vector<EditedWindow>& edited, const WindowOrder& order);
  // Throws Error for windows with misfits.
  void RefuseMisfitting(const std::vector<EditedWindow>& edited) const;
  // The same error, with the window's number where there are several windows.
  Error Naming(const EditableWindow& window, const Error& error) const;

  std::unique_ptr<JobSite> own_;
  JobSite& site_;
  std::vector<EditableWindow> windows_;
};

}  // namespace teskarlt
