// CatalogueMerge.h - merges one catalogue into another through the module, and looks after both.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace teskarlt {

class WindowModule;

struct MergeReport {
  std::string target;            // UTF-8
  std::size_t newSections = 0;   // that only the source had
  std::size_t taken = 0;         // items that came into the target
  std::size_t alreadyThere = 0;  // items of the source that the target had, or that stood in it twice
  std::size_t total = 0;         // items of the target now
  std::vector<std::string> warnings;
};

// The catalogue to merge into: `target`, or without it the one in the data folder.
std::string MergeTarget(const std::optional<std::string>& target);

// The name under which the module keeps the catalogue while it writes the new one.
std::string BackupOf(const std::string& target);

// Merges; what is in another encoding than the target is converted into that. `encoding` is that of the
// source, by a name of CatalogueEncoding.h; empty: by its bytes. Throws Error, with both files as they were,
// when one of them cannot be used or converted, an interrupted merge has left its backup, or another process
// is at work; and when the module fails, with the place of the complete catalogue.
MergeReport MergeCatalogues(const WindowModule& module, const std::string& source,
                            const std::optional<std::string>& target, const std::string& encoding = {});

struct Recovery {
  std::string target;    // the catalogue that was brought back
  std::string setAside;  // where what stood in its place lies now; empty when nothing did
};

// Brings the catalogue back that an interrupted merge has left as a backup. Throws Error when there is none
// or it is no catalogue.
Recovery RecoverCatalogue(const std::optional<std::string>& target);

}  // namespace teskarlt
