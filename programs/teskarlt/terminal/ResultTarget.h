// ResultTarget.h - which file a command reads, where its result goes, and what is said of that.
#pragma once

#include <functional>
#include <string>

#include "teskarlt/terminal/Json.h"
#include "teskarlt/terminal/Options.h"

namespace teskarlt {

class ResultTarget {
 public:
  ResultTarget() = default;
  // What the file holds, as the help calls it.
  explicit ResultTarget(const char* thing) : thing_(thing) {}

  // Add FILE, -o with --backup, and --dry-run to the command. The object must outlive the parsing.
  void AddFile(Subcommand& command);
  void AddOutput(Subcommand& command);
  void AddDryRun(Subcommand& command);

  // The file that is read.
  const std::string& File() const { return file_; }
  // Where FILE stands for another file, as a folder does for the catalogue in it.
  void ReadInstead(const std::string& file) { file_ = file; }
  // The file that is written: without -o the one that is read.
  const std::string& Path() const { return IsNamed() ? output_ : file_; }
  // Whether the user named a file of its own for the result, which is written then though nothing changed.
  bool IsNamed() const { return !output_.empty(); }
  bool IsDryRun() const { return isDryRun_; }

  // Lets `save` write the file, unless it is a dry run; with --backup a file that it replaces is kept
  // (Backup.h).
  void Write(const std::function<void(const std::string& path)>& save);

  // The end of a sentence about the result: "added; written to out.dxf" or, where nothing was written, "would
  // be added; nothing was written (dry run)" and "could be added; nothing was written", with "added" for
  // `done` and "be added" for `planned`. A backup is named.
  std::string Ending(const char* done, const char* planned) const;

  // The same where there was nothing to do: "nothing was written" or "written to out.dxf as it was".
  std::string UnchangedEnding() const;

  // The members of an answer for programs: "file", which is null where nothing was written, "dryRun", and
  // with
  // --backup "backup", which is null where nothing was kept.
  void AddTo(Json& answer) const;

 private:
  // "out.dxf", and where what was replaced is kept.
  std::string WrittenPath() const;

  const char* thing_ = "drawing";
  std::string file_;
  std::string output_;
  bool wantsBackup_ = false;
  bool isKept_ = false;  // what was replaced
  bool isDryRun_ = false;
  bool isWritten_ = false;
};

}  // namespace teskarlt
