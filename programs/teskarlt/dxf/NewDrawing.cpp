// NewDrawing.cpp - what a drawing must hold before anything is drawn, by version.
#include "teskarlt/dxf/NewDrawing.h"

#include <cstdint>
#include <string_view>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/tags/Codes.h"
#include "teskarlt/dxf/tags/Names.h"
#include "teskarlt/dxf/write/TableEntries.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {
namespace {

constexpr std::string_view LINE_END = "\n";

// Of the first view.
constexpr double VIEW_MILLIMETRES = 20000;  // its height
constexpr double VIEW_ASPECT = 1.5;         // width by height
constexpr double VIEW_LENS = 50;            // millimetres
constexpr int VIEW_SMOOTHNESS = 1000;       // of circles
constexpr int VIEW_UCS_ICON = 3;            // shown, at the origin

constexpr double TEXT_HEIGHT = 2.5;

// One after the other, from 1; the head of the file has to name the one behind the last.
class Skeleton {
 public:
  explicit Skeleton(const NewDrawingOptions& options)
      : options_(options), writer_(body_, LINE_END), hasObjects_(HasSubclassMarkers(options.version)) {}

  std::string Text();

 private:
  std::uint64_t NewHandle() { return hasObjects_ ? ++lastHandle_ : 0; }
  EntryHead NewHead(std::uint64_t owner) { return {options_.version, NewHandle(), owner}; }
  EntryHead BeginTable(std::string_view name, std::size_t count);
  void EndTable() { WriteTableEnd(writer_); }
  // An entry of a kind that no other file writes: type, handle, owner and markers.
  void BeginEntry(std::string_view type, std::string_view subclass, std::string_view name,
                  std::uint64_t owner);
  void BeginSection(std::string_view name);
  void EndSection() { writer_.Text(CODE_TYPE, TYPE_SECTION_END); }
  void Flat(int code, double x, double y);

  std::string Header() const;
  void WriteTables();
  void WriteViewport();
  void WriteStyle();
  void WriteDimensionStyle();
  void WriteEmptyTable(std::string_view name);
  void WriteBlockEntries();
  void WriteBlock(std::string_view name, std::uint64_t entry, bool isPaper);
  void WriteBlocks();
  void WriteObjects();

  const NewDrawingOptions& options_;
  std::string body_;
  TagWriter writer_;
  bool hasObjects_;
  std::uint64_t lastHandle_ = 0;
  std::uint64_t modelSpace_ = 0;
  std::uint64_t paperSpace_ = 0;
};

void Skeleton::BeginSection(std::string_view name) {
  writer_.Text(CODE_TYPE, TYPE_SECTION);
  writer_.Text(CODE_NAME, name);
}

EntryHead Skeleton::BeginTable(std::string_view name, std::size_t count) {
  const EntryHead head = NewHead(0);
  WriteTableBegin(writer_, name, head, count);
  return head;
}

void Skeleton::BeginEntry(std::string_view type, std::string_view subclass, std::string_view name,
                          std::uint64_t owner) {
  writer_.Text(CODE_TYPE, type);
  const std::uint64_t handle = NewHandle();
  if (hasObjects_) {
    writer_.Handle(type == TABLE_DIMENSION_STYLES ? CODE_DIMSTYLE_HANDLE : CODE_HANDLE, handle);
    writer_.Handle(CODE_OWNER, owner);
    writer_.Text(CODE_SUBCLASS, "AcDbSymbolTableRecord");
    writer_.Text(CODE_SUBCLASS, subclass);
  }
  writer_.Text(CODE_NAME, name);
  writer_.Integer(CODE_FLAGS, 0);
}

void Skeleton::Flat(int code, double x, double y) {
  writer_.Real(code, x);
  writer_.Real(code + Y_DISTANCE, y);
}

void Skeleton::WriteViewport() {
  const EntryHead table = BeginTable(TABLE_VIEWPORTS, 1);
  BeginEntry(TABLE_VIEWPORTS, "AcDbViewportTableRecord", hasObjects_ ? "*Active" : "*ACTIVE", table.handle);
  const double height = VIEW_MILLIMETRES / MillimetresPerUnit(options_.units, true);
  Flat(CODE_VPORT_LOWER_LEFT, 0, 0);
  Flat(CODE_VPORT_UPPER_RIGHT, 1, 1);
  Flat(CODE_VPORT_CENTRE, 0, 0);
  Flat(CODE_VPORT_SNAP_BASE, 0, 0);
  Flat(CODE_VPORT_SNAP_SPACING, 1, 1);
  Flat(CODE_VPORT_GRID_SPACING, 1, 1);
  writer_.Coordinates(CODE_VPORT_DIRECTION, {0, 0, 1});  // from above
  writer_.Coordinates(CODE_VPORT_TARGET, {0, 0, 0});
  writer_.Real(CODE_VPORT_HEIGHT, height);
  writer_.Real(CODE_VPORT_ASPECT, VIEW_ASPECT);
  writer_.Real(CODE_VPORT_LENS, VIEW_LENS);
  for (const int code :
       {CODE_VPORT_FRONT_CLIPPING, CODE_VPORT_BACK_CLIPPING, CODE_VPORT_SNAP_ANGLE, CODE_VPORT_TWIST})
    writer_.Real(code, 0);
  writer_.Integer(CODE_VPORT_MODE, 0);
  writer_.Integer(CODE_VPORT_SMOOTHNESS, VIEW_SMOOTHNESS);
  writer_.Integer(CODE_VPORT_FAST_ZOOM, 1);
  writer_.Integer(CODE_VPORT_UCS_ICON, VIEW_UCS_ICON);
  for (const int code : {CODE_VPORT_SNAP, CODE_VPORT_GRID, CODE_VPORT_SNAP_STYLE, CODE_VPORT_SNAP_PAIR})
    writer_.Integer(code, 0);
  EndTable();
}

void Skeleton::WriteStyle() {
  const EntryHead table = BeginTable(TABLE_TEXT_STYLES, 1);
  BeginEntry(TABLE_TEXT_STYLES, "AcDbTextStyleTableRecord", hasObjects_ ? DEFAULT_STYLE : "STANDARD",
             table.handle);
  writer_.Real(CODE_STYLE_HEIGHT, 0);  // each text has its own
  writer_.Real(CODE_STYLE_WIDTH, 1);
  writer_.Real(CODE_STYLE_SLANT, 0);
  writer_.Integer(CODE_STYLE_MIRRORING, 0);
  writer_.Real(CODE_STYLE_LAST_HEIGHT, TEXT_HEIGHT);
  writer_.Text(CODE_STYLE_FONT, "txt");
  writer_.Text(CODE_STYLE_BIG_FONT, "");
  EndTable();
}

void Skeleton::WriteDimensionStyle() {
  const EntryHead table = BeginTable(TABLE_DIMENSION_STYLES, hasObjects_ ? 1 : 0);
  if (hasObjects_) {
    writer_.Text(CODE_SUBCLASS, "AcDbDimStyleTable");
    writer_.Integer(CODE_DIMSTYLE_TABLE_COUNT, 0);
    BeginEntry(TABLE_DIMENSION_STYLES, "AcDbDimStyleTableRecord", DEFAULT_STYLE, table.handle);
  }
  EndTable();
}

void Skeleton::WriteEmptyTable(std::string_view name) {
  BeginTable(name, 0);
  EndTable();
}

void Skeleton::WriteBlockEntries() {
  const EntryHead table = BeginTable(TABLE_BLOCKS, 2);
  BeginEntry(TABLE_BLOCKS, "AcDbBlockTableRecord", BLOCK_MODEL_SPACE, table.handle);
  modelSpace_ = lastHandle_;
  BeginEntry(TABLE_BLOCKS, "AcDbBlockTableRecord", BLOCK_PAPER_SPACE, table.handle);
  paperSpace_ = lastHandle_;
  EndTable();
}

void Skeleton::WriteTables() {
  BeginSection(SECTION_TABLES);
  WriteViewport();
  const EntryHead linetypes = BeginTable(TABLE_LINETYPES, 1);
  if (hasObjects_) {
    WriteSolidLinetype(writer_, LINETYPE_BY_BLOCK, NewHead(linetypes.handle));
    WriteSolidLinetype(writer_, LINETYPE_BY_LAYER, NewHead(linetypes.handle));
  }
  WriteSolidLinetype(writer_, ContinuousLinetype(options_.version), NewHead(linetypes.handle));
  EndTable();
  const EntryHead layers = BeginTable(TABLE_LAYERS, 1);
  WriteLayer(writer_, DEFAULT_LAYER, NewHead(layers.handle));
  EndTable();
  WriteStyle();
  WriteEmptyTable(TABLE_VIEWS);
  WriteEmptyTable(TABLE_COORDINATE_SYSTEMS);
  const EntryHead applications = BeginTable(TABLE_APPLICATIONS, 1);
  WriteApplication(writer_, DEFAULT_APPLICATION, NewHead(applications.handle));
  EndTable();
  WriteDimensionStyle();
  if (hasObjects_) WriteBlockEntries();
  EndSection();
}

void Skeleton::WriteBlock(std::string_view name, std::uint64_t entry, bool isPaper) {
  const auto begin = [&](std::string_view type, std::string_view subclass) {
    writer_.Text(CODE_TYPE, type);
    writer_.Handle(CODE_HANDLE, NewHandle());
    writer_.Handle(CODE_OWNER, entry);
    writer_.Text(CODE_SUBCLASS, "AcDbEntity");
    if (isPaper) writer_.Integer(CODE_PAPER_SPACE, 1);
    writer_.Text(CODE_LAYER, DEFAULT_LAYER);
    writer_.Text(CODE_SUBCLASS, subclass);
  };
  begin(TYPE_BLOCK, "AcDbBlockBegin");
  writer_.Text(CODE_NAME, name);
  writer_.Integer(CODE_FLAGS, 0);
  writer_.Coordinates(CODE_BLOCK_BASE, {0, 0, 0});
  writer_.Text(CODE_BLOCK_SECOND_NAME, name);
  writer_.Text(CODE_BLOCK_PATH, "");
  begin(TYPE_BLOCK_END, "AcDbBlockEnd");
}

void Skeleton::WriteBlocks() {
  BeginSection(SECTION_BLOCKS);
  if (hasObjects_) {
    WriteBlock(BLOCK_MODEL_SPACE, modelSpace_, false);
    WriteBlock(BLOCK_PAPER_SPACE, paperSpace_, true);
  }
  EndSection();
}

void Skeleton::WriteObjects() {
  constexpr int KEEP_EXISTING = 1;
  const std::uint64_t root = NewHandle();
  const std::uint64_t groups = NewHandle();
  const auto beginDictionary = [&](std::uint64_t handle, std::uint64_t owner) {
    writer_.Text(CODE_TYPE, TYPE_DICTIONARY);
    writer_.Handle(CODE_HANDLE, handle);
    writer_.Handle(CODE_OWNER, owner);
    writer_.Text(CODE_SUBCLASS, "AcDbDictionary");
    writer_.Integer(CODE_DUPLICATES, KEEP_EXISTING);
  };
  BeginSection(SECTION_OBJECTS);
  beginDictionary(root, 0);
  writer_.Text(CODE_ENTRY_NAME, GROUP_DICTIONARY);
  writer_.Handle(CODE_SOFT_OWNED, groups);
  beginDictionary(groups, root);
  EndSection();
}

std::string Skeleton::Header() const {
  std::string text;
  TagWriter writer(text, LINE_END);
  const auto begin = [&](std::string_view name) { writer.Text(CODE_VARIABLE, name); };
  writer.Text(CODE_TYPE, TYPE_SECTION);
  writer.Text(CODE_NAME, SECTION_HEADER);
  begin(VARIABLE_VERSION);
  writer.Text(CODE_HEADER_VERSION, fmt::format("AC{}", options_.version));
  begin(VARIABLE_CODE_PAGE);
  writer.Text(CODE_HEADER_CODE_PAGE, NEW_DRAWING_CODE_PAGE);
  if (!hasObjects_) {
    begin(VARIABLE_HANDLING);
    writer.Integer(CODE_HEADER_INTEGER, 1);
  }
  begin(VARIABLE_HANDLE_SEED);
  writer.Handle(CODE_HANDLE, lastHandle_ + 1);
  begin(VARIABLE_UNITS);
  writer.Integer(CODE_HEADER_INTEGER, options_.units);
  begin(VARIABLE_MEASUREMENT);
  writer.Integer(CODE_HEADER_INTEGER, IsImperial(options_.units) ? 0 : 1);
  writer.Text(CODE_TYPE, TYPE_SECTION_END);
  return text;
}

std::string Skeleton::Text() {
  if (hasObjects_) {
    BeginSection(SECTION_CLASSES);
    EndSection();
  }
  WriteTables();
  WriteBlocks();
  BeginSection(SECTION_ENTITIES);
  EndSection();
  if (hasObjects_) WriteObjects();
  writer_.Text(CODE_TYPE, TYPE_FILE_END);
  return Header() + body_;
}

}  // namespace

std::string NewDrawing(const NewDrawingOptions& options) {
  if (options.version != VERSION_R12 && options.version != VERSION_R2000 &&
      options.version != VERSION_R2018) {
    throw Error(fmt::format("a new drawing cannot be made in version AC{}; R12, R2000 and R2018 are offered",
                            options.version));
  }
  Document drawing = Document::FromText("new drawing", Skeleton(options).Text());
  drawing.RequireLinetype(LINETYPE_DASHED);
  for (const std::string& layer : options.layers)
    drawing.RequireLayer(layer);
  for (const std::string& application : options.applications)
    drawing.RequireApplication(application);
  return drawing.Serialize();
}

}  // namespace teskarlt::dxf
