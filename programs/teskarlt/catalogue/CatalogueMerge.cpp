// CatalogueMerge.cpp - merges catalogues: checks before, the module's command, and a look at what became of
// it.
#include "teskarlt/catalogue/CatalogueMerge.h"

#include <algorithm>
#include <filesystem>
#include <functional>

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

// What is compared of a catalogue before and after a merge; little, since catalogues may be large.
struct Digest {
  std::string path;
  std::size_t sections;
  std::size_t items;
  bool hasWindowsLineEnds;
  std::size_t cutLines;
  std::vector<std::size_t> names;  // hashes of section and key, in order
};

Digest DigestOf(const std::string& path) {
  const Catalogue catalogue = ReadCatalogue(path);
  const std::hash<std::string_view> hash;
  Digest digest{path,
                catalogue.sections.size(),
                catalogue.items.size(),
                catalogue.hasWindowsLineEnds,
                catalogue.cutLines,
                {}};
  digest.names.reserve(catalogue.items.size());
  for (const CatalogueItem& item : catalogue.items) {
    constexpr std::size_t spread = 31;
    digest.names.push_back(hash(catalogue.sections[item.section]) * spread + hash(item.key));
  }
  std::sort(digest.names.begin(), digest.names.end());
  return digest;
}

std::vector<std::string> WarningsOf(const Digest& source, const Digest& target) {
  std::vector<std::string> warnings;
  if (source.hasWindowsLineEnds != target.hasWindowsLineEnds) {
    warnings.push_back(
        fmt::format("{} has Windows line ends (CR LF) and the other catalogue has not; where the system does "
                    "not know such line "
                    "ends, sections and windows of the same name count as different",
                    source.hasWindowsLineEnds ? source.path : target.path));
  }
  for (const Digest* catalogue : {&source, &target}) {
    if (catalogue->cutLines == 0) continue;
    warnings.push_back(fmt::format("{}: {} lines of more than 254 characters are cut into several",
                                   catalogue->path, catalogue->cutLines));
  }
  return warnings;
}

// Throws when an item of either catalogue is not in the merged one.
void CheckNothingLost(const Digest& source, const Digest& before, const Digest& after) {
  for (const Digest* catalogue : {&before, &source}) {
    const bool isKept = std::all_of(catalogue->names.begin(), catalogue->names.end(), [&](std::size_t name) {
      return std::binary_search(after.names.begin(), after.names.end(), name);
    });
    if (isKept) continue;
    throw Error(fmt::format("{}: the merged catalogue lacks windows of {}", after.path, catalogue->path));
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
  const Digest from = DigestOf(sourcePath);
  const Digest before = DigestOf(report.target);
  report.warnings = WarningsOf(from, before);

  const std::int32_t result = module.Merge(sourcePath, target ? std::optional(report.target) : std::nullopt);
  if (result != MERGE_DONE) FailMerge(result, sourcePath, report.target);
  const Digest after = DigestOf(report.target);
  CheckNothingLost(from, before, after);
  report.newSections = after.sections - before.sections;
  report.taken = after.items - before.items;
  report.alreadyThere = from.items - report.taken;
  report.total = after.items;
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
    platform::WriteWholeFile(recovery.setAside, platform::ReadWholeFile(recovery.target).View());
  }
  platform::WriteWholeFile(recovery.target, kept.View());
  const int error = platform::CurrentFileOperations().remove(backup);
  if (error == 0) return recovery;
  throw Error(fmt::format("{} was brought back, but {} cannot be removed: {}", recovery.target, backup,
                          platform::SystemReason(error)));
}

}  // namespace teskarlt
