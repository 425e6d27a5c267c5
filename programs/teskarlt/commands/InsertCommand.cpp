// InsertCommand.cpp - the subcommand "insert": inserts a roof window.
#include "teskarlt/commands/InsertCommand.h"

#include <memory>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "inc/RecordFields.h"
#include "teskarlt/commands/Report.h"
#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/drawing/RoofSearch.h"
#include "teskarlt/host/WindowModule.h"

namespace teskarlt {

namespace {

void RunInsert(const WindowOptions& options) {
  const WindowModule module;
  dxf::Document drawing = dxf::Document::Load(options.file);
  const DrawingUnit& unit = TakeUnit(options, drawing);
  const std::vector<RoofFace> faces = FindRoofFaces(drawing, RoofTolerance(unit));

  WindowRequest request;
  request.unitFactor = unit.perMetre;
  TakeAnswers(options, drawing, request);
  const RoofFace* face = TakeRoof(options, faces, RoofTolerance(unit), request);
  request.numbersInUse = NumbersOf(FindWindows(drawing, unit.perMetre));
  SaveAndReport(options, drawing, module.Insert(drawing, request), face);
}

void PrintFields() {
  Table table({"field", "meaning"});
  for (const brevanta::RecordField& field : brevanta::RECORD_FIELDS) {
    table.Add({std::string(field.name), std::string(field.meaning)});
  }
  table.Print();
}

}  // namespace

void AddInsertCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("insert", "Insert a roof window");
  const auto options = std::make_shared<WindowOptions>();
  command->add_option("FILE", options->file, "the drawing")->required()->type_name("");
  AddWindowOptions(*command, *options);
  command->add_flag_callback(
      "--fields",
      [] {
        PrintFields();
        throw CLI::Success();
      },
      "list the fields for --set");
  command->footer(
      "The window's anchor comes to lie exactly at the point. With --set lowerEdgeHeight=H or\n"
      "upperEdgeHeight=H it is moved up or down the slope until that edge lies at H metres.\n"
      "Examples:\n"
      "  teskarlt insert house.dxf --at 3000,2000 -o out.dxf\n"
      "  teskarlt insert house.dxf --at 3000,2000 --set width=1.14 --set length=1.18 --set openingCode=BI\n"
      "  teskarlt insert house.dxf --at 3000,2000 --window \"OL 94x140\" --catalogue examples/BREVANTA.LIB\n"
      "  teskarlt insert house.dxf --at 3000,2000 --roof-face 100 --set lowerEdgeHeight=4.2");
  command->callback([options] { RunInsert(*options); });
}

}  // namespace teskarlt
