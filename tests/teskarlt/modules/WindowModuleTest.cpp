// WindowModuleTest.cpp - what is told when the module does nothing; a deaf one stands in for it.
#include <functional>

#include <gtest/gtest.h>

#include "teskarlt/Error.h"
#include "teskarlt/modules/WindowModule.h"
#include "tests/support/ProgramFolder.h"
#include "tests/teskarlt/drawing/Drawings.h"

namespace teskarlt {
namespace {

std::string ErrorOf(const std::function<void()>& command) {
  try {
    command();
  } catch (const Error& error) {
    return error.Message();
  }
  return {};
}

class WindowModuleTest : public testing::Test {
 protected:
  dxf::Document drawing = Drawing("", "");
  const WindowRequest request{};
  const WindowModule module;
  const std::string dialog = ProgramFolder() + "BREVANTA_D.CRX";
};

TEST_F(WindowModuleTest, DialogModuleThatTheModuleCouldNotLoadIsNamed) {
  EXPECT_EQ(ErrorOf([&] { module.Insert(drawing, request); }),
            "the roof window module could not load its dialog module " + dialog);
}

TEST_F(WindowModuleTest, DialogModuleThatAskedForNothingIsOfAnotherVersion) {
  EXPECT_EQ(ErrorOf([&] { module.Edit(drawing, request); }),
            "the dialog module " + dialog + " belongs to another version of this program");
}

TEST_F(WindowModuleTest, DrawingIsLeftAsItWas) {
  const std::string before = drawing.Serialize();
  ErrorOf([&] { module.Insert(drawing, request); });
  EXPECT_EQ(drawing.Serialize(), before);
}

}  // namespace
}  // namespace teskarlt
