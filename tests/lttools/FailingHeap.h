// FailingHeap.h - a process heap that counts blocks and can run out of memory.
#pragma once

// The allocation that fails next: 1 is the next one, 0 none.
void FailAllocation(int number);

// Blocks that are allocated and not yet released.
int LiveBlocks();
