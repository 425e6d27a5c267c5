// FailingNew.h - a global operator new that counts and can run out of memory.
#pragma once

// The allocation that fails next: 1 is the next one, 0 none. Returns what was left of the number before, so 0
// tells that the failure came.
int FailNew(int number);

// Blocks of operator new that are allocated and not yet released.
int LiveNewBlocks();
