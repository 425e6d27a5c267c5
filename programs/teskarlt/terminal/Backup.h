// Backup.h - the state of a file before a command wrote it, kept beside it, and the way back to it.
#pragma once

#include <string>

namespace teskarlt {

// Beside "house.dxf" lie "house.dxf.bak", which holds its bytes as they were, and "house.dxf.undo", which
// tells by size and digest what both files held when the command had written. Paths are UTF-8.
std::string BackupPath(const std::string& path);
std::string UndoPath(const std::string& path);

// Keeps the file as it is before it is written; an older backup gives way. False, and nothing is kept, where
// there is no file yet, or one that cannot be written anyway. Throws Error.
bool KeepBackup(const std::string& path);

// Notes what was written over the file of which a backup was kept. Throws Error.
void SealBackup(const std::string& path);

// Throws Error where no backup was kept of the file, or where the file or its backup is not what it was when
// the command had written.
void CheckUndo(const std::string& path);

// Puts the backup in the place of the file, after CheckUndo, and takes it away. Throws Error.
void RestoreBackup(const std::string& path);

}  // namespace teskarlt
