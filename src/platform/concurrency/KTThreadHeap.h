#pragma once
#include <cstddef>

/// Lets the calling thread take @p bytes of memory, up to the 64 MB of one heap, without asking the system
/// for each page. The C library enlarges the heaps of all threads but the first page by page, with a system
/// call each that holds up the other threads; an interpreter that loads its modules makes thousands of them.
void KTReserveThreadHeap(std::size_t bytes);

/// Gives memory that is free in the heaps of all threads back to the system, which they keep by themselves.
/// Takes some milliseconds, in which threads that want memory wait. Any thread.
void KTReturnFreeMemory();
