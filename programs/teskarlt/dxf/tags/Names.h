// Names.h - what drawings call their sections, tables, entities, objects and header variables.
#pragma once

#include <string_view>

namespace teskarlt::dxf {

// --- Types that hold the file together ---

constexpr std::string_view TYPE_SECTION = "SECTION";
constexpr std::string_view TYPE_SECTION_END = "ENDSEC";
constexpr std::string_view TYPE_TABLE = "TABLE";
constexpr std::string_view TYPE_TABLE_END = "ENDTAB";
constexpr std::string_view TYPE_BLOCK = "BLOCK";
constexpr std::string_view TYPE_BLOCK_END = "ENDBLK";
constexpr std::string_view TYPE_FILE_END = "EOF";

constexpr std::string_view SECTION_HEADER = "HEADER";
constexpr std::string_view SECTION_CLASSES = "CLASSES";
constexpr std::string_view SECTION_TABLES = "TABLES";
constexpr std::string_view SECTION_BLOCKS = "BLOCKS";
constexpr std::string_view SECTION_ENTITIES = "ENTITIES";
constexpr std::string_view SECTION_OBJECTS = "OBJECTS";

// --- Header ---

constexpr std::string_view VARIABLE_VERSION = "$ACADVER";
constexpr std::string_view VARIABLE_CODE_PAGE = "$DWGCODEPAGE";
constexpr std::string_view DEFAULT_CODE_PAGE = "ANSI_1252";  // of a drawing that names none, or none known
constexpr std::string_view VARIABLE_HANDLING = "$HANDLING";  // up to R12: whether objects have handles
constexpr std::string_view VARIABLE_HANDLE_SEED = "$HANDSEED";
constexpr std::string_view VARIABLE_UNITS = "$INSUNITS";
constexpr std::string_view VARIABLE_MEASUREMENT = "$MEASUREMENT";
constexpr std::string_view VARIABLE_LINETYPE_SCALE = "$LTSCALE";
constexpr std::string_view VARIABLE_TEXT_STYLE = "$TEXTSTYLE";  // for new texts

// --- Tables; their entries are of the type with the same name ---

constexpr std::string_view TABLE_VIEWPORTS = "VPORT";
constexpr std::string_view TABLE_LINETYPES = "LTYPE";
constexpr std::string_view TABLE_LAYERS = "LAYER";
constexpr std::string_view TABLE_TEXT_STYLES = "STYLE";
constexpr std::string_view TABLE_VIEWS = "VIEW";
constexpr std::string_view TABLE_COORDINATE_SYSTEMS = "UCS";
constexpr std::string_view TABLE_APPLICATIONS = "APPID";
constexpr std::string_view TABLE_DIMENSION_STYLES = "DIMSTYLE";
constexpr std::string_view TABLE_BLOCKS = "BLOCK_RECORD";

// Entries that a drawing comes with.
constexpr std::string_view LINETYPE_BY_BLOCK = "ByBlock";
constexpr std::string_view LINETYPE_BY_LAYER = "ByLayer";
constexpr std::string_view LINETYPE_CONTINUOUS = "Continuous";
constexpr std::string_view DEFAULT_LAYER = "0";
constexpr std::string_view DEFAULT_STYLE = "Standard";  // of texts, and of dimensions
constexpr std::string_view DEFAULT_APPLICATION = "ACAD";
constexpr std::string_view BLOCK_MODEL_SPACE = "*Model_Space";
constexpr std::string_view BLOCK_PAPER_SPACE = "*Paper_Space";

// --- Entities ---

constexpr std::string_view TYPE_ARC = "ARC";
constexpr std::string_view TYPE_ATTRIBUTE = "ATTRIB";
constexpr std::string_view TYPE_ATTRIBUTE_DEFINITION = "ATTDEF";
constexpr std::string_view TYPE_CIRCLE = "CIRCLE";
constexpr std::string_view TYPE_DIMENSION = "DIMENSION";
constexpr std::string_view TYPE_ELLIPSE = "ELLIPSE";
constexpr std::string_view TYPE_FACE = "3DFACE";
constexpr std::string_view TYPE_HATCH = "HATCH";
constexpr std::string_view TYPE_INSERT = "INSERT";
constexpr std::string_view TYPE_LEADER = "LEADER";
constexpr std::string_view TYPE_LINE = "LINE";
constexpr std::string_view TYPE_LWPOLYLINE = "LWPOLYLINE";
constexpr std::string_view TYPE_MESH = "MESH";
constexpr std::string_view TYPE_MTEXT = "MTEXT";
constexpr std::string_view TYPE_POLYLINE = "POLYLINE";
constexpr std::string_view TYPE_SEQUENCE_END = "SEQEND";
constexpr std::string_view TYPE_SOLID = "SOLID";
constexpr std::string_view TYPE_SPLINE = "SPLINE";
constexpr std::string_view TYPE_TEXT = "TEXT";
constexpr std::string_view TYPE_TOLERANCE = "TOLERANCE";
constexpr std::string_view TYPE_TRACE = "TRACE";
constexpr std::string_view TYPE_VERTEX = "VERTEX";

// Whether objects of this type belong to the POLYLINE or INSERT before them.
constexpr bool IsPartType(std::string_view type) {
  return type == TYPE_VERTEX || type == TYPE_ATTRIBUTE || type == TYPE_SEQUENCE_END;
}

// --- Objects ---

constexpr std::string_view TYPE_ASSOCIATION = "DIMASSOC";
constexpr std::string_view TYPE_DICTIONARY = "DICTIONARY";
constexpr std::string_view TYPE_DICTIONARY_WITH_DEFAULT = "ACDBDICTIONARYWDFLT";
constexpr std::string_view TYPE_GROUP = "GROUP";
constexpr std::string_view TYPE_SORT_TABLE = "SORTENTSTABLE";
constexpr std::string_view TYPE_XRECORD = "XRECORD";

// Whether objects of this type name other objects.
constexpr bool IsDictionaryType(std::string_view type) {
  return type == TYPE_DICTIONARY || type == TYPE_DICTIONARY_WITH_DEFAULT;
}

constexpr std::string_view GROUP_DICTIONARY = "ACAD_GROUP";  // names the groups

// --- Control groups ---

constexpr std::string_view REACTORS_BEGIN = "{ACAD_REACTORS";  // objects that hear of changes of this one
constexpr std::string_view EXTENSION_DICTIONARY_BEGIN = "{ACAD_XDICTIONARY";
constexpr std::string_view CONTROL_END = "}";

}  // namespace teskarlt::dxf
