// CompanionModuleTest.cpp - where companion modules are looked for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arx/exports/CompanionModule.h"
#include "platform/ModuleState.h"
#include "tests/support/FakeModules.h"

namespace brevanta {
namespace {

using fake_modules::TheWorld;
using testing::ElementsAre;
using testing::IsEmpty;

class CompanionModule : public testing::Test {
 protected:
  void SetUp() override { fake_modules::Reset(); }

  void RunHost(const std::string& name, const std::string& path) {
    TheWorld().running[name] = &host;
    TheWorld().fileNames[&host] = path;
  }
  // The name that the companion was loaded by, "" when no load was tried.
  std::string LoadedBy(const char* name) {
    TheWorld().calls.clear();
    LoadCompanionModule(name);
    constexpr const char* verb = "AfxLoadLibrary ";
    const auto& calls = TheWorld().calls;
    if (calls.empty() || calls.back().rfind(verb, 0) != 0) return "";
    return calls.back().substr(std::string(verb).size());
  }

  fake_modules::Module host;
  fake_modules::Module companion;
};

TEST_F(CompanionModule, NullNameGivesNull) {
  EXPECT_EQ(LoadCompanionModule(nullptr), nullptr);
  EXPECT_THAT(TheWorld().calls, IsEmpty());
}

TEST_F(CompanionModule, NameWithAPathIsLoadedAsItStands) {
  RunHost("TESKARLT.EXE", "C:\\Teskar\\TESKARLT.EXE");
  for (const char* name : {"C:\\Other\\X.CRX", "other/X.CRX", "\\X.CRX", "/X.CRX", "C:\\a/X.CRX"}) {
    TheWorld().calls.clear();
    LoadCompanionModule(name);
    EXPECT_THAT(TheWorld().calls, ElementsAre(std::string("AfxLoadLibrary ") + name));
  }
}

TEST_F(CompanionModule, StandAloneHostIsAskedForFirst) {
  RunHost("TESKARLT.EXE", "C:\\Teskar\\TESKARLT.EXE");
  TheWorld().running["TESKAR2D.ARX"] = &companion;
  LoadCompanionModule("X.CRX");
  EXPECT_THAT(TheWorld().calls, ElementsAre("GetModuleHandleA TESKARLT.EXE", "GetModuleFileNameA 1024",
                                            "AfxLoadLibrary C:\\Teskar\\X.CRX"));
}

TEST_F(CompanionModule, ExtensionModuleIsTheSecondForm) {
  RunHost("TESKAR2D.ARX", "C:\\Cad\\TESKAR2D.ARX");
  LoadCompanionModule("X.CRX");
  EXPECT_THAT(TheWorld().calls, ElementsAre("GetModuleHandleA TESKARLT.EXE", "GetModuleHandleA TESKAR2D.ARX",
                                            "GetModuleFileNameA 1024", "AfxLoadLibrary C:\\Cad\\X.CRX"));
}

TEST_F(CompanionModule, WithoutAHostTheOrdinarySearchFindsIt) {
  TheWorld().installed["X.CRX"] = &companion;
  EXPECT_EQ(LoadCompanionModule("X.CRX"), &companion);
  EXPECT_THAT(TheWorld().calls, ElementsAre("GetModuleHandleA TESKARLT.EXE", "GetModuleHandleA TESKAR2D.ARX",
                                            "AfxLoadLibrary X.CRX"));
}

TEST_F(CompanionModule, ForwardSeparatorsAreSeparators) {
  RunHost("TESKARLT.EXE", "/opt/teskar/teskarlt");
  EXPECT_EQ(LoadedBy("X.CRX"), "/opt/teskar/X.CRX");
}

TEST_F(CompanionModule, RightMostOfMixedSeparatorsCounts) {
  RunHost("TESKARLT.EXE", "C:\\teskar/bin\\TESKARLT.EXE");
  EXPECT_EQ(LoadedBy("X.CRX"), "C:\\teskar/bin\\X.CRX");
  RunHost("TESKARLT.EXE", "C:\\teskar\\bin/TESKARLT.EXE");
  EXPECT_EQ(LoadedBy("X.CRX"), "C:\\teskar\\bin/X.CRX");
}

TEST_F(CompanionModule, HostInTheRootFolder) {
  RunHost("TESKARLT.EXE", "/teskarlt");
  EXPECT_EQ(LoadedBy("X.CRX"), "/X.CRX");
}

TEST_F(CompanionModule, LongerNameThanTheHostsReplacesAllOfIt) {
  RunHost("TESKARLT.EXE", "C:\\T\\h");
  EXPECT_EQ(LoadedBy("MUCH_LONGER.CRX"), "C:\\T\\MUCH_LONGER.CRX");
}

TEST_F(CompanionModule, ShorterNameThanTheHostsReplacesAllOfIt) {
  RunHost("TESKARLT.EXE", "C:\\T\\TESKARLT.EXE");
  EXPECT_EQ(LoadedBy("X"), "C:\\T\\X");
}

TEST_F(CompanionModule, HostPathWithoutSeparatorIsNoFolder) {
  RunHost("TESKARLT.EXE", "TESKARLT.EXE");
  EXPECT_EQ(LoadedBy("X.CRX"), "X.CRX");
}

TEST_F(CompanionModule, HostWithoutFileNameIsNoFolder) {
  TheWorld().running["TESKARLT.EXE"] = &host;
  EXPECT_EQ(LoadedBy("X.CRX"), "X.CRX");
}

TEST_F(CompanionModule, MissingFromTheHostsFolderIsMissing) {
  RunHost("TESKARLT.EXE", "C:\\Teskar\\TESKARLT.EXE");
  TheWorld().installed["X.CRX"] = &companion;  // the ordinary search would find it
  EXPECT_EQ(LoadCompanionModule("X.CRX"), nullptr);
}

TEST_F(CompanionModule, PathThatFillsTheBufferIsLoaded) {
  const std::string folder = "/" + std::string(1016, 'a') + "/";  // 1018 + "X.CRX" + terminator = 1024
  RunHost("TESKARLT.EXE", folder + "h");
  EXPECT_EQ(LoadedBy("X.CRX"), folder + "X.CRX");
}

TEST_F(CompanionModule, PathTooLongForTheBufferGivesNull) {
  const std::string folder = "/" + std::string(1017, 'a') + "/";
  RunHost("TESKARLT.EXE", folder + "h");
  EXPECT_EQ(LoadCompanionModule("X.CRX"), nullptr);
  EXPECT_EQ(LoadedBy("X.CRX"), "");
  EXPECT_EQ(LoadedBy("X.CR"), folder + "X.CR");
}

TEST_F(CompanionModule, EmptyNameGivesTheFolder) {
  RunHost("TESKARLT.EXE", "C:\\T\\h");
  EXPECT_EQ(LoadedBy(""), "C:\\T\\");
}

TEST_F(CompanionModule, ModuleStateIsThisModulesDuringTheCallOnly) {
  LoadCompanionModule("X.CRX");
  EXPECT_THAT(TheWorld().inModuleState, testing::Each(true));
  EXPECT_EQ(AfxGetModuleState(), nullptr);
}

TEST_F(CompanionModule, ModuleStateOfTheCallerComesBack) {
  AFX_MODULE_STATE callers;
  const AFX_MAINTAIN_STATE2 scope(&callers);
  LoadCompanionModule(nullptr);
  EXPECT_EQ(AfxGetModuleState(), &callers);
  LoadCompanionModule("a/X.CRX");
  EXPECT_EQ(AfxGetModuleState(), &callers);
}

TEST(HostModule, ThereIsNoneWhenNeitherFormIsLoaded) {
  fake_modules::Reset();
  EXPECT_EQ(FindHostModule(), nullptr);
}

}  // namespace
}  // namespace brevanta
