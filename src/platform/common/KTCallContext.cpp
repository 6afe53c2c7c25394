#include "platform/common/KTCallContext.h"

KTCallContext& KTCallContext::current() {
    static thread_local KTCallContext context;
    return context;
}

KTCallMark::KTCallMark(const void* meaning) : mark(meaning), previous(KTCallContext::current().marks) {
    KTCallContext::current().marks = this;
}

KTCallMark::~KTCallMark() {
    KTCallContext::current().marks = previous;
}

int KTCallMark::count(const void* meaning) {
    int result = 0;
    for (const KTCallMark* mark = KTCallContext::current().marks; mark != nullptr; mark = mark->previous)
        result += mark->mark == meaning ? 1 : 0;
    return result;
}
