#include "platform/concurrency/KTThreadHeap.h"

#include <cstdlib>
#include <malloc.h>
#include <vector>

namespace {

constexpr std::size_t kBlock = 96 * 1024; // below the size from which a block is not of the heap

} // namespace

/// What is given back stays writable: the library then at most tells the system that the content is not
/// needed.
void KTReserveThreadHeap(std::size_t bytes) {
    std::vector<void*> blocks(bytes / kBlock);
    for (void*& block : blocks)
        block = std::malloc(kBlock);
    for (void* block : blocks)
        std::free(block);
}

void KTReturnFreeMemory() {
    malloc_trim(0);
}
