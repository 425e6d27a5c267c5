// MergeHost.cpp - the smallest host of a merge: loads the
// module and calls its export, to time the whole process.
#include <cstdio>

#include "inc/LibraryMerge.h"
#include "platform/ModuleServices.h"

// merge_host MODULE SOURCE TARGET: the exit status is 0 when the merge is done.
int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: merge_host MODULE SOURCE TARGET\n");
    return 2;
  }
  HMODULE module = AfxLoadLibrary(argv[1]);
  if (module == nullptr) return 2;
  const auto merge =
      ExportedFunction<brevanta::MergeLibraryFilesFunction>(module, brevanta::MERGE_LIBRARY_FILES_EXPORT);
  const std::int32_t result = merge(nullptr, argv[2], argv[3], brevanta::CATALOGUE_FOLDER_KIND);
  FreeLibrary(module);
  return result == brevanta::MERGE_DONE ? 0 : 1;
}
