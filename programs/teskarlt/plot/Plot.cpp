// Plot.cpp - a plan to scale on paper.
#include "teskarlt/plot/Plot.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "geometry/Vectors.h"
#include "teskarlt/Error.h"
#include "teskarlt/plot/Canvas.h"
#include "teskarlt/plot/DrawLabels.h"
#include "teskarlt/plot/Labels.h"
#include "teskarlt/plot/Layout.h"
#include "teskarlt/plot/PlanPicture.h"
#include "teskarlt/plot/ScheduleTable.h"
#include "teskarlt/plot/TitleBlock.h"

namespace teskarlt::plot {

namespace {

std::string FileName(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

class Plotter {
 public:
  Plotter(const PlotContent& content, const PlotOptions& options)
      : scene_(*content.scene),
        options_(options),
        schedule_(*content.schedule),
        frame_(preview::PlanFrameOf(scene_, options.zoom)) {
    notes_ = *content.notes;
    std::erase_if(notes_.windows, [&](const PlanWindow& window) { return !IsShown(window); });
    for (PlanRoof& roof : notes_.roofs)
      roof.isShown = IsShown(roof);
  }

  Plot Run() {
    plot_.paper = options_.paper.name;
    plot_.scale = options_.scale ? AskedScale() : LargestScale();
    const ScheduleTable table(schedule_);
    const Size tableSize = schedule_.rows.empty() ? Size{} : Size{table.Width(), table.Height()};
    layout_ = LayOut(SizeAt(plot_.scale), tableSize, options_.paper);
    plot_.hasSchedule = layout_.hasTable || schedule_.rows.empty();
    Canvas canvas(options_.paper, Title());
    DrawPlanWithLabels(canvas);
    if (layout_.hasTable) table.Draw(layout_.table, canvas);
    DrawFrame(canvas);
    plot_.text = std::move(canvas).Finished();
    return std::move(plot_);
  }

 private:
  // Of the plan on paper.
  Size SizeAt(int scale) const {
    const double perUnit = 1000 / scene_.perMetre / scale;
    return {frame_.Width() * perUnit, frame_.Height() * perUnit};
  }

  bool IsShown(const PlanWindow& window) const;
  bool IsShown(const PlanRoof& roof) const;
  int AskedScale() const;
  int LargestScale() const;
  std::string Proposals(int scale) const;
  std::string Title() const;
  PlanMap Map() const;
  void DrawPlanWithLabels(Canvas& canvas);
  void DrawFrame(Canvas& canvas) const;

  const preview::Scene& scene_;
  const PlotOptions& options_;
  const schedule::Sheet& schedule_;
  preview::Frame frame_;
  PlanNotes notes_;  // what of them is to be seen
  Layout layout_;
  Plot plot_;
};

// Whether the scene shows something of it, with its middle within the frame.
bool Plotter::IsShown(const PlanWindow& window) const {
  const bool isSeen = std::any_of(scene_.windows.begin(), scene_.windows.end(), [&](const auto& shown) {
    return shown.number == window.number && !shown.box.IsEmpty();
  });
  const geometry::Vec3 middle = geometry::Between(window.frame[0], window.frame[2], 0.5);
  const double x = middle.x * scene_.perMetre;
  const double y = middle.y * scene_.perMetre;
  return isSeen && x >= frame_.left && x <= frame_.right && y >= frame_.bottom && y <= frame_.top;
}

bool Plotter::IsShown(const PlanRoof& roof) const {
  return std::any_of(scene_.roofs.begin(), scene_.roofs.end(),
                     [&](const preview::SceneRoof& shown) { return shown.name == roof.name; });
}

int Plotter::LargestScale() const {
  for (const int scale : UsualScales())
    if (Fits(SizeAt(scale), options_.paper)) return scale;
  throw Error(fmt::format("{}: the plan fits at no usual scale on {}; say one with --scale", scene_.file,
                          options_.paper.name));
}

int Plotter::AskedScale() const {
  const int scale = *options_.scale;
  const Size plan = SizeAt(scale);
  if (Fits(plan, options_.paper)) return scale;
  const PaperBox room = RoomForPlan(options_.paper);
  throw Error(fmt::format(
      "{}: at 1:{} the plan takes {:.0f} x {:.0f} mm, and {} has room for {:.0f} x {:.0f} mm{}", scene_.file,
      scale, plan.width, plan.height, options_.paper.name, room.Width(), room.Height(), Proposals(scale)));
}

// Which scale would do on the paper, and which paper at the scale; empty for neither.
std::string Plotter::Proposals(int scale) const {
  std::string text;
  const auto scales = UsualScales();
  const auto usual = std::find_if(scales.begin(), scales.end(),
                                  [&](int each) { return Fits(SizeAt(each), options_.paper); });
  if (usual != scales.end()) text += fmt::format("; 1:{} fits on it", *usual);
  const auto papers = UsualPapers(options_.isUpright);
  const auto paper = std::find_if(papers.begin(), papers.end(),
                                  [&](const Paper& each) { return Fits(SizeAt(scale), each); });
  if (paper != papers.end()) text += fmt::format("; 1:{} fits on {}", scale, paper->name);
  return text;
}

std::string Plotter::Title() const {
  if (!options_.title.empty()) return options_.title;
  const preview::Zoom& zoom = options_.zoom;
  if (zoom.window) return fmt::format("Plan of window {}", scene_.windows[*zoom.window].number);
  return zoom.roof ? fmt::format("Plan of roof {}", scene_.roofs[*zoom.roof].name) : "Roof plan";
}

// In the middle of its room.
PlanMap Plotter::Map() const {
  return {static_cast<double>(plot_.scale),
          {(frame_.left + frame_.right) / 2 / scene_.perMetre,
           (frame_.bottom + frame_.top) / 2 / scene_.perMetre, 0},
          layout_.plan.Middle()};
}

void Plotter::DrawPlanWithLabels(Canvas& canvas) {
  const PlanPicture picture{&scene_, frame_, Map()};
  LabelGround ground{&notes_, picture.map, Grown(layout_.plan, -1), {}, options_.lengths};
  const Size size = SizeAt(plot_.scale);
  if (options_.zoom.window || options_.zoom.roof)
    ground.area = BoxOf(QuadAround(layout_.plan.Middle(), {1, 0}, size));
  ground.footprints = FootprintsOf(notes_.windows, picture);
  ground.texts = TextRoomOf(picture);
  DrawPlan(picture, ground.footprints, canvas);
  const PlacedLabels labels = PlaceLabels(ground);
  DrawLabels(labels, canvas);
  plot_.labelsWithoutRoom = labels.withoutRoom;
}

void Plotter::DrawFrame(Canvas& canvas) const {
  TitleTexts texts{options_.project, Title(), FileName(scene_.file), options_.paper.name, options_.date};
  texts.drawing += fmt::format(" ({})", scene_.unit);
  DrawLegend(layout_.legend, plot_.scale, options_.lengths, canvas);
  DrawTitleBlock(texts, layout_.title, plot_.scale, canvas);
  canvas.Box(layout_.frame, R"( fill="none" stroke="#000000" stroke-width="0.7")");
}

}  // namespace

Plot PlotOf(const PlotContent& content, const PlotOptions& options) {
  return Plotter(content, options).Run();
}

}  // namespace teskarlt::plot
