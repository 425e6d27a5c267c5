// WindowEditor.h - changes a window of a drawing.
#pragma once

#include <vector>

#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/WindowOrder.h"
#include "teskarlt/windows/WorkedDrawing.h"
#include "window/RecordFields.h"

namespace teskarlt {

struct EditedWindow {
  PlacedWindow placed;
  // The fields that differ from WindowEditor::Reading, as ChangedFields gives them.
  std::vector<const brevanta::RecordField*> changes;
  bool isRewritten = false;  // else it stood there as ordered, and the drawing is what it was
};

class WindowEditor {
 public:
  // Reads the window with that number. Module and drawing must outlive the object. Throws Error, with what
  // there is, when there is no such window, several bear the number, it cannot be changed, or its layer is
  // locked or frozen and `isLockedToo` is false.
  WindowEditor(const WindowModule& module, dxf::Document& drawing, const DrawingUnit& unit, int number,
               bool isLockedToo);
  WindowEditor(const WindowEditor&) = delete;
  WindowEditor& operator=(const WindowEditor&) = delete;

  // The window as it stands in the drawing.
  const WindowReading& Reading() const { return reading_; }

  // Changes what the order says; the window keeps its number and, where the order names no place, its own.
  // Throws Error with the reason when it is refused; the drawing is what it was before then. Once, since the
  // window is another one then.
  EditedWindow Edit(const WindowOrder& order);

 private:
  // Whether entities and description stood there as `record` has them.
  bool StandsAs(const brevanta::WindowParams& record) const;

  const WindowModule& module_;
  const WorkedDrawing work_;
  const DrawnWindow& window_;
  WindowReading reading_;
};

}  // namespace teskarlt
