// TestStrings.cpp - a module that holds a few numbered strings.
#include "platform/Export.h"
#include "platform/linux/StringTable.h"

PLATFORM_EXPORT const StringTableEntry TeskarStringTable[];

const StringTableEntry TeskarStringTable[] = {
    {7, "seven"},
    {9, ""},
    {60000, "far"},
    {0, nullptr},
};
