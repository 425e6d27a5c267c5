// WindowOptions.h - what the command lines that insert and change a window have in common.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/drawing/RoofFace.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

struct WindowOptions {
  std::string file;
  std::string at;
  std::string roofFace;
  std::vector<std::string> roof;
  std::string window;
  std::string catalogue;
  std::vector<std::string> settings;
  std::string output;
  std::string units;
  bool isStrict = false;
  bool dryRun = false;
  bool asJson = false;
};

// Adds --at, which it gives, and all options behind it to the command. The options must outlive the parsing.
Option AddWindowOptions(Subcommand& command, WindowOptions& options);

// The drawing's unit, with a warning where the user's word contradicts the header; the drawing counts with
// it.
const DrawingUnit& TakeUnit(const WindowOptions& options, dxf::Document& drawing);

// Catalogues that were read, by the names that the user gave.
using Catalogues = std::map<std::string, Catalogue>;

// The values of the window and the picked point into the request. A catalogue that the options need is taken
// from `catalogues`, and read into them the first time. Throws Error, naming the option.
void TakeAnswers(const WindowOptions& options, const dxf::Document& drawing, Catalogues& catalogues,
                 WindowRequest& request);

// The roof of the request from the options and its point; the face that was chosen, null when the user gave
// points. `tolerance` is in drawing units; the result is one of `faces`.
const RoofFace* TakeRoof(const WindowOptions& options, const std::vector<RoofFace>& faces, double tolerance,
                         WindowRequest& request);

// Puts the face and those that continue its plane into the request.
void BoundByFace(const RoofFace& face, const std::vector<RoofFace>& faces, double tolerance,
                 WindowRequest& request);

// The window that came into the drawing, for programs; `face` is null where the user gave the plane.
Json WindowJson(const CommandOutcome& outcome, const RoofFace* face, const std::vector<std::string>& misfits);

// The file that is written.
const std::string& TargetOf(const WindowOptions& options);

// For programs: of the fields that are not as the description says, or not in it, where their values come
// from.
Json SourcesJson(const WindowReading& reading);

// What WindowFit tells of a window: with --strict throws Error for it.
void RefuseMisfits(const WindowOptions& options, const std::vector<std::string>& misfits);
// A line of warning for people; nothing when the window fits. `place` is that of its job with ": ", or empty.
void WarnOfMisfits(std::string_view place, std::int32_t number, const std::vector<std::string>& misfits);

// Saves the drawing, unless it is a dry run, and tells what became of the window; `edited` is what it was,
// null for a new one.
void SaveAndReport(const WindowOptions& options, const dxf::Document& drawing, const CommandOutcome& outcome,
                   const RoofFace* face, const std::vector<std::string>& misfits,
                   const WindowReading* edited = nullptr);

}  // namespace teskarlt
