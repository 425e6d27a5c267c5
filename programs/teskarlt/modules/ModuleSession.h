// ModuleSession.h - one command of the module as its host sees it: what the dialog asks for, and what comes
// back.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "geometry/Vec3.h"
#include "inc/DialogServices.h"
#include "inc/HostFunctionTable.h"
#include "inc/WindowParams.h"
#include "teskarlt/drawing/PlanIndex.h"
#include "teskarlt/drawing/WindowNumbers.h"
#include "teskarlt/drawing/WindowParts.h"
#include "teskarlt/drawing/WorkingUnit.h"
#include "teskarlt/dxf/Document.h"

namespace teskarlt {

// Record fields, and the other names of DialogServices.h, to the user's texts.
using DialogAnswers = std::map<std::string, std::string, std::less<>>;

using FaceCorners = std::vector<geometry::Vec3>;  // in order around the face

// Gives the faces of a roof, within which a window must stay, that touch the area.
using FacesNear = std::function<std::vector<FaceCorners>(const PlanBox& area)>;

// Gives the mark of the window with the record that the dialog confirmed, UTF-8; empty for none. May throw
// Error, which refuses the window.
using MarkOfRecord = std::function<std::string(const brevanta::WindowParams& record)>;

// What the user wants, as the dialog asks for it. Coordinates are those of the drawing in working units;
// texts are as they stand in its file.
struct WindowRequest {
  WorkingUnit unit;  // of all lengths and points here; what is drawn is taken out of it
  DialogAnswers answers;
  std::optional<std::array<double, 2>> point;    // x and y in the plan
  FaceCorners roof;                              // a face, or three points, that span its plane
  FacesNear facesNear;                           // of the roof; null where it has no bounds
  const WindowNumbers* numbersInUse = nullptr;   // of the windows in the drawing; null: none
  MarkOfRecord markOf;                           // null: the window gets no mark
  std::optional<brevanta::WindowParams> edited;  // the window that is changed
  std::vector<const dxf::Entity*> replaced;      // its entities, or those of one to erase
  std::map<PartRole, const dxf::Entity*> parts;  // those that are drawn anew in their places
};

struct DialogReport {
  std::int32_t gravity;  // REPORT_NOTE and so on
  std::string text;      // UTF-8
};

// What a command left behind.
struct CommandOutcome {
  bool isDialogRun = false;                         // it asked for something
  std::optional<brevanta::WindowParams> confirmed;  // the record that the dialog confirmed
  std::string mark;                                 // of the window, UTF-8
  std::size_t faces = 0;                            // entities of finished batches
  std::size_t lines = 0;
  std::size_t erased = 0;        // entities of the window that was changed or erased
  std::set<std::string> layers;  // of the new entities, UTF-8
  std::vector<DialogReport> reports;
  std::string failure;  // why an entity was refused; empty when none was
};

// Lends itself to the host's exports while it lives; one at a time. Entities go into the drawing at once;
// whoever runs the command takes them back when it fails (dxf::Document::Rollback). What goes wrong in the
// calls of the modules besides refused entities is kept for whoever runs the command (KeptException.h).
class ModuleSession {
 public:
  ModuleSession(dxf::Document& drawing, const WindowRequest& request);
  ~ModuleSession();
  ModuleSession(const ModuleSession&) = delete;
  ModuleSession& operator=(const ModuleSession&) = delete;

  brevanta::DialogServices* Services() { return &services_; }
  const CommandOutcome& Outcome() const { return outcome_; }

  // The session that lives now, or null.
  static ModuleSession* Current();

  // What the host's function table offers. A list that no drawing can hold is refused. The entities of a
  // batch count when it ends with `keep`, else they are taken back.
  std::int32_t MakeEntity(const brevanta::ValueNode* list);
  void BeginBatch();
  void EndBatch(bool keep);

 private:
  friend struct ServiceCalls;

  void AddEntity(const brevanta::ValueNode* list);
  void AddMark(std::vector<dxf::TypedTag>& tags) const;
  bool Redraw(std::span<const dxf::TypedTag> tags, bool isFace);

  dxf::Document& drawing_;
  const WindowRequest& request_;
  brevanta::DialogServices services_;
  std::vector<FaceCorners> foundFaces_;
  std::optional<dxf::EditMark> batchStart_;
  std::size_t batchFaces_ = 0;
  std::size_t batchLines_ = 0;
  CommandOutcome outcome_;
  // Of the confirmed window, in the order in which the module draws it; known when it begins to.
  std::vector<PartRole> faceRoles_;
  std::vector<PartRole> lineRoles_;
  std::string mark_;  // of that window, in the drawing's encoding
};

}  // namespace teskarlt
