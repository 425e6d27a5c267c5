// Codes.h - the group codes that drawings are made of, and the bits of their flags.
#pragma once

#include <cstdint>

namespace teskarlt::dxf {

// Many codes mean something else in each type of object: those carry its name. Where a type is named, its
// codes stand in the order of their numbers.

// --- Everywhere ---

constexpr int CODE_TYPE = 0;  // begins an object; its value is the object's type
constexpr int CODE_NAME = 2;
constexpr int CODE_HANDLE = 5;
constexpr int CODE_FLAGS = 70;  // bits that each type has of its own
constexpr int CODE_SUBCLASS = 100;
constexpr int CODE_OWNER = 330;
constexpr int CODE_COMMENT = 999;

// Codes of y and z follow that of x at these distances.
constexpr int Y_DISTANCE = 10;
constexpr int Z_DISTANCE = 20;

// A control group: "{NAME", tags for whoever knows the name, "}".
constexpr int CODE_CONTROL = 102;
constexpr int CODE_REACTOR = 330;               // of {ACAD_REACTORS
constexpr int CODE_EXTENSION_DICTIONARY = 360;  // of {ACAD_XDICTIONARY

// Behind it stand the tags of an object within the object, up to the next type.
constexpr int CODE_EMBEDDED_OBJECT = 101;

// --- Header ---

constexpr int CODE_VARIABLE = 9;  // its name; the value follows
constexpr int CODE_HEADER_VERSION = 1;
constexpr int CODE_HEADER_CODE_PAGE = 3;
constexpr int CODE_HEADER_INTEGER = 70;

// --- Tables and their entries ---

constexpr int CODE_TABLE_COUNT = 70;           // of entries, in the head of a table
constexpr int CODE_DIMSTYLE_TABLE_COUNT = 71;  // the same, a second time
constexpr int CODE_DIMSTYLE_HANDLE = 105;      // of an entry of DIMSTYLE, whose 5 is the name of an arrow

// Of a layer. Its linetype, colour and true colour have the codes that they have in entities; the colour's
// number is negative when the layer is off.
constexpr int CODE_LAYER_FLAGS = 70;
constexpr std::int64_t LAYER_FROZEN = 1;
constexpr std::int64_t LAYER_LOCKED = 4;
constexpr int CODE_LINEWEIGHT = 370;

// Of a linetype.
constexpr int CODE_LINETYPE_DESCRIPTION = 3;
constexpr int CODE_LINETYPE_LENGTH = 40;  // of all its dashes
constexpr int CODE_DASH = 49;             // positive: a dash, negative: a gap, 0: a dot
constexpr int CODE_LINETYPE_ALIGNMENT = 72;
constexpr int CODE_DASH_COUNT = 73;
constexpr int CODE_DASH_KIND = 74;

// Of a text style.
constexpr int CODE_STYLE_FONT = 3;
constexpr int CODE_STYLE_BIG_FONT = 4;
constexpr int CODE_STYLE_HEIGHT = 40;
constexpr int CODE_STYLE_WIDTH = 41;
constexpr int CODE_STYLE_LAST_HEIGHT = 42;
constexpr int CODE_STYLE_SLANT = 50;
constexpr int CODE_STYLE_MIRRORING = 71;

// Of a viewport.
constexpr int CODE_VPORT_LOWER_LEFT = 10;
constexpr int CODE_VPORT_UPPER_RIGHT = 11;
constexpr int CODE_VPORT_CENTRE = 12;
constexpr int CODE_VPORT_SNAP_BASE = 13;
constexpr int CODE_VPORT_SNAP_SPACING = 14;
constexpr int CODE_VPORT_GRID_SPACING = 15;
constexpr int CODE_VPORT_DIRECTION = 16;
constexpr int CODE_VPORT_TARGET = 17;
constexpr int CODE_VPORT_HEIGHT = 40;
constexpr int CODE_VPORT_ASPECT = 41;
constexpr int CODE_VPORT_LENS = 42;
constexpr int CODE_VPORT_FRONT_CLIPPING = 43;
constexpr int CODE_VPORT_BACK_CLIPPING = 44;
constexpr int CODE_VPORT_SNAP_ANGLE = 50;
constexpr int CODE_VPORT_TWIST = 51;
constexpr int CODE_VPORT_MODE = 71;
constexpr int CODE_VPORT_SMOOTHNESS = 72;
constexpr int CODE_VPORT_FAST_ZOOM = 73;
constexpr int CODE_VPORT_UCS_ICON = 74;
constexpr int CODE_VPORT_SNAP = 75;
constexpr int CODE_VPORT_GRID = 76;
constexpr int CODE_VPORT_SNAP_STYLE = 77;
constexpr int CODE_VPORT_SNAP_PAIR = 78;

// --- Blocks ---

constexpr int CODE_BLOCK_PATH = 1;
constexpr int CODE_BLOCK_SECOND_NAME = 3;
constexpr int CODE_BLOCK_BASE = 10;
constexpr int CODE_BLOCK_FLAGS = 70;
constexpr std::int64_t BLOCK_ATTACHED = 4 + 8;  // it is another drawing, whole or laid over

// --- All entities ---

constexpr int CODE_LINETYPE = 6;
constexpr int CODE_LAYER = 8;
constexpr int CODE_ELEVATION = 38;
constexpr int CODE_LINETYPE_SCALE = 48;
constexpr int CODE_INVISIBLE = 60;
constexpr int CODE_COLOUR = 62;  // its number; from 1 to 255 it is one of its own
constexpr std::int64_t COLOUR_BY_BLOCK = 0;
constexpr std::int64_t COLOUR_WHITE = 7;
constexpr std::int64_t COLOUR_BY_LAYER = 256;
constexpr int CODE_PAPER_SPACE = 67;
constexpr int CODE_EXTRUSION = 210;
constexpr int CODE_PLOT_STYLE = 390;
constexpr int CODE_TRUE_COLOUR = 420;  // 0xRRGGBB

// --- Entities by type ---

constexpr int CODE_LINE_START = 10;
constexpr int CODE_LINE_END = 11;

// Of a 3DFACE, SOLID or TRACE; the codes of the other corners follow one another.
constexpr int CODE_FIRST_CORNER = 10;
constexpr int CODE_SECOND_CORNER = 11;
constexpr int CODE_THIRD_CORNER = 12;
constexpr int CODE_FOURTH_CORNER = 13;

// Of a CIRCLE or ARC; angles in degrees.
constexpr int CODE_CIRCLE_CENTRE = 10;
constexpr int CODE_CIRCLE_RADIUS = 40;
constexpr int CODE_ARC_START = 50;
constexpr int CODE_ARC_END = 51;

// Of an ELLIPSE; parameters in radians.
constexpr int CODE_ELLIPSE_CENTRE = 10;
constexpr int CODE_ELLIPSE_MAJOR_AXIS = 11;
constexpr int CODE_ELLIPSE_RATIO = 40;  // of the minor axis to the major one
constexpr int CODE_ELLIPSE_START = 41;
constexpr int CODE_ELLIPSE_END = 42;

// Of a POLYLINE, an LWPOLYLINE and a VERTEX.
constexpr int CODE_VERTEX_POINT = 10;
constexpr int CODE_POLYLINE_ELEVATION = 30;
constexpr int CODE_BULGE = 42;
constexpr int CODE_POLYLINE_FLAGS = 70;
constexpr std::int64_t POLYLINE_CLOSED = 1;
constexpr std::int64_t POLYLINE_3D = 8;
constexpr std::int64_t POLYLINE_POLYGON_MESH = 16;
constexpr std::int64_t POLYLINE_CLOSED_ACROSS = 32;
constexpr std::int64_t POLYLINE_POLYFACE_MESH = 64;
constexpr int CODE_VERTEX_FLAGS = 70;
constexpr std::int64_t VERTEX_SPLINE_FRAME = 16;
constexpr std::int64_t VERTEX_OF_MESH = 64;
constexpr std::int64_t VERTEX_OF_POLYFACE = 128;  // without VERTEX_OF_MESH it is a face
constexpr int CODE_MESH_ROWS = 71;
constexpr int CODE_MESH_COLUMNS = 72;
constexpr int CODE_FIRST_FACE_VERTEX = 71;  // numbers of vertices, from 1; negative: the edge is hidden
constexpr int CODE_LAST_FACE_VERTEX = 74;
constexpr int CODE_LWPOLYLINE_COUNT = 90;  // of vertices

// Of a SPLINE.
constexpr int CODE_SPLINE_CONTROL_POINT = 10;
constexpr int CODE_SPLINE_FIT_POINT = 11;
constexpr int CODE_SPLINE_KNOT = 40;
constexpr int CODE_SPLINE_WEIGHT = 41;
constexpr int CODE_SPLINE_DEGREE = 71;

// Of a MESH.
constexpr int CODE_MESH_VERTEX = 10;
constexpr int CODE_MESH_ITEM = 90;        // of the list that was announced last
constexpr int CODE_MESH_FACE_COUNT = 93;  // of items in the list of faces
constexpr int CODE_MESH_EDGE_COUNT = 94;

// Of a HATCH: behind the head of each boundary follow the vertices of a polyline, or edges with the codes
// that LINE and ARC have; the style ends the boundaries.
constexpr int CODE_HATCH_ELEVATION = 30;
constexpr int CODE_HATCH_EDGE = 72;  // its type
constexpr std::int64_t HATCH_EDGE_LINE = 1;
constexpr std::int64_t HATCH_EDGE_ARC = 2;
constexpr int CODE_HATCH_COUNTER_CLOCKWISE = 73;
constexpr int CODE_HATCH_STYLE = 75;  // 0: every second boundary is filled
constexpr std::int64_t HATCH_STYLE_OUTER = 1;
constexpr std::int64_t HATCH_STYLE_IGNORE = 2;  // of what lies within an outer one
constexpr int CODE_HATCH_PATH = 92;
constexpr std::int64_t HATCH_PATH_POLYLINE = 2;

// Of an INSERT; angles in degrees.
constexpr int CODE_INSERT_POINT = 10;
constexpr int CODE_INSERT_SCALE_X = 41;  // y and z follow
constexpr int CODE_INSERT_COLUMN_SPACING = 44;
constexpr int CODE_INSERT_ROW_SPACING = 45;
constexpr int CODE_INSERT_ROTATION = 50;
constexpr int CODE_INSERT_HAS_ATTRIBUTES = 66;
constexpr int CODE_INSERT_COLUMNS = 70;
constexpr int CODE_INSERT_ROWS = 71;

constexpr int CODE_DIMENSION_STYLE = 3;  // of a DIMENSION, LEADER or TOLERANCE
constexpr int CODE_TEXT_STYLE = 7;       // of a TEXT, MTEXT, ATTRIB or ATTDEF

// --- Objects ---

// Of a dictionary: a name and the object of that name follow each other.
constexpr int CODE_ENTRY_NAME = 3;
constexpr int CODE_HARD_OWNER_FLAG = 280;
constexpr int CODE_DUPLICATES = 281;
constexpr int CODE_SOFT_OWNED = 350;
constexpr int CODE_HARD_OWNED = 360;

// Of a GROUP.
constexpr int CODE_GROUP_UNNAMED = 70;
constexpr int CODE_GROUP_SELECTABLE = 71;
constexpr int CODE_GROUP_DESCRIPTION = 300;
constexpr int CODE_GROUP_MEMBER = 340;

// Of a SORTENTSTABLE; the handle to sort it by follows.
constexpr int CODE_SORTED_ENTITY = 331;

// Of a DIMASSOC: the entities that a dimension measures.
constexpr int CODE_ASSOCIATED = 331;
constexpr int CODE_ASSOCIATED_CROSSING = 332;

// --- Extended data: at the end of an object, for each application under its name ---

constexpr int CODE_XDATA_MARKER = -3;  // stands before extended data in value lists, never in a file
constexpr int CODE_XDATA_TEXT = 1000;
constexpr int CODE_XDATA_APPLICATION = 1001;
constexpr int CODE_XDATA_BRACE = 1002;
constexpr int CODE_XDATA_POINT = 1010;  // stays as it is when the entity is moved
constexpr int CODE_XDATA_WORLD_POINT = 1011;
constexpr int CODE_XDATA_REAL = 1040;
constexpr int CODE_XDATA_DISTANCE = 1041;
constexpr int CODE_XDATA_SCALE = 1042;
constexpr int CODE_XDATA_INTEGER16 = 1070;
constexpr int CODE_XDATA_INTEGER32 = 1071;

// Whether tags with this code are extended data. Comments are not passed to it.
constexpr bool IsExtendedData(int code) {
  constexpr int FIRST = 1000;
  return code >= FIRST;
}

}  // namespace teskarlt::dxf
