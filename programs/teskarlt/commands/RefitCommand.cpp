// RefitCommand.cpp - the subcommand "refit": puts windows back onto roofs that have changed.
#include <algorithm>
#include <cmath>
#include <memory>
#include <set>

#include <fmt/format.h>

#include "geometry/Matrix4.h"
#include "geometry/Trigonometry.h"
#include "teskarlt/Error.h"
#include "teskarlt/commands/ClosedLayers.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowChoice.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/drawing/WindowShape.h"
#include "teskarlt/modules/WindowModule.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Report.h"

namespace teskarlt {

namespace {

using brevanta::RecordPoint;
using brevanta::WindowParams;
constexpr const char* KEEP_PLAN = "plan";
constexpr const char* KEEP_HEIGHT = "height";

struct RefitOptions {
  WindowOptions window;  // the file, its unit and where the answer goes
  std::vector<int> numbers;
  std::string keep = KEEP_PLAN;
  bool isLockedToo = false;
  bool keepGoing = false;
};

// A window that was put onto another face.
struct Refitted {
  WindowParams before;
  WindowParams after;
  std::string face;
  std::vector<std::string> misfits;  // as WindowFit tells them
};

struct Problem {
  int number;
  std::string message;
};

struct RefitReport {
  std::vector<Refitted> refitted;
  std::vector<Problem> problems;
  std::size_t fitting = 0;
};

// A floor is no roof for a window that had a pitch, nor is a roof that falls the other way.
bool CanFollow(const RoofFace& face, const geometry::Vec3& normal) {
  constexpr double FLAT = 1.0;  // degrees
  if (std::hypot(normal.x, normal.y) <= geometry::Sine(geometry::DegToRad(FLAT))) return true;
  return Pitch(face) > FLAT && face.normal.x * normal.x + face.normal.y * normal.y > 0.0;
}

// The face over the window's place that is nearest to it in height, of those that a roof with that normal can
// have become; null when there is none.
const RoofFace* FaceOver(const RecordPoint& place, const geometry::Vec3& normal,
                         const std::vector<RoofFace>& faces) {
  const RoofFace* nearest = nullptr;
  double least = 0.0;
  for (const RoofFace& face : faces) {
    const std::optional<double> height = HeightOver(face, place.x, place.y);
    if (!height || !CanFollow(face, normal)) continue;
    const double distance = std::abs(*height - place.z);
    if (nearest != nullptr && distance >= least) continue;
    nearest = &face;
    least = distance;
  }
  return nearest;
}

class Refitter {
 public:
  explicit Refitter(const RefitOptions& options)
      : options_(options),
        drawing_(dxf::Document::Load(options.window.file)),
        unit_(TakeUnit(options.window, drawing_)),
        faces_(FindRoofFaces(drawing_, RoofTolerance(unit_))),
        windows_(FindWindows(drawing_, unit_.perMetre)),
        numbers_(NumbersOf(windows_)) {}

  RefitReport Run() {
    RefitReport report;
    for (const DrawnWindow* const window : Chosen()) {
      try {
        Refit(*window, report);
      } catch (const Error& error) {
        report.problems.push_back({window->number, error.what()});
      }
    }
    TakeMisfits(report);
    return report;
  }

  const dxf::Document& Drawing() const { return drawing_; }

 private:
  std::vector<const DrawnWindow*> Chosen() const {
    std::vector<const DrawnWindow*> chosen;
    if (options_.numbers.empty()) {
      for (const DrawnWindow& window : windows_)
        chosen.push_back(&window);
    }
    for (const int number : std::set<int>(options_.numbers.begin(), options_.numbers.end()))
      chosen.push_back(&ChooseWindow(windows_, options_.window.file, number));
    return chosen;
  }

  void Refit(const DrawnWindow& window, RefitReport& report) {
    const WindowReading reading = ReadWindow(drawing_, window);
    if (!reading.obstacle.empty()) throw Error("it cannot be changed: " + reading.obstacle);
    const double tolerance = RoofTolerance(unit_);
    if (HasOwnSecondPlane(reading.params, tolerance)) {
      if (FaceUnder(reading.params, faces_, tolerance) == nullptr)
        throw Error("its roof was changed, and its second plane is not the roof's underside");
      ++report.fitting;
      return;
    }
    const WindowShape shape = ShapeOf(drawing_, window);
    const double covered = CoveredPart(shape.outline, faces_, tolerance);
    if (IsWhole(covered)) {
      ++report.fitting;
      return;
    }
    if (covered > 0.0) throw Error("a part of it lies outside its roof face; move it or make it smaller");
    const RoofFace* const face = FaceOver(reading.params.storedPoint, shape.Normal(), faces_);
    if (face == nullptr) throw Error("no roof face that falls its way lies over or under its place");
    ChooseWindow(windows_, options_.window.file, window.number);  // refuses copies
    RefuseClosedLayers(drawing_, window, options_.isLockedToo);
    const CommandOutcome outcome = module_.Edit(drawing_, RequestFor(window, reading, *face));
    report.refitted.push_back({reading.params, *outcome.confirmed, face->name, {}});
    moved_.insert(&window);
  }

  // What the windows overlap in their new places.
  void TakeMisfits(RefitReport& report) const {
    WindowFit fit(faces_, RoofTolerance(unit_));
    for (const DrawnWindow& window : windows_) {
      const std::optional<Outline> outline =
          moved_.contains(&window) ? std::nullopt : DrawnOutline(drawing_, window);
      if (outline) fit.Add(window.number, *outline);
    }
    for (Refitted& window : report.refitted) {
      const Outline outline = OutlineOf(window.after);
      window.misfits = fit.Misfits(window.after, outline);
      fit.Add(window.after.markerValue, outline);
    }
  }

  WindowRequest RequestFor(const DrawnWindow& window, const WindowReading& reading,
                           const RoofFace& face) const {
    WindowRequest request;
    request.unitFactor = unit_.perMetre;
    request.edited = reading.params;
    request.replaced = window.entities;
    request.numbersInUse = &numbers_;
    request.point = {reading.params.storedPoint.x, reading.params.storedPoint.y};
    if (options_.keep == KEEP_HEIGHT)
      request.answers["lowerEdgeHeight"] = fmt::format("{}", reading.params.lowerEdgeHeight);
    BoundByFace(face, faces_, RoofTolerance(unit_), request);
    return request;
  }

  const RefitOptions& options_;
  const WindowModule module_;
  dxf::Document drawing_;
  const DrawingUnit& unit_;
  const std::vector<RoofFace> faces_;
  const std::vector<DrawnWindow> windows_;
  const WindowNumbers numbers_;
  std::set<const DrawnWindow*> moved_;
};

// Metres that the window's place moved in the plan, and up.
double Shift(const Refitted& window) {
  const RecordPoint& a = window.before.storedPoint;
  const RecordPoint& b = window.after.storedPoint;
  return std::hypot(b.x - a.x, b.y - a.y) / window.after.unitFactor;
}

double Rise(const Refitted& window) {
  return (window.after.storedPoint.z - window.before.storedPoint.z) / window.after.unitFactor;
}

Json ToJson(const Refitted& window) {
  Json json;
  json["number"] = window.after.markerValue;
  json["face"] = window.face;
  json["pitch"] = Json::Object({{"from", window.before.pitch}, {"to", window.after.pitch}});
  for (const auto& [name, params] : {std::pair{"from", &window.before}, std::pair{"to", &window.after}})
    json["place"][name] = Json::List({params->storedPoint.x, params->storedPoint.y, params->storedPoint.z});
  json["shift"] = Shift(window);
  json["rise"] = Rise(window);
  json["warnings"] = window.misfits;
  return json;
}

void PrintJsonReport(const RefitOptions& options, const RefitReport& report, bool isSaved) {
  Json json = Json::Object({{"version", JSON_VERSION}});
  json["windows"] = Json::List();
  for (const Refitted& window : report.refitted)
    json["windows"].Add(ToJson(window));
  json["fitting"] = report.fitting;
  json["problems"] = Json::List();
  for (const Problem& problem : report.problems)
    json["problems"].Add(Json::Object({{"number", problem.number}, {"message", problem.message}}));
  json["file"] = isSaved ? Json(TargetOf(options.window)) : Json(nullptr);
  json["dryRun"] = options.window.dryRun;
  PrintJson(json);
}

void PrintReport(const RefitOptions& options, const RefitReport& report, bool isSaved) {
  Table table({"number", "face", "pitch was", "pitch is", "shift m", "rise m"});
  for (const Refitted& window : report.refitted) {
    table.Add({std::to_string(window.after.markerValue), window.face,
               fmt::format("{:.2f}", window.before.pitch), fmt::format("{:.2f}", window.after.pitch),
               fmt::format("{:.3f}", Shift(window)), fmt::format("{:.3f}", Rise(window))});
  }
  if (!report.refitted.empty()) table.Print();
  const std::string what = isSaved                 ? "refitted; written to " + TargetOf(options.window)
                           : options.window.dryRun ? "would be refitted; nothing was written (dry run)"
                                                   : "could be refitted; nothing was written";
  const std::size_t count = report.refitted.size();
  if (count > 0) fmt::print("{} window{} {}.\n", count, count == 1 ? "" : "s", what);
  if (report.fitting > 0) {
    fmt::print("{} window{} fit{} as {}.\n", report.fitting, report.fitting == 1 ? "" : "s",
               report.fitting == 1 ? "s" : "", report.fitting == 1 ? "it is" : "they are");
  }
  if (count + report.fitting + report.problems.size() == 0)
    fmt::print("{} holds no roof window.\n", options.window.file);
}

void RunRefit(const RefitOptions& options) {
  Refitter refitter(options);
  const RefitReport report = refitter.Run();
  for (const Problem& problem : report.problems)
    fmt::print(stderr, "teskarlt: window {}: {}\n", problem.number, problem.message);
  for (const Refitted& window : report.refitted) {
    RefuseMisfits(options.window, window.misfits);
    WarnOfMisfits("", window.after.markerValue, window.misfits);
  }
  const bool isWanted = report.problems.empty() || options.keepGoing;
  const bool isChanged = !report.refitted.empty() || !options.window.output.empty();
  const bool isSaved = isWanted && isChanged && !options.window.dryRun;
  if (isSaved) refitter.Drawing().Save(TargetOf(options.window));
  (options.window.asJson ? PrintJsonReport : PrintReport)(options, report, isSaved);
  if (!report.problems.empty()) {
    throw Error(fmt::format("{} of the windows cannot be refitted{}", report.problems.size(),
                            isWanted ? "" : "; nothing was written"));
  }
}

}  // namespace

void AddRefitCommand(OptionParser& parser) {
  Subcommand command = parser.Add("refit", "Put windows back onto roofs that have changed");
  const auto options = std::make_shared<RefitOptions>();
  WindowOptions& window = options->window;
  command.Argument("FILE", window.file, "the drawing").Required();
  command.Arguments("NUMBER", options->numbers, "only these windows; without any, all");
  command
      .Value("--keep", options->keep,
             "what stays of a window's place: its point in the plan, or the height of its lower edge")
      .Named("plan|height")
      .OneOfListed({KEEP_PLAN, KEEP_HEIGHT})
      .ShowDefault();
  command.Flag("--keep-going", options->keepGoing, "write the others when some windows cannot be refitted");
  AddLockedOption(command, options->isLockedToo);
  command.Value("-o,--output", window.output, "the drawing to write; without it FILE is replaced")
      .Named("FILE")
      .NotEmpty();
  command.Value("--units", window.units, UNITS_HELP).Named("UNIT");
  command.Flag("--strict", window.isStrict, "refuse when a window would overlap another");
  command.Flag("--dry-run", window.dryRun, "say what would be done and write nothing");
  command.Flag("--json", window.asJson, JSON_HELP);
  command.Footer(
      "A window whose roof face was moved or has another pitch since is inserted again on the face that now\n"
      "lies over or under its place, with its number and all its values; of several faces, on the one "
      "nearest\n"
      "in height. Windows that lie on a roof face stay as they are.\n"
      "Examples:\n"
      "  teskarlt refit house.dxf --dry-run\n"
      "  teskarlt refit house.dxf 3 4 --keep height");
  command.Run([options] { RunRefit(*options); });
}

}  // namespace teskarlt
