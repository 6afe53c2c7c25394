#include "platform/concurrency/KTOperation.h"

void KTOperation::main() {
    if (block)
        block();
}

void KTOperation::start() {
    if (!cancelled)
        main();
    block = nullptr; // what it holds on to is not needed any more
    willChange("isFinished");
    finished = true;
    didChange("isFinished");
    ended.signal();
}
