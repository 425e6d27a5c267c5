// PlayedHost.h - a test program as a host of the built module: its commands, and a dialog with a script.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/ModuleServices.h"
#include "tests/arx/loaded/TestDialog.h"

namespace played_host {

// The exports of the BREVANTA.CRX beside the program, which is loaded at the first call and stays.
std::int32_t Brevanta(void* hostContext, std::int32_t unitFactor, void* reserved, std::int32_t dialogArg);
std::int32_t EditBrevanta(void* hostContext, std::int32_t unitFactor, std::int32_t editMode);

// The dialog's script, and what it was called with. Is the `hostContext` itself.
struct DialogPlay : TestDialogContext {
  DialogPlay();

  std::int32_t answer = 1;
  brevanta::WindowParams confirmed;  // goes into the record, but for the unit factor

  int calls = 0;
  brevanta::WindowParams given{};
  std::int32_t dialogArg = 0;
  std::int32_t editFlag = 0;
  std::string moduleFile;  // the dialog module that called
};

// What the program's export for "EraseWindow" answers, and how often it was called.
struct ErasePlay {
  std::int32_t answer = 0;
  int calls = 0;
};
ErasePlay& TheErasePlay();

// Gives back every handle of the dialog module that is still held, and tells how many there were.
int UnloadDialog();

// Takes a file away for as long as this lives.
class HiddenFile {
 public:
  explicit HiddenFile(const std::string& path) : path_(path), hidden_(path + ".hidden") {
    std::filesystem::rename(path_, hidden_);
  }
  ~HiddenFile() {
    std::error_code ignored;
    std::filesystem::rename(hidden_, path_, ignored);
  }
  HiddenFile(const HiddenFile&) = delete;
  HiddenFile& operator=(const HiddenFile&) = delete;

 private:
  std::filesystem::path path_;
  std::filesystem::path hidden_;
};

}  // namespace played_host
