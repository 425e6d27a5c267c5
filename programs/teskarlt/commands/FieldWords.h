// FieldWords.h - values of a window's fields for people and for programs.
#pragma once

#include <string>

#include "inc/WindowParams.h"
#include "teskarlt/commands/LengthWords.h"
#include "teskarlt/dxf/Document.h"
#include "teskarlt/terminal/Json.h"
#include "window/RecordFields.h"

namespace teskarlt {

// The field's value in a record whose texts are in the drawing's code page. For people lengths have their
// unit and texts are quoted: "0.94 m", or "3'-1 1/64"" in feet.
Json FieldJson(const brevanta::WindowParams& record, const brevanta::RecordField& field,
               const dxf::Document& drawing);
std::string FieldText(const brevanta::WindowParams& record, const brevanta::RecordField& field,
                      const dxf::Document& drawing, const LengthWords& words);

}  // namespace teskarlt
