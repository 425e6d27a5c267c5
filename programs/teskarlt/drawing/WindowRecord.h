// WindowRecord.h - the record with which a window that stands in a drawing can be inserted again.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "inc/WindowParams.h"
#include "teskarlt/drawing/DrawnWindow.h"
#include "teskarlt/dxf/Document.h"
#include "window/Outlines.h"
#include "window/SecondPlane.h"

namespace teskarlt {

// A window as it stands in its drawing. Other programs move, turn, mirror and scale windows, and some of them
// leave the description as it was or change parts of it: where the two disagree, the geometry holds.
struct WindowReading {
  brevanta::WindowParams params{};  // texts as in the drawing's file
  // Of the frame as it is drawn, in the unit of the record; none where the entities show no window.
  std::optional<brevanta::Outline> outline;
  bool isMirrored = false;  // since it was inserted; its hinges and its anchor have changed sides then
  // Names of the fields that are not as the description says, or not in it.
  std::vector<std::string> recovered;
  std::vector<std::string> defaults;  // names of the fields that nothing tells
  std::vector<std::string> notes;     // what another program did to it, for people; UTF-8
  std::string obstacle;               // why it cannot be inserted again; empty: it can
  std::string longText;               // which text an edit would lose, also among the notes; empty: none
};

// Reads a window. With an obstacle, the record is what the description says.
WindowReading ReadWindow(const dxf::Document& drawing, const DrawnWindow& window);

// The record of a window that can be inserted again as it is. Throws Error with the reason for one that
// cannot.
WindowReading ReadEditableWindow(const dxf::Document& drawing, const DrawnWindow& window);

// Where the roof of a window falls to, by its record: degrees counter-clockwise from the drawing's x axis,
// from 0 up to but not 360; none for a flat one.
std::optional<double> FallDirection(const brevanta::WindowParams& params);

}  // namespace teskarlt
