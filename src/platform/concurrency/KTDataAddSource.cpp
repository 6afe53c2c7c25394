#include "platform/concurrency/KTDataAddSource.h"

#include <utility>

void KTDataAddSource::mergeData() {
    std::lock_guard guard(mutex);
    if (isCancelled || std::exchange(isPending, true))
        return;
    queue.async([self = shared_from_this()] { self->run(); });
}

void KTDataAddSource::cancel() {
    std::lock_guard guard(mutex);
    isCancelled = true;
}

void KTDataAddSource::run() {
    {
        std::lock_guard guard(mutex);
        isPending = false;
        if (isCancelled)
            return;
    }
    handler();
}
