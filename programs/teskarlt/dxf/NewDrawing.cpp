// NewDrawing.cpp - what a drawing must hold before anything is drawn, by version.
#include "teskarlt/dxf/NewDrawing.h"

#include <cstdint>
#include <string_view>

#include <fmt/format.h>

#include "teskarlt/Error.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/tags/Tag.h"
#include "teskarlt/dxf/write/TableEntries.h"
#include "teskarlt/dxf/write/TagWriter.h"

namespace teskarlt::dxf {
namespace {

constexpr std::string_view LINE_END = "\n";
constexpr std::string_view MODEL_SPACE = "*Model_Space";
constexpr std::string_view PAPER_SPACE = "*Paper_Space";

// Height of the first view.
constexpr double VIEW_MILLIMETRES = 20000;

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
  // A record of a kind that no other file writes: type, handle, owner and markers.
  void BeginRecord(std::string_view type, std::string_view subclass, std::string_view name,
                   std::uint64_t owner);
  void BeginSection(std::string_view name);
  void EndSection() { writer_.Text(CODE_TYPE, "ENDSEC"); }
  void Flat(int code, double x, double y);

  std::string Header() const;
  void WriteTables();
  void WriteViewport();
  void WriteStyle();
  void WriteDimensionStyle();
  void WriteEmptyTable(std::string_view name);
  void WriteBlockRecords();
  void WriteBlock(std::string_view name, std::uint64_t record, bool isPaper);
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
  writer_.Text(CODE_TYPE, "SECTION");
  writer_.Text(CODE_NAME, name);
}

EntryHead Skeleton::BeginTable(std::string_view name, std::size_t count) {
  const EntryHead head = NewHead(0);
  WriteTableBegin(writer_, name, head, count);
  return head;
}

void Skeleton::BeginRecord(std::string_view type, std::string_view subclass, std::string_view name,
                           std::uint64_t owner) {
  writer_.Text(CODE_TYPE, type);
  const std::uint64_t handle = NewHandle();
  if (hasObjects_) {
    writer_.Handle(type == "DIMSTYLE" ? CODE_DIMSTYLE_HANDLE : CODE_HANDLE, handle);
    writer_.Handle(CODE_OWNER, owner);
    writer_.Text(CODE_SUBCLASS, "AcDbSymbolTableRecord");
    writer_.Text(CODE_SUBCLASS, subclass);
  }
  writer_.Text(CODE_NAME, name);
  writer_.Integer(CODE_COUNT, 0);
}

void Skeleton::Flat(int code, double x, double y) {
  writer_.Real(code, x);
  writer_.Real(code + Y_DISTANCE, y);
}

void Skeleton::WriteViewport() {
  const EntryHead table = BeginTable("VPORT", 1);
  BeginRecord("VPORT", "AcDbViewportTableRecord", hasObjects_ ? "*Active" : "*ACTIVE", table.handle);
  const double height = VIEW_MILLIMETRES / MillimetresPerUnit(options_.units, true);
  Flat(10, 0, 0);  // corners of the viewport
  Flat(11, 1, 1);
  Flat(12, 0, 0);  // centre of the view
  Flat(13, 0, 0);  // snap and grid
  Flat(14, 1, 1);
  Flat(15, 1, 1);
  writer_.Coordinates(16, {0, 0, 1});  // the view looks down on
  writer_.Coordinates(17, {0, 0, 0});
  writer_.Real(40, height);
  writer_.Real(41, 1.5);  // width by height
  writer_.Real(42, 50);   // lens
  for (const int code : {43, 44, 50, 51})
    writer_.Real(code, 0);
  writer_.Integer(71, 0);
  writer_.Integer(72, 1000);  // smoothness of circles
  writer_.Integer(73, 1);
  writer_.Integer(74, 3);
  for (const int code : {75, 76, 77, 78})
    writer_.Integer(code, 0);
  EndTable();
}

void Skeleton::WriteStyle() {
  const EntryHead table = BeginTable("STYLE", 1);
  BeginRecord("STYLE", "AcDbTextStyleTableRecord", hasObjects_ ? "Standard" : "STANDARD", table.handle);
  writer_.Real(40, 0);
  writer_.Real(41, 1);
  writer_.Real(50, 0);
  writer_.Integer(71, 0);
  writer_.Real(42, 2.5);
  writer_.Text(3, "txt");
  writer_.Text(4, "");
  EndTable();
}

void Skeleton::WriteDimensionStyle() {
  const EntryHead table = BeginTable("DIMSTYLE", hasObjects_ ? 1 : 0);
  if (hasObjects_) {
    writer_.Text(CODE_SUBCLASS, "AcDbDimStyleTable");
    writer_.Integer(71, 0);
    BeginRecord("DIMSTYLE", "AcDbDimStyleTableRecord", "Standard", table.handle);
  }
  EndTable();
}

void Skeleton::WriteEmptyTable(std::string_view name) {
  BeginTable(name, 0);
  EndTable();
}

void Skeleton::WriteBlockRecords() {
  const EntryHead table = BeginTable("BLOCK_RECORD", 2);
  BeginRecord("BLOCK_RECORD", "AcDbBlockTableRecord", MODEL_SPACE, table.handle);
  modelSpace_ = lastHandle_;
  BeginRecord("BLOCK_RECORD", "AcDbBlockTableRecord", PAPER_SPACE, table.handle);
  paperSpace_ = lastHandle_;
  EndTable();
}

void Skeleton::WriteTables() {
  BeginSection("TABLES");
  WriteViewport();
  const EntryHead linetypes = BeginTable("LTYPE", 1);
  if (hasObjects_) {
    WriteSolidLinetype(writer_, LINETYPE_BY_BLOCK, NewHead(linetypes.handle));
    WriteSolidLinetype(writer_, LINETYPE_BY_LAYER, NewHead(linetypes.handle));
  }
  WriteSolidLinetype(writer_, hasObjects_ ? LINETYPE_CONTINUOUS : "CONTINUOUS", NewHead(linetypes.handle));
  EndTable();
  const EntryHead layers = BeginTable("LAYER", 1);
  WriteLayer(writer_, "0", NewHead(layers.handle));
  EndTable();
  WriteStyle();
  WriteEmptyTable("VIEW");
  WriteEmptyTable("UCS");
  const EntryHead applications = BeginTable("APPID", 1);
  WriteApplication(writer_, "ACAD", NewHead(applications.handle));
  EndTable();
  WriteDimensionStyle();
  if (hasObjects_) WriteBlockRecords();
  EndSection();
}

void Skeleton::WriteBlock(std::string_view name, std::uint64_t record, bool isPaper) {
  const auto begin = [&](std::string_view type, std::string_view subclass) {
    writer_.Text(CODE_TYPE, type);
    writer_.Handle(CODE_HANDLE, NewHandle());
    writer_.Handle(CODE_OWNER, record);
    writer_.Text(CODE_SUBCLASS, "AcDbEntity");
    if (isPaper) writer_.Integer(CODE_PAPER_SPACE, 1);
    writer_.Text(CODE_LAYER, "0");
    writer_.Text(CODE_SUBCLASS, subclass);
  };
  begin("BLOCK", "AcDbBlockBegin");
  writer_.Text(CODE_NAME, name);
  writer_.Integer(CODE_COUNT, 0);
  writer_.Coordinates(10, {0, 0, 0});
  writer_.Text(3, name);
  writer_.Text(1, "");
  begin("ENDBLK", "AcDbBlockEnd");
}

void Skeleton::WriteBlocks() {
  BeginSection("BLOCKS");
  if (hasObjects_) {
    WriteBlock(MODEL_SPACE, modelSpace_, false);
    WriteBlock(PAPER_SPACE, paperSpace_, true);
  }
  EndSection();
}

void Skeleton::WriteObjects() {
  constexpr int CODE_SOFT_OWNER = 350;
  constexpr int CODE_DUPLICATES = 281;
  constexpr int KEEP_EXISTING = 1;
  const std::uint64_t root = NewHandle();
  const std::uint64_t groups = NewHandle();
  const auto beginDictionary = [&](std::uint64_t handle, std::uint64_t owner) {
    writer_.Text(CODE_TYPE, "DICTIONARY");
    writer_.Handle(CODE_HANDLE, handle);
    writer_.Handle(CODE_OWNER, owner);
    writer_.Text(CODE_SUBCLASS, "AcDbDictionary");
    writer_.Integer(CODE_DUPLICATES, KEEP_EXISTING);
  };
  BeginSection("OBJECTS");
  beginDictionary(root, 0);
  writer_.Text(3, "ACAD_GROUP");
  writer_.Handle(CODE_SOFT_OWNER, groups);
  beginDictionary(groups, root);
  EndSection();
}

std::string Skeleton::Header() const {
  constexpr int CODE_PAGE = 3;
  std::string text;
  TagWriter writer(text, LINE_END);
  const auto begin = [&](std::string_view name) { writer.Text(CODE_VARIABLE, name); };
  writer.Text(CODE_TYPE, "SECTION");
  writer.Text(CODE_NAME, "HEADER");
  begin("$ACADVER");
  writer.Text(1, fmt::format("AC{}", options_.version));
  begin("$DWGCODEPAGE");
  writer.Text(CODE_PAGE, NEW_DRAWING_CODE_PAGE);
  if (!hasObjects_) {
    begin("$HANDLING");
    writer.Integer(70, 1);
  }
  begin("$HANDSEED");
  writer.Handle(CODE_HANDLE, lastHandle_ + 1);
  begin("$INSUNITS");
  writer.Integer(70, options_.units);
  begin("$MEASUREMENT");
  writer.Integer(70, options_.units == UNITS_INCHES || options_.units == UNITS_FEET ? 0 : 1);
  writer.Text(CODE_TYPE, "ENDSEC");
  return text;
}

std::string Skeleton::Text() {
  if (hasObjects_) {
    BeginSection("CLASSES");
    EndSection();
  }
  WriteTables();
  WriteBlocks();
  BeginSection("ENTITIES");
  EndSection();
  if (hasObjects_) WriteObjects();
  writer_.Text(CODE_TYPE, "EOF");
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
