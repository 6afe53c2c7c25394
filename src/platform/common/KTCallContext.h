#pragma once

/// What is known of the logical call that a thread is in: a thread's own chain of calls, together with the
/// calls that it makes on the main thread and waits for. Such a call runs under its caller's context, not
/// under that of whatever the main thread was doing.
struct KTCallContext {
    const class KTCallMark* marks = nullptr;
    int calloutDepth = 0;
    int heldLeafQueues = 0;

    /// The context of the calling thread.
    static KTCallContext& current();
};

/// Marks the present logical call for as long as the object lives: "edits of this photo are not tracked",
/// "this manager is undoing". Marks nest; each lives on the stack of the thread that makes it.
class KTCallMark {
public:
    /// @p meaning is an address that only the one who asks for the mark knows.
    explicit KTCallMark(const void* meaning);
    ~KTCallMark();
    KTCallMark(const KTCallMark&) = delete;
    KTCallMark& operator=(const KTCallMark&) = delete;

    /// How many such marks the calling thread's logical call carries.
    static int count(const void* meaning);

private:
    const void* const mark;
    const KTCallMark* const previous;
};

/// While it lives, the thread runs code that it does not know: observers of an announcement, or a call that
/// another thread waits for. Such code must not wait for a queue whose work announces or waits for the main
/// thread (KTSerialQueue asserts it); it posts instead.
class KTCallout {
public:
    KTCallout() { ++KTCallContext::current().calloutDepth; }
    ~KTCallout() { --KTCallContext::current().calloutDepth; }
    KTCallout(const KTCallout&) = delete;
    KTCallout& operator=(const KTCallout&) = delete;

    static bool isUnderWay() { return KTCallContext::current().calloutDepth > 0; }
};
