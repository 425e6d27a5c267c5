// CatalogueMerge.cpp - merges catalogues: checks before,
// the module's command, and a look at what became of it.
#include "teskarlt/catalogue/CatalogueMerge.h"

#include <algorithm>
#include <filesystem>
#include <functional>

#include <fmt/format.h>

#include "inc/LibraryMerge.h"
#include "platform/FileOperations.h"
#include "platform/FolderLock.h"
#include "platform/ProgramEnd.h"
#include "teskarlt/Error.h"
#include "teskarlt/catalogue/Catalogue.h"
#include "teskarlt/catalogue/CatalogueEncoding.h"
#include "teskarlt/catalogue/CatalogueFolder.h"
#include "teskarlt/dxf/tags/TagValue.h"
#include "teskarlt/modules/DataFolder.h"
#include "teskarlt/modules/WindowModule.h"

namespace teskarlt {

namespace {

constexpr std::size_t LONGEST_PATH = 511;  // bytes that the module's buffer for the backup's name holds

// Where the catalogue really lies: the module renames what it is given, which would take a link for the file.
std::string BehindLinks(const std::string& path) {
  std::string target;
  return platform::CurrentFileOperations().linkTarget(path, target) == 0 ? target : path;
}

bool Exists(const std::string& path) {
  return platform::StateOfFile(path).exists;
}

void CheckTarget(const std::string& source, const std::string& target) {
  if (target.size() < 3 || target.size() > LONGEST_PATH) {
    throw Error(
        fmt::format("the path of a catalogue to merge into must have 3 to {} characters", LONGEST_PATH),
        {.file = target});
  }
  if (dxf::SameName(BackupOf(target), target)) {
    throw Error("this is the name of a backup; no catalogue to merge into may bear it", {.file = target});
  }
  if (Exists(BackupOf(target))) {
    throw Error(
        fmt::format("{} lies there from an interrupted merge; teskarlt merge --recover \"{}\" brings that "
                    "catalogue back",
                    BackupOf(target), target));
  }
  if (!Exists(target)) {
    throw Error(fmt::format("there is no catalogue to merge into; copy {} there to begin with", source),
                {.file = target});
  }
  std::error_code error;
  if (std::filesystem::equivalent(ToPath(source), ToPath(target), error)) {
    throw Error(fmt::format("{} and {} are the same file", source, target));
  }
  if (!platform::StateOfFile(target).isWritable)
    throw Error("the catalogue must not be written", {.file = target});
}

// What is compared of a catalogue before and after a merge; little, since catalogues may be large.
struct Digest {
  std::string path;
  std::size_t sections;
  std::size_t items;
  bool hasWindowsLineEnds;
  std::size_t cutLines;
  std::optional<CatalogueEncoding> encoding;  // none for ASCII
  std::vector<std::size_t> names;             // hashes of section and key
};

Digest DigestOf(const std::string& path) {
  const Catalogue catalogue = ReadCatalogue(path);
  const std::hash<std::string_view> hash;
  Digest digest{path,
                catalogue.sections.size(),
                catalogue.items.size(),
                catalogue.hasWindowsLineEnds,
                catalogue.cutLines,
                EncodingOf(catalogue.file.View()),
                {}};
  digest.names.reserve(catalogue.items.size());
  for (const CatalogueItem& item : catalogue.items) {
    constexpr std::size_t spread = 31;
    digest.names.push_back(hash(catalogue.sections[item.section]) * spread + hash(item.key));
  }
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
void CheckNothingLost(const Digest& source, const Digest& before, Digest& after) {
  std::sort(after.names.begin(), after.names.end());
  for (const Digest* catalogue : {&before, &source}) {
    const bool isKept = std::all_of(catalogue->names.begin(), catalogue->names.end(), [&](std::size_t name) {
      return std::binary_search(after.names.begin(), after.names.end(), name);
    });
    if (isKept) continue;
    throw Error(fmt::format("the merged catalogue lacks windows of {}", catalogue->path),
                {.file = after.path});
  }
}

[[noreturn]] void FailMerge(std::int32_t result, const std::string& source, const std::string& target) {
  switch (result) {
    case brevanta::MERGE_NOT_POSSIBLE:
      if (!Exists(BackupOf(target)))
        throw Error(fmt::format("{} could not be rewritten; it is what it was", target));
      throw Error(
          fmt::format("{} could not be written; the catalogue as it was lies in {}, and teskarlt merge "
                      "--recover \"{}\" brings it back",
                      target, BackupOf(target), target));
    case brevanta::MERGE_NO_SOURCE:
      throw Error(fmt::format("{} cannot be opened", source));
    case brevanta::MERGE_NO_DATA_FOLDER:
      throw Error(
          fmt::format("the data folder {} cannot be used, or another merge is at work in it", DataFolder()));
    default:
      throw Error(fmt::format("the merge into {} failed with the result {}", target, result));
  }
}

// Holds the data folder, which the module asks for once more, to the end of the merge.
class DataFolderClaim {
 public:
  DataFolderClaim() {
    const std::int32_t answer = AccessDataFolder(brevanta::CATALOGUE_FOLDER_KIND, brevanta::FOLDER_REQUEST);
    if (answer == brevanta::FOLDER_GRANTED) return;
    throw Error(answer == brevanta::FOLDER_UNUSABLE
                    ? fmt::format("the data folder {} does not exist or must not be written", DataFolder())
                    : fmt::format("another merge is at work in the data folder {}", DataFolder()));
  }
  ~DataFolderClaim() { AccessDataFolder(brevanta::CATALOGUE_FOLDER_KIND, brevanta::FOLDER_RELEASE); }
  DataFolderClaim(const DataFolderClaim&) = delete;
  DataFolderClaim& operator=(const DataFolderClaim&) = delete;
};

// 0, or the system's error number.
int WriteNew(const std::string& path, std::string_view bytes) {
  const platform::FileOperations& operations = platform::CurrentFileOperations();
  platform::FileHandle file = 0;
  int error = operations.createNew(path, file);
  if (error != 0) return error;
  for (std::size_t count = 0; error == 0 && !bytes.empty(); bytes.remove_prefix(count))
    error = operations.write(file, bytes.data(), bytes.size(), count);
  const int closing = operations.close(file);
  return error != 0 ? error : closing;
}

// Writes a file that is only there for the merge: nothing that the user has is changed by it.
void WriteAside(const std::string& path, std::string_view bytes) {
  const platform::FileOperations& operations = platform::CurrentFileOperations();
  operations.remove(path);  // of a merge that was killed
  platform::RemoveAtEnd(path);
  const int error = WriteNew(path, bytes);
  if (error == 0) return;
  operations.remove(path);
  throw Error("cannot be written: " + platform::SystemReason(error), {.file = path});
}

// The source as the module merges it, which takes bytes as they are: in the target's encoding, as a file of
// its own beside the target where that is not the source's.
class SourceInEncoding {
 public:
  // `said` is what the user says of the source's encoding; empty: what its bytes say.
  SourceInEncoding(const Digest& source, const Digest& target, const std::string& said) : path_(source.path) {
    if (!source.encoding) return;  // the same in all encodings
    const CatalogueEncoding from = said.empty() ? *source.encoding : EncodingNamed(said);
    const CatalogueEncoding to = target.encoding.value_or(ReadableLike(from));
    if (from == to && said.empty()) return;
    const std::string converted =
        Converted(platform::ReadWholeFile(source.path).View(), from, to, source.path);
    if (from == to) return;
    path_ = target.path + ".source.tmp";
    isConverted_ = true;
    WriteAside(path_, converted);
    note_ = fmt::format("the windows of {}, which is in {}, are taken over in {}", source.path, NameOf(from),
                        NameOf(to));
  }
  ~SourceInEncoding() {
    if (!isConverted_) return;
    platform::CurrentFileOperations().remove(path_);
    platform::RemoveAtEnd("");
  }
  SourceInEncoding(const SourceInEncoding&) = delete;
  SourceInEncoding& operator=(const SourceInEncoding&) = delete;

  const std::string& Path() const { return path_; }

  // What became of it, for people; empty when nothing did.
  const std::string& Note() const { return note_; }

 private:
  std::string path_;
  std::string note_;
  bool isConverted_ = false;
};

// Holds the catalogue open while the module rewrites it, so that its bytes can be had even when the module
// has removed it and its backup.
class HeldCatalogue {
 public:
  explicit HeldCatalogue(const std::string& path) : path_(path) {
    if (const int error = operations_.openToRead(path, file_); error != 0)
      throw Error("cannot be opened: " + platform::SystemReason(error), {.file = path});
  }
  ~HeldCatalogue() { operations_.close(file_); }
  HeldCatalogue(const HeldCatalogue&) = delete;
  HeldCatalogue& operator=(const HeldCatalogue&) = delete;

  // Makes the catalogue what it was.
  void PutBack() const {
    platform::FileReplacement replacement(path_);
    std::vector<char> block(std::size_t{1} << 16);
    for (std::size_t count = 1; count > 0;) {
      if (const int error = operations_.read(file_, block.data(), block.size(), count); error != 0)
        throw Error("cannot be brought back: " + platform::SystemReason(error), {.file = path_});
      replacement.Write({block.data(), count});
    }
    replacement.Commit();
  }

 private:
  const platform::FileOperations& operations_ = platform::CurrentFileOperations();
  std::string path_;
  platform::FileHandle file_ = 0;
};

// The merged catalogue, looked at; when it lacks anything the old one is put back.
Digest LookAtMerged(const Digest& source, const Digest& before, const HeldCatalogue& old) {
  try {
    Digest after = DigestOf(before.path);
    CheckNothingLost(source, before, after);
    return after;
  } catch (const Error& error) {
    old.PutBack();
    throw Error(fmt::format("{}; {} is again what it was", error.Message(), before.path), error.Place());
  } catch (...) {
    old.PutBack();
    throw;
  }
}

// The module does not look whether its backup could be removed; left behind, it would stop the next merge.
void RemoveBackup(const std::string& target, std::vector<std::string>& warnings) {
  const std::string backup = BackupOf(target);
  if (!Exists(backup)) return;
  const int error = platform::CurrentFileOperations().remove(backup);
  if (error == 0) return;
  warnings.push_back(fmt::format("{} is done, but its backup {} cannot be removed: {}", target, backup,
                                 platform::SystemReason(error)));
}

}  // namespace

std::string MergeTarget(const std::optional<std::string>& target) {
  return target ? BehindLinks(CatalogueIn(*target)) : CatalogueIn(DataFolder());
}

std::string BackupOf(const std::string& target) {
  constexpr std::size_t ending = std::string_view(brevanta::BACKUP_ENDING).size();
  return target.substr(0, target.size() < ending ? 0 : target.size() - ending) + brevanta::BACKUP_ENDING;
}

MergeReport MergeCatalogues(const WindowModule& module, const std::string& source,
                            const std::optional<std::string>& target, const std::string& encoding) {
  MergeReport report;
  report.target = MergeTarget(target);
  const std::string sourcePath = CatalogueIn(source);
  platform::FolderLock lock;
  std::optional<DataFolderClaim> claim;
  if (target) {  // the module itself guards the data folder alone
    LockFolderOf(report.target, lock);
  } else {
    claim.emplace();
  }
  CheckTarget(sourcePath, report.target);
  if (BehindLinks(report.target) != report.target)
    throw Error(fmt::format("{} is a link; say as TARGET which catalogue it leads to", report.target));
  Digest from = DigestOf(sourcePath);
  const Digest before = DigestOf(report.target);
  const SourceInEncoding encoded(from, before, encoding);
  if (!encoded.Note().empty()) from = DigestOf(encoded.Path());
  from.path = sourcePath;
  report.warnings = WarningsOf(from, before);
  if (!encoded.Note().empty()) report.warnings.push_back(encoded.Note());

  std::optional<HeldCatalogue> old(report.target);
  const auto rights = std::filesystem::status(ToPath(report.target)).permissions();
  const std::int32_t result =
      module.Merge(encoded.Path(), target ? std::optional(report.target) : std::nullopt);
  if (result != brevanta::MERGE_DONE) FailMerge(result, sourcePath, report.target);
  const Digest after = LookAtMerged(from, before, *old);
  old.reset();  // where an open file keeps its name after its removal, that ends here
  RemoveBackup(report.target, report.warnings);
  std::error_code ignored;  // another owner's rights cannot always be given
  std::filesystem::permissions(ToPath(report.target), rights, ignored);
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
  if (!Exists(backup)) throw Error("there is no catalogue of an interrupted merge", {.file = backup});
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
