// StandAloneHost.h - this program as the stand-alone host, and the frame of its tests.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/arx/loaded/PlayedHost.h"
#include "tests/arx/loaded/WindowOfThree.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingHost.h"

// What the program's export "GetExport2D" gives; the recording table at the start of each test.
void GiveTable(brevanta::HostFunctionTable* table);

class StandAloneHost : public testing::Test {
 protected:
  void SetUp() override {
    recording_host::Reset();
    GiveTable(recording_host::Table());
    played_host::TheErasePlay() = {};
    dialog.confirmed = window_of_three::Record();
  }
  void TearDown() override { played_host::UnloadDialog(); }

  std::int32_t Insert() { return played_host::Brevanta(&dialog, window_of_three::UNIT_FACTOR, nullptr, 0); }

  static std::string Beside(const char* name) { return ProgramFolder() + name; }

  brevanta::WindowParams& record() { return dialog.confirmed; }

  played_host::DialogPlay dialog;
};
