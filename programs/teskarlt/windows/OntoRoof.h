// OntoRoof.h - runs a command of the module on a roof, and says which of its edges a refused window passes.
#pragma once

#include <functional>

#include "teskarlt/drawing/FeetInches.h"
#include "teskarlt/drawing/Roofs.h"
#include "teskarlt/modules/ModuleSession.h"
#include "teskarlt/windows/RoofChoice.h"

namespace teskarlt {

// Runs the command with the request. Where the dialog refuses a window that it would let stand on the roof's
// plane without bounds, the Error says which edges of the roof the window would pass, with lengths of
// that style.
using RunCommand = std::function<CommandOutcome(const WindowRequest& request)>;
CommandOutcome RunOntoRoof(const WindowRequest& request, const RoofChoice& roof, const Roofs& roofs,
                           dxf::Document& drawing, LengthStyle lengths, const RunCommand& run);

}  // namespace teskarlt
