// CompanionModule.h - finds and loads the modules that are installed beside the host add-on.
#pragma once

#include "platform/ModuleServices.h"

namespace brevanta {

// Length of the path buffers, terminator included.
constexpr int MODULE_PATH_SIZE = 1024;

// The module of the host add-on, stand-alone or inside the CAD application; null when neither is loaded.
HMODULE FindHostModule();

// Loads a module of this plug-in and returns its handle, which the caller gives back with FreeLibrary; null
// on failure. A name that holds a path is loaded as it stands; any other name comes from the folder of the
// host add-on, and only from there when such a host is loaded.
HMODULE LoadCompanionModule(const char* name);

}  // namespace brevanta
