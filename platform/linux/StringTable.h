// StringTable.h - how a string resource module on Linux holds its numbered strings.
#pragma once

// One string of the table that the module exports under STRING_TABLE_SYMBOL; a null text ends the table.
struct StringTableEntry {
  unsigned int id;
  const char* text;
};

constexpr const char* STRING_TABLE_SYMBOL = "TeskarStringTable";
