// ResultTarget.cpp - which file a command reads, where its result goes, and what is said of that.
#include "teskarlt/terminal/ResultTarget.h"

#include <fmt/format.h>

#include "teskarlt/terminal/Backup.h"

namespace teskarlt {

void ResultTarget::AddFile(Subcommand& command) {
  command.Argument("FILE", file_, fmt::format("the {}", thing_).c_str()).Required();
}

void ResultTarget::AddOutput(Subcommand& command) {
  command
      .Value("-o,--output", output_,
             fmt::format("the {} to write; without it FILE is replaced", thing_).c_str())
      .Named("FILE")
      .NotEmpty();
  command.Flag("--backup", wantsBackup_,
               fmt::format("keep the {} that is replaced beside the new one, as FILE.bak; teskarlt undo goes "
                           "back to it",
                           thing_)
                   .c_str());
}

void ResultTarget::AddDryRun(Subcommand& command) {
  command.Flag("--dry-run", isDryRun_, "say what would be done and write nothing");
}

void ResultTarget::Write(const std::function<void(const std::string& path)>& save) {
  if (isDryRun_) return;
  if (wantsBackup_) isKept_ = KeepBackup(Path());
  save(Path());
  isWritten_ = true;
  if (isKept_) SealBackup(Path());
}

std::string ResultTarget::WrittenPath() const {
  return isKept_ ? fmt::format("{}, and what it was to {}", Path(), BackupPath(Path())) : Path();
}

std::string ResultTarget::Ending(const char* done, const char* planned) const {
  if (isWritten_) return fmt::format("{}; written to {}", done, WrittenPath());
  if (isDryRun_) return fmt::format("would {}; nothing was written (dry run)", planned);
  return fmt::format("could {}; nothing was written", planned);
}

std::string ResultTarget::UnchangedEnding() const {
  return isWritten_ ? fmt::format("written to {} as it was", Path()) : "nothing was written";
}

void ResultTarget::AddTo(Json& answer) const {
  answer["file"] = isWritten_ ? Json(Path()) : Json(nullptr);
  answer["dryRun"] = isDryRun_;
  if (wantsBackup_) answer["backup"] = isKept_ ? Json(BackupPath(Path())) : Json(nullptr);
}

}  // namespace teskarlt
