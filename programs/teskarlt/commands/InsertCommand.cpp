// InsertCommand.cpp - the subcommand "insert": inserts a roof window.
#include <memory>
#include <vector>

#include "teskarlt/commands/JobsRun.h"
#include "teskarlt/commands/RowOptions.h"
#include "teskarlt/commands/Subcommands.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/commands/WindowWords.h"
#include "teskarlt/terminal/Report.h"
#include "teskarlt/windows/WindowInserter.h"
#include "window/RecordFields.h"

namespace teskarlt {

namespace {

void RunInsert(WindowOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.target.File());
  const DrawingUnit& unit = ChooseUnitAndWarn(drawing, options.units);
  WindowInserter inserter(module, drawing, unit);
  const WindowOrder order = OrderOf(options);
  const std::vector<PlacedWindow> windows = inserter.InsertAll(order);
  if (order.row.count) {
    SaveAndTell(options, drawing, windows);
  } else {
    SaveAndTell(options, drawing, windows.front());
  }
}

void PrintFields() {
  Table table({"field", "meaning"});
  for (const brevanta::RecordField& field : brevanta::RECORD_FIELDS) {
    table.Add({std::string(field.name), std::string(field.meaning)});
  }
  table.Print();
}

}  // namespace

void AddInsertCommand(OptionParser& parser) {
  Subcommand command = parser.Add("insert", "Insert a roof window");
  const auto options = std::make_shared<WindowOptions>();
  const auto jobs = std::make_shared<JobsOptions>();
  options->target.AddFile(command);
  const Option at = AddWindowOptions(command, *options);
  AddRowOptions(command, options->row);
  const Option jobsFile =
      command
          .Value("--jobs", jobs->file,
                 "many windows: a JSON object a line, a job with members of the options' names, as teskarlt "
                 "apply --help shows them; - reads standard input")
          .Named("FILE")
          .NotEmpty()
          .Excludes(at);
  command.Flag("--keep-going", jobs->keepGoing, "write the other windows when some jobs are refused")
      .Needs(jobsFile);
  command.FlagInstead("--fields", PrintFields, "list the fields for --set");
  command.Footer(
      "The window's anchor comes to lie exactly at the point. What it is, roofBuildUp says:\n"
      "  0  a point of the opening's lower edge, on the second plane, which is the underside of the layer\n"
      "  1  a point of the frame's lower edge\n"
      "  2  a point of the roof plane, slopeOffset below the frame's lower edge\n"
      "With --set lowerEdgeHeight=H the window is moved up or down the slope until its anchor lies at H\n"
      "metres, with upperEdgeHeight=H until the upper edge of its opening does. Where the frame then lies "
      "is\n"
      "told with the answer.\n"
      "Examples:\n"
      "  teskarlt insert house.dxf --at 3000,2000 -o out.dxf\n"
      "  teskarlt insert house.dxf --at 3000,2000 --set width=1.14 --set length=1.18 --set openingCode=BI\n"
      "  teskarlt insert house.dxf --at 3000,2000 --window \"OL 94x140\" --catalogue examples/BREVANTA.LIB\n"
      "  teskarlt insert house.dxf --at 3000,2000 --on R1 --set lowerEdgeHeight=4.2\n"
      "  teskarlt insert house.dxf --at 2500,1200 --row 3 --spacing 1.8\n"
      "  teskarlt insert house.dxf --on R2 --from-eaves 1.2 --centre\n"
      "  teskarlt insert house.dxf --jobs windows.jsonl --set frameWidth=0.1\n"
      "A line of windows.jsonl; options beside --jobs hold where a line does not say otherwise:\n"
      "  {\"at\": [3000, 2000], \"set\": {\"width\": 0.78, \"openingCode\": \"D\"}}");
  command.Run([options, jobs] {
    if (jobs->file.empty()) {
      RunInsert(*options);
    } else {
      RunJobs(*options, *jobs);
    }
  });
}

}  // namespace teskarlt
