// TestHost.h - a host that the test directs: its function table, its data folder, its answers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What the host does when the module asks.
struct HostScript {
  bool hasTable = true;
  bool hasGetDataFolder = true;
  bool hasDataFolderAccess = true;
  bool deliversFolder = true;
  std::string folder;
  std::int32_t answer = 1;         // to operation 9
  std::vector<std::string> calls;  // of the module, in order
};

extern HostScript hostScript;
