// ModuleServicesTest.cpp - the module services on Linux, over a module of strings and this very program.
#include <cstring>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/Export.h"
#include "platform/ModuleServices.h"
#include "tests/support/ProgramFolder.h"

// This program shows one function, as a host does.
PLATFORM_EXPORT int AnswerOfTheProgram();
int AnswerOfTheProgram() {
  return 42;
}

namespace {

std::string StringsPath() {
  return ProgramFolder() + "TestStrings.tkr";
}

class ModuleServices : public testing::Test {
 protected:
  void SetUp() override {
    strings = AfxLoadLibrary(StringsPath().c_str());
    ASSERT_NE(strings, nullptr);
  }
  void TearDown() override { FreeLibrary(strings); }

  HMODULE strings = nullptr;
};

TEST_F(ModuleServices, LoadedModuleIsFoundWithoutRegardToCase) {
  EXPECT_EQ(GetModuleHandleA("TestStrings.tkr"), strings);
  EXPECT_EQ(GetModuleHandleA("TESTSTRINGS.TKR"), strings);
  EXPECT_EQ(GetModuleHandleA("teststrings.tkr"), strings);
}

TEST_F(ModuleServices, PartOfAFileNameFindsNothing) {
  EXPECT_EQ(GetModuleHandleA("TestStrings"), nullptr);
  EXPECT_EQ(GetModuleHandleA("Strings.tkr"), nullptr);
}

TEST_F(ModuleServices, FindingAModuleDoesNotKeepIt) {
  for (int k = 0; k < 3; ++k)
    GetModuleHandleA("TestStrings.tkr");
  FreeLibrary(strings);
  EXPECT_EQ(GetModuleHandleA("TestStrings.tkr"), nullptr);
  strings = AfxLoadLibrary(StringsPath().c_str());
}

TEST_F(ModuleServices, EveryLoadNeedsItsOwnRelease) {
  EXPECT_EQ(AfxLoadLibrary(StringsPath().c_str()), strings);
  EXPECT_NE(FreeLibrary(strings), 0);
  EXPECT_EQ(GetModuleHandleA("TestStrings.tkr"), strings);
}

TEST(ModuleServicesProgram, ExeNameStandsForTheProgram) {
  HMODULE program = GetModuleHandleA(nullptr);
  ASSERT_NE(program, nullptr);
  EXPECT_EQ(GetModuleHandleA("services_test.EXE"), program);
  EXPECT_EQ(GetModuleHandleA("SERVICES_TEST.exe"), program);
}

TEST(ModuleServicesProgram, OnlyAnExeNameStandsForIt) {
  EXPECT_EQ(GetModuleHandleA("services_test"), nullptr);
  EXPECT_EQ(GetModuleHandleA("services_test.ARX"), nullptr);
  EXPECT_EQ(GetModuleHandleA("TESKARLT.EXE"), nullptr);
  EXPECT_EQ(GetModuleHandleA(".EXE"), nullptr);
  EXPECT_EQ(GetModuleHandleA(""), nullptr);
}

TEST(ModuleServicesProgram, ExportsOfTheProgramAreFound) {
  const auto answer = ExportedFunction<int (*)()>(GetModuleHandleA(nullptr), "AnswerOfTheProgram");
  ASSERT_NE(answer, nullptr);
  EXPECT_EQ(answer(), 42);
}

TEST_F(ModuleServices, MissingExportIsNull) {
  EXPECT_EQ(GetProcAddress(strings, "Dialog"), nullptr);
  EXPECT_NE(GetProcAddress(strings, "TeskarStringTable"), nullptr);
}

TEST_F(ModuleServices, FileNameIsTheFullPath) {
  char path[4096];
  const DWORD length = GetModuleFileNameA(strings, path, sizeof path);
  EXPECT_EQ(std::string(path), StringsPath());
  EXPECT_EQ(length, StringsPath().size());
}

TEST(ModuleServicesProgram, FileNameOfTheProgramIsItsPath) {
  char path[4096];
  const DWORD length = GetModuleFileNameA(nullptr, path, sizeof path);
  EXPECT_EQ(std::filesystem::path(std::string(path, length)),
            std::filesystem::read_symlink("/proc/self/exe"));
  char again[4096];
  GetModuleFileNameA(GetModuleHandleA(nullptr), again, sizeof again);
  EXPECT_STREQ(again, path);
}

TEST_F(ModuleServices, FileNameIsCutToTheBuffer) {
  char path[8];
  std::memset(path, 'x', sizeof path);
  EXPECT_EQ(GetModuleFileNameA(strings, path, 6), 6U);
  EXPECT_EQ(std::string(path), StringsPath().substr(0, 5));
  EXPECT_EQ(path[6], 'x');
}

TEST_F(ModuleServices, FileNameThatJustFitsIsNotCut) {
  std::string path(StringsPath().size() + 1, 'x');
  const auto size = static_cast<DWORD>(path.size());
  EXPECT_EQ(GetModuleFileNameA(strings, path.data(), size), size - 1);
  EXPECT_EQ(path.c_str(), StringsPath());
  EXPECT_EQ(GetModuleFileNameA(strings, path.data(), size - 1), size - 1);  // no room for the terminator: cut
  EXPECT_EQ(path.c_str(), StringsPath().substr(0, size - 2));
}

TEST_F(ModuleServices, NoBufferGetsNoFileName) {
  EXPECT_EQ(GetModuleFileNameA(strings, nullptr, 0), 0U);
}

TEST_F(ModuleServices, FileNameIsFullForAModuleLoadedByARelativePath) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(ProgramFolder());
  HMODULE other = AfxLoadLibrary("./OtherStrings.tkr");
  std::filesystem::current_path(before);
  ASSERT_NE(other, nullptr);
  char path[4096];
  GetModuleFileNameA(other, path, sizeof path);
  EXPECT_EQ(std::string(path), ProgramFolder() + "OtherStrings.tkr");
  EXPECT_EQ(GetModuleHandleA("otherstrings.tkr"), other);
  FreeLibrary(other);
}

TEST_F(ModuleServices, StringsAreFoundByNumber) {
  char text[200];
  EXPECT_EQ(LoadStringA(strings, 7, text, sizeof text), 5);
  EXPECT_STREQ(text, "seven");
  EXPECT_EQ(LoadStringA(strings, 60000, text, sizeof text), 3);
  EXPECT_STREQ(text, "far");
}

TEST_F(ModuleServices, StringIsCutToTheBuffer) {
  char text[] = "xxxxxxxx";
  EXPECT_EQ(LoadStringA(strings, 7, text, 4), 3);
  EXPECT_STREQ(text, "sev");
  EXPECT_EQ(text[4], 'x');
}

TEST_F(ModuleServices, StringThatJustFitsIsNotCut) {
  char text[6];
  EXPECT_EQ(LoadStringA(strings, 7, text, sizeof text), 5);
  EXPECT_STREQ(text, "seven");
}

TEST_F(ModuleServices, MissingStringIsEmpty) {
  char text[] = "before";
  EXPECT_EQ(LoadStringA(strings, 8, text, sizeof text), 0);
  EXPECT_STREQ(text, "");
}

TEST_F(ModuleServices, EmptyStringIsFoundEmpty) {
  char text[] = "before";
  EXPECT_EQ(LoadStringA(strings, 9, text, sizeof text), 0);
  EXPECT_STREQ(text, "");
}

TEST_F(ModuleServices, ModuleWithoutStringsGivesNone) {
  char text[] = "before";
  EXPECT_EQ(LoadStringA(GetModuleHandleA("libc.so.6"), 7, text, sizeof text), 0);
  EXPECT_STREQ(text, "");
  EXPECT_EQ(LoadStringA(nullptr, 7, text, sizeof text), 0);
}

TEST_F(ModuleServices, NoBufferGetsNoString) {
  char text[] = "before";
  EXPECT_EQ(LoadStringA(strings, 7, text, 0), 0);
  EXPECT_EQ(LoadStringA(strings, 7, text, -1), 0);
  EXPECT_STREQ(text, "before");
}

TEST(LoadingModules, MissingFileGivesNull) {
  EXPECT_EQ(AfxLoadLibrary((ProgramFolder() + "Missing.CRX").c_str()), nullptr);
  EXPECT_EQ(AfxLoadLibrary(nullptr), nullptr);
}

TEST(LoadingModules, EmptyNameIsNoModule) {
  EXPECT_EQ(AfxLoadLibrary(""), nullptr);
}

TEST(LoadingModules, NullModuleCannotBeReleased) {
  EXPECT_EQ(FreeLibrary(nullptr), 0);
}

TEST(LoadingModules, NullNameIsNoExport) {
  EXPECT_EQ(GetProcAddress(GetModuleHandleA(nullptr), nullptr), nullptr);
}

TEST(LoadingModules, FileThatIsNoModuleGivesNull) {
  EXPECT_EQ(AfxLoadLibrary("/proc/self/cmdline"), nullptr);
}

TEST(LoadingModules, NameWithoutAPathGoesThroughTheOrdinarySearch) {
  HMODULE library = AfxLoadLibrary("libm.so.6");
  ASSERT_NE(library, nullptr);
  FreeLibrary(library);
  EXPECT_EQ(AfxLoadLibrary("TestStrings.tkr"), nullptr);  // not in the program's own folder
}

}  // namespace
