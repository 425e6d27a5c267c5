// DeafModule.cpp - a roof window module that never asks the dialog, as one that could not load it.
#include <cstdint>

#include "platform/Export.h"

PLATFORM_EXPORT std::int32_t Brevanta(void*, std::int32_t, void*, std::int32_t);
PLATFORM_EXPORT std::int32_t EditBrevanta(void*, std::int32_t, std::int32_t);
PLATFORM_EXPORT std::int32_t mergeLibraryFiles(void*, const char*, const char*, std::int32_t);

std::int32_t Brevanta(void* /*hostContext*/, std::int32_t /*unitFactor*/, void* /*reserved*/,
                      std::int32_t /*dialogArg*/) {
  return 0;  // the dialog module could not be loaded
}

std::int32_t EditBrevanta(void* /*hostContext*/, std::int32_t /*unitFactor*/, std::int32_t /*editMode*/) {
  return 2;  // what the dialog answered
}

std::int32_t mergeLibraryFiles(void* /*reserved*/, const char* /*source*/, const char* /*target*/,
                               std::int32_t /*folderKind*/) {
  return 0;
}
