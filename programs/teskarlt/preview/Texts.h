// Texts.h - the lines of text that an entity of a drawing shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "teskarlt/dxf/Document.h"
#include "teskarlt/dxf/read/TagList.h"
#include "teskarlt/preview/Scene.h"

namespace teskarlt::preview {

// Whether entities of this type are texts of their own.
bool IsText(std::string_view type);

// The lines of a TEXT, MTEXT or ATTRIB, in the coordinates of the drawing or block that it stands in, without
// colour. None where it shows none: without letters or height, or an attribute that is invisible.
std::vector<SceneText> TextsOf(const dxf::TagList& entity, const dxf::Document& drawing);

// The text with what its %% codes stand for: degrees, plus or minus, diameter, per cent; lines above and
// below are left out.
std::string PlainText(std::string_view text);

// The lines of an MTEXT's content without its formatting; fractions as "1/2".
std::vector<std::string> PlainLines(std::string_view content);

}  // namespace teskarlt::preview
