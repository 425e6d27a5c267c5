// Finding.h - what can be wrong with a drawing, and where.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace teskarlt::check {

// Error: a strict program refuses or repairs the drawing, or a window in it can no longer be changed.
// Warning: doubtful, though programs are known to take it.
enum class Severity { Error, Warning };

// In the order of their names in Finding.cpp. The names are for programs and stay what they are.
enum class Kind {
  // The file's structure
  GroupCode,
  FileCutShort,
  EndMissing,
  BytesBehindEnd,
  OutsideSection,
  SectionOpen,
  SectionTwice,
  SectionMissing,
  TableOpen,
  TableMissing,
  TableCount,
  BlockOpen,
  DrawingRefused,
  // Values
  UnknownCode,
  IntegerValue,
  RealValue,
  HandleValue,
  BinaryValue,
  TextLength,
  TextBytes,
  CodePage,
  // Names
  LayerUndefined,
  LinetypeUndefined,
  TextStyleUndefined,
  DimensionStyleUndefined,
  BlockUndefined,
  ApplicationUndefined,
  EntryMissing,
  EntryTwice,
  EntryName,
  LinetypePattern,
  // Handles
  HandleMissing,
  HandleTwice,
  HandleSeed,
  OwnerMissing,
  OwnerDangling,
  OwnerKind,
  GroupMember,
  DictionaryEntry,
  Reactor,
  ExtensionDictionary,
  DrawOrder,
  PlotStyle,
  // Entities
  MarkerMissing,
  MarkerUnexpected,
  ControlGroup,
  LayerMissing,
  SequenceEndMissing,
  PartOutside,
  VertexCount,
  FaceIndex,
  // Extended data
  ExtendedWithoutApplication,
  ExtendedApplicationTwice,
  ExtendedOrder,
  ExtendedBraces,
  ExtendedPoint,
  ExtendedTextLength,
  ExtendedSize,
  // Roof windows
  WindowDescription,
  WindowEntities,
  WindowNumber,
  WindowSize,
  WindowMisfit,
  WindowMark,
  WindowTag,
  WindowForeignData,
  KindCount
};

// "layer-undefined".
std::string_view KindName(Kind kind);

struct Finding {
  std::size_t place = 0;  // number of its line, from 1; in a binary drawing the offset of its tag, from 0
  Severity severity = Severity::Error;
  Kind kind = Kind::GroupCode;
  std::uint64_t handle = 0;  // of the object that it is about; 0: none
  std::string message;       // one sentence, UTF-8
};

}  // namespace teskarlt::check
