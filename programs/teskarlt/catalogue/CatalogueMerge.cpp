// CatalogueMerge.cpp - merges catalogues: checks before, the module's command, and a look at what became of
// it.
#include "teskarlt/catalogue/CatalogueMerge.h"

#include <filesystem>
#include <set>
#include <utility>

#include <fmt/format.h>

#include "platform/FileOperations.h"
#include "platform/FolderLock.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/host/DataFolder.h"
#include "teskarlt/host/WindowModule.h"

namespace teskarlt {

namespace {

constexpr std::size_t LONGEST_PATH = 511;  // bytes that the module's buffer for the backup's name holds

// Results of the module's merge.
constexpr std::int32_t MERGE_DONE = 0;
constexpr std::int32_t MERGE_NOT_WRITTEN = 1;
constexpr std::int32_t MERGE_NO_SOURCE = -1;
constexpr std::int32_t MERGE_NO_FOLDER = -2;

std::filesystem::path ToPath(const std::string& utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

std::string FolderOf(const std::string& path) {
  const auto separator = path.find_last_of("/\\");
  return separator == std::string::npos ? "." : path.substr(0, separator + 1);
}

bool Exists(const std::string& path) {
  return platform::StateOfFile(path).exists;
}

void CheckTarget(const std::string& source, const std::string& target) {
  if (target.size() < 3 || target.size() > LONGEST_PATH) {
    throw Error(fmt::format("{}: the path of a catalogue to merge into must have 3 to {} characters", target,
                            LONGEST_PATH));
  }
  if (Exists(BackupOf(target))) {
    throw Error(fmt::format(
        "{} lies there from an interrupted merge; teskarlt merge --recover brings that catalogue back",
        BackupOf(target)));
  }
  if (!Exists(target)) {
    throw Error(
        fmt::format("{}: there is no catalogue to merge into; copy {} there to begin with", target, source));
  }
  std::error_code error;
  if (std::filesystem::equivalent(ToPath(source), ToPath(target), error)) {
    throw Error(fmt::format("{} and {} are the same file", source, target));
  }
  if (!platform::StateOfFile(target).isWritable)
    throw Error(fmt::format("{}: the catalogue must not be written", target));
}

std::vector<std::string> WarningsOf(const Catalogue& source, const Catalogue& target) {
  std::vector<std::string> warnings;
  if (source.hasWindowsLineEnds != target.hasWindowsLineEnds) {
    const Catalogue& windows = source.hasWindowsLineEnds ? source : target;
    warnings.push_back(
        fmt::format("{} has Windows line ends (CR LF) and the other catalogue has not; where the system does "
                    "not know such line "
                    "ends, sections and windows of the same name count as different",
                    windows.path));
  }
  for (const Catalogue* catalogue : {&source, &target}) {
    if (catalogue->cutLines == 0) continue;
    warnings.push_back(fmt::format("{}: {} lines of more than 254 characters are cut into several",
                                   catalogue->path, catalogue->cutLines));
  }
  return warnings;
}

using ItemName = std::pair<std::string, std::string>;

std::set<ItemName> NamesOf(const Catalogue& catalogue) {
  std::set<ItemName> names;
  for (const CatalogueItem& item : catalogue.items)
    names.emplace(catalogue.sections[item.section], item.key);
  return names;
}

// Throws when an item of either catalogue is not in the merged one.
void CheckNothingLost(const Catalogue& source, const Catalogue& before, const Catalogue& after) {
  const std::set<ItemName> names = NamesOf(after);
  for (const Catalogue* catalogue : {&before, &source}) {
    for (const CatalogueItem& item : catalogue->items) {
      if (names.count({catalogue->sections[item.section], item.key}) != 0) continue;
      throw Error(fmt::format("{}: the merged catalogue lacks \"{}\" of {}", after.path,
                              CatalogueText(item.key), catalogue->path));
    }
  }
}

[[noreturn]] void FailMerge(std::int32_t result, const std::string& source, const std::string& target) {
  switch (result) {
    case MERGE_NOT_WRITTEN:
      throw Error(fmt::format(
          "{} could not be written; the catalogue as it was lies in {}, and teskarlt merge --recover "
          "brings it back",
          target, Exists(BackupOf(target)) ? BackupOf(target) : target));
    case MERGE_NO_SOURCE:
      throw Error(fmt::format("{} cannot be opened", source));
    case MERGE_NO_FOLDER:
      throw Error(
          fmt::format("the data folder {} cannot be used, or another merge is at work in it", DataFolder()));
    default:
      throw Error(fmt::format("the merge into {} failed with the result {}", target, result));
  }
}

// The module itself guards the data folder alone.
void LockFolderOf(const std::string& target, platform::FolderLock& lock) {
  if (lock.Take(FolderOf(target)) == platform::LockResult::Taken) return;
  throw Error(
      fmt::format("another merge is at work in the folder of {}, or the folder must not be written", target));
}

// Holds the data folder, which the module asks for once more, to the end of the merge.
class DataFolderClaim {
 public:
  DataFolderClaim() {
    const std::int32_t answer = AccessDataFolder(CATALOGUE_FOLDER, ACCESS_REQUEST);
    if (answer == ACCESS_GRANTED) return;
    throw Error(answer == ACCESS_UNUSABLE
                    ? fmt::format("the data folder {} does not exist or must not be written", DataFolder())
                    : fmt::format("another merge is at work in the data folder {}", DataFolder()));
  }
  ~DataFolderClaim() { AccessDataFolder(CATALOGUE_FOLDER, ACCESS_RELEASE); }
  DataFolderClaim(const DataFolderClaim&) = delete;
  DataFolderClaim& operator=(const DataFolderClaim&) = delete;
};

}  // namespace

std::string MergeTarget(const std::optional<std::string>& target) {
  return CatalogueIn(target ? *target : DataFolder());
}

std::string BackupOf(const std::string& target) {
  constexpr std::size_t ending = 3;
  return target.substr(0, target.size() < ending ? 0 : target.size() - ending) + "OLD";
}

MergeReport MergeCatalogues(const WindowModule& module, const std::string& source,
                            const std::optional<std::string>& target) {
  MergeReport report;
  report.target = MergeTarget(target);
  const std::string sourcePath = CatalogueIn(source);
  platform::FolderLock lock;
  std::optional<DataFolderClaim> claim;
  if (target) {
    LockFolderOf(report.target, lock);
  } else {
    claim.emplace();
  }
  CheckTarget(sourcePath, report.target);
  const Catalogue from = ReadCatalogue(sourcePath);
  const Catalogue before = ReadCatalogue(report.target);
  report.warnings = WarningsOf(from, before);

  const std::int32_t result = module.Merge(sourcePath, target ? std::optional(report.target) : std::nullopt);
  if (result != MERGE_DONE) FailMerge(result, sourcePath, report.target);
  const Catalogue after = ReadCatalogue(report.target);
  CheckNothingLost(from, before, after);
  report.newSections = after.sections.size() - before.sections.size();
  report.taken = after.items.size() - before.items.size();
  report.alreadyThere = from.items.size() - report.taken;
  report.total = after.items.size();
  return report;
}

Recovery RecoverCatalogue(const std::optional<std::string>& target) {
  Recovery recovery;
  recovery.target = MergeTarget(target);
  const std::string backup = BackupOf(recovery.target);
  if (!Exists(backup)) throw Error(fmt::format("{}: there is no catalogue of an interrupted merge", backup));
  platform::FolderLock lock;
  LockFolderOf(recovery.target, lock);
  const platform::FileBytes kept = platform::ReadWholeFile(backup);
  ReadCatalogue(backup);  // throws when it is none
  if (Exists(recovery.target)) {
    recovery.setAside = recovery.target + ".interrupted";
    platform::ReplaceFile(recovery.setAside, platform::ReadWholeFile(recovery.target).View());
  }
  platform::ReplaceFile(recovery.target, kept.View());
  const int error = platform::CurrentFileOperations().remove(backup);
  if (error == 0) return recovery;
  throw Error(fmt::format("{} was brought back, but {} cannot be removed: {}", recovery.target, backup,
                          platform::SystemReason(error)));
}

}  // namespace teskarlt
