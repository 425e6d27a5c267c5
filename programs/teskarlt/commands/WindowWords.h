// WindowWords.h - what commands say of the windows that they insert, change and list.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "teskarlt/commands/WindowOptions.h"
#include "teskarlt/drawing/Units.h"
#include "teskarlt/drawing/WindowFit.h"
#include "teskarlt/drawing/WindowRecord.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/terminal/Json.h"
#include "teskarlt/windows/PlacedWindow.h"
#include "teskarlt/windows/WindowEditor.h"

namespace teskarlt {

// The unit in which the drawing is worked on, with a warning where the user forced another than the
// drawing's.
const DrawingUnit& ChooseUnitAndWarn(dxf::Document& drawing, const AskedUnit& asked);

// A warning about a window that does not fit; empty when it fits.
std::string MisfitWarning(std::int32_t number, const std::vector<std::string>& misfits);

// Warns where new entities came onto layers (names in UTF-8) on which they cannot be seen, or not be changed.
void WarnOfClosedLayers(const dxf::Document& drawing, const std::set<std::string>& layers);

// Warns where the drawing's texts may not be what they look like.
void WarnOfTexts(const dxf::Document& drawing);

// For programs: the window that came into the drawing.
Json WindowJson(const PlacedWindow& window);

// For programs: the same of a window that was changed, with what it was before.
Json EditedJson(const EditedWindow& window, const WindowReading& before, const dxf::Document& drawing);

// For programs: a window's mark; null for none.
Json MarkJson(const std::string& mark);

// For programs: the unit's name; null where none is stated.
Json UnitJson(const DrawingUnit& unit);

// For programs: drawing units a metre, which is no whole number for feet and inches.
Json UnitFactorJson(double perMetre);

// For programs: the heights of the frame's edges as it is drawn, in metres; null without an outline.
Json FrameJson(const std::optional<Outline>& outline, const brevanta::WindowParams& record);

// For programs: of the fields that are not as the description says, or not in it, where their values come
// from.
Json SourcesJson(const WindowReading& reading);

// Warns of what is doubtful about the new window, saves the drawing and tells what became of it.
void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const PlacedWindow& window);

// The same for the windows of a row.
void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const std::vector<PlacedWindow>& windows);

// The same for a window that was changed. One that stood there as ordered is not written, but to a file that
// the user named.
void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const EditedWindow& window,
                 const WindowReading& before);

// The same for the windows of a selection: a line each, and what became of all.
void SaveAndTell(WindowOptions& options, dxf::Document& drawing, const std::vector<EditedWindow>& windows,
                 const std::vector<EditableWindow>& before);

}  // namespace teskarlt
