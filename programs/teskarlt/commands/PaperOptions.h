// PaperOptions.h - the options of previews for plans to scale on paper, and the making of such plans.
#pragma once

#include <optional>
#include <string>

#include "teskarlt/drawing/Units.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/plot/Plot.h"
#include "teskarlt/preview/Scene.h"
#include "teskarlt/preview/View.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

struct PaperOptions {
  std::optional<int> scale;  // 50 for 1:50
  std::string paper;         // its name or size
  bool isUpright = false;
  std::string project;
  std::string title;
  std::string date;
  std::string lengths;

  // Whether a plan on paper is asked for.
  bool IsGiven() const { return scale.has_value() || !paper.empty(); }
};

// Adds the options to the command. They must outlive the parsing.
void AddPaperOptions(Subcommand& command, PaperOptions& options);

// Throws UsageError for a paper that there is not, and for options of plans on paper where none is asked for.
void RefuseUnusable(const PaperOptions& options);

// The plan of a drawing in that unit, of which the scene is what is to be seen, its roofs included. Tells
// notes of what found no room. Throws Error for a malformed drawing and for a plan that does not fit.
plot::Plot PlotOf(const dxf::Document& drawing, const DrawingUnit& unit, const preview::Scene& scene,
                  const preview::Zoom& zoom, const PaperOptions& options);

}  // namespace teskarlt
