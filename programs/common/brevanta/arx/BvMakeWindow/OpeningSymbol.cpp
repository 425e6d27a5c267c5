// OpeningSymbol.cpp - the opening code and the lines of its symbol.
#include "arx/BvMakeWindow/OpeningSymbol.h"

#include <cstring>
#include <string_view>

#include "arx/BvMakeWindow/LayerName.h"
#include "arx/BvMakeWindow/LineOutput.h"
#include "arx/BvMakeWindow/RecordText.h"

namespace brevanta {

namespace {

constexpr char DASHED[] = "DASHED";

void UseSymbolLinetype(CbvMakeWindow& maker) {
  std::memcpy(maker.currentLinetype, maker.symbolLinetype, sizeof maker.currentLinetype);
}

void UseNoLinetype(CbvMakeWindow& maker) {
  maker.currentLinetype[0] = '\0';
}

void SetHingeSide(CbvMakeWindow& maker, char side) {
  maker.hingeSide[0] = side;
  maker.hingeSide[1] = '\0';
}

bool Holds(std::string_view code, std::string_view part) {
  return code.find(part) != std::string_view::npos;
}

// The linetype by the two suffixed forms of a letter; without either it stays.
void ParseLinetype(CbvMakeWindow& maker, std::string_view code, std::string_view dashed,
                   std::string_view solid) {
  if (Holds(code, dashed)) {
    UseSymbolLinetype(maker);
  } else if (Holds(code, solid)) {
    UseNoLinetype(maker);
  }
}

// The hinge side by the two suffixed forms; without either it stays.
void ParseHinge(CbvMakeWindow& maker, std::string_view code, std::string_view right, std::string_view left) {
  if (Holds(code, right)) {
    SetHingeSide(maker, 'R');
  } else if (Holds(code, left)) {
    SetHingeSide(maker, 'L');
  }
}

void ParseSideHung(CbvMakeWindow& maker, std::string_view code) {
  if (Holds(code, "EI")) {
    UseSymbolLinetype(maker);
    ParseHinge(maker, code, "EIR", "EIL");
  } else if (Holds(code, "EO")) {
    UseNoLinetype(maker);
    ParseHinge(maker, code, "EOR", "EOL");
  } else if (Holds(code, "ER")) {
    SetHingeSide(maker, 'R');
    ParseLinetype(maker, code, "ERI", "ERO");
  } else if (Holds(code, "EL")) {
    SetHingeSide(maker, 'L');
    ParseLinetype(maker, code, "ELI", "ELO");
  }
}

GcGePoint3d Middle(const GcGePoint3d& a, const GcGePoint3d& b) {
  return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2};
}

// The lines of one window's symbol, all on the same layer.
class SymbolLines {
 public:
  explicit SymbolLines(const CbvMakeWindow& maker)
      : maker_(maker), layer_(maker.resourceModule, LAYER_SYMBOL) {}

  void Draw(const GcGePoint3d& from, const GcGePoint3d& to) const {
    WriteLine(maker_, from, to, layer_.Text(), NO_COLOUR);
  }

  // Two lines that meet in `tip`.
  void DrawMark(const GcGePoint3d& from, const GcGePoint3d& tip, const GcGePoint3d& to) const {
    Draw(from, tip);
    Draw(tip, to);
  }

 private:
  const CbvMakeWindow& maker_;
  LayerName layer_;
};

void DrawFrame(const CbvMakeWindow& maker, const SymbolLines& lines) {
  const Point3dArray& frame = maker.outerOutline;
  lines.Draw(frame[4], frame[0]);
  lines.Draw(frame[0], frame[3]);
  lines.Draw(frame[3], frame[5]);
  lines.Draw(frame[5], frame[4]);
}

void DrawSash(CbvMakeWindow& maker, const SymbolLines& lines) {
  Point3dArray& sash = maker.innerOutline;
  sash.Append(sash[0]);
  for (int k = 0; k < 4; ++k)
    lines.Draw(sash[k], sash[k + 1]);
}

void DrawMarks(CbvMakeWindow& maker, const char* code, const SymbolLines& lines) {
  const Point3dArray& sash = maker.innerOutline;
  const GcGePoint3d m01 = Middle(sash[0], sash[1]);
  const GcGePoint3d m12 = Middle(sash[1], sash[2]);
  const GcGePoint3d m23 = Middle(sash[2], sash[3]);
  const GcGePoint3d m30 = Middle(sash[3], sash[0]);
  if (ParseOpeningCode(maker, code, "B")) lines.DrawMark(sash[0], m12, sash[3]);
  if (ParseOpeningCode(maker, code, "C")) lines.DrawMark(sash[1], m30, sash[2]);
  if (ParseOpeningCode(maker, code, "D")) {
    // Half of the diamond is dashed, the other half solid, on purpose.
    UseSymbolLinetype(maker);
    lines.DrawMark(m01, m12, m23);
    UseNoLinetype(maker);
    lines.DrawMark(m23, m30, m01);
  }
  if (ParseOpeningCode(maker, code, "E")) {
    if (maker.hingeSide[0] != 'R') {
      lines.DrawMark(sash[0], m23, sash[1]);
    } else {
      lines.DrawMark(sash[2], m01, sash[3]);
    }
  }
}

}  // namespace

bool ParseOpeningCode(CbvMakeWindow& maker, const char* code, const char* letter) {
  UseNoLinetype(maker);
  SetHingeSide(maker, 'L');
  const std::string_view text = code;
  if (!Holds(text, letter)) return false;
  switch (letter[0]) {
    case 'B':
      ParseLinetype(maker, text, "BI", "BO");
      break;
    case 'C':
      ParseLinetype(maker, text, "CI", "CO");
      break;
    case 'E':
      ParseSideHung(maker, text);
      break;
    default:  // "D" has no suffixes
      break;
  }
  return true;
}

void DrawOpeningSymbol(CbvMakeWindow& maker) {
  UseNoLinetype(maker);
  maker.symbolLinetype[0] = '\0';
  const SymbolLines lines(maker);
  DrawFrame(maker, lines);
  DrawSash(maker, lines);

  const RecordText code(maker.params->openingCode);
  if (std::strpbrk(code.Text(), "DI") != nullptr) {
    std::memcpy(maker.symbolLinetype, DASHED, sizeof DASHED);
  }
  DrawMarks(maker, code.Text(), lines);
}

}  // namespace brevanta
