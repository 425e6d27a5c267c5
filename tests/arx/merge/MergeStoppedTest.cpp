// MergeStoppedTest.cpp - the process is killed at each
// file operation of a merge: one whole catalogue is left.
#include <csignal>
#include <filesystem>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include "MergeFixture.h"
#include "ScriptedStdio.h"

namespace brevanta {
namespace {

using Moment = ScriptedStdio::Moment;

class StoppedMerge : public MergeTest {
 protected:
  static std::string Catalogue(const std::string& key, int items) {
    std::string text = "# preamble\n";
    for (int i = 0; i < items; ++i) {
      if (i % 500 == 0) text += "\nVYROBCE " + std::to_string(i / 500) + "\n";
      text += key + std::to_string(i) + "; 78; 118; description of an item\n";
    }
    return text;
  }

  // Runs the merge in a child that is killed at this moment of this operation; false when it came to its end.
  bool MergeStopped(int number, Moment moment) const {
    const pid_t child = fork();
    if (child == 0) {
      ScriptedStdio stdio;
      stdio.Interrupt(number, [moment](Moment now) {
        if (now == moment) kill(getpid(), SIGKILL);
      });
      Merge();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status);
  }

  int CountOperations() const {
    const ScriptedStdio stdio;
    Merge();
    return static_cast<int>(stdio.Operations().size());
  }

  // Stops the merge at this moment of each operation and returns how many times it was stopped.
  int StopEverywhere(Moment moment) {
    const std::string target = Catalogue("t", 5000);
    const std::string source = Catalogue("s", 3000);
    const std::string merged = Merged(target, source);
    Write(target, source);
    const int operations = CountOperations();
    int stops = 0;
    for (int number = 1; number <= operations; ++number) {
      Write(target, source);
      std::filesystem::remove(Backup());
      stops += MergeStopped(number, moment) ? 1 : 0;
      const std::string left = ReadText(Target());
      EXPECT_TRUE(left == target || left == merged || ReadText(Backup()) == target) << number;
      EXPECT_EQ(ReadText(Source()), source);
    }
    return stops;
  }
};

TEST_F(StoppedMerge, WholeCatalogueIsLeftBeforeEveryOperation) {
  EXPECT_GT(StopEverywhere(Moment::BEFORE), 20);
}

TEST_F(StoppedMerge, WholeCatalogueIsLeftWithinEveryWrite) {
  EXPECT_GT(StopEverywhere(Moment::WITHIN), 4);
}

TEST_F(StoppedMerge, WholeCatalogueIsLeftAfterEveryOperation) {
  EXPECT_GT(StopEverywhere(Moment::AFTER), 20);
}

}  // namespace
}  // namespace brevanta
