#pragma once
#include "platform/common/KTValue.h"

#include <functional>

struct interpreter; // perl's own name of its interpreter structure
struct sv;          // and of a scalar

/// One embedded Perl 5 interpreter. May be used by one thread at a time: each call first makes it the calling
/// thread's current interpreter. Lives as long as this object.
class KTPerlInterpreter {
public:
    /// A running interpreter. Ends the process with exit status 1 and a message on standard output when the
    /// interpreter library or its boot routine is missing.
    KTPerlInterpreter();
    ~KTPerlInterpreter();
    KTPerlInterpreter(const KTPerlInterpreter&) = delete;
    KTPerlInterpreter& operator=(const KTPerlInterpreter&) = delete;

    /// The value of one statement, evaluated in scalar context. An error inside is logged as "eval error: …";
    /// the value, then usually absent, is returned all the same.
    KTValue evaluate(const std::string& statement);
    /// The package scalar @p name (without sigil); absent when there is none.
    KTValue valueForVariable(const std::string& name);
    /// Assigns a text to the package scalar @p name; any other kind of value is ignored. Bytes that are not
    /// UTF-8 (a path may hold any) are assigned as they are.
    void setValueForVariable(const KTValue& value, const std::string& name);
    /// Evaluates @p statement, which must yield a reference to a flat list of group, name and value; hands
    /// each triple whose three parts convert to something to @p visit, in order.
    void evaluateTriples(
        const std::string& statement,
        const std::function<void(std::string_view group, std::string_view name, KTValue value)>& visit);

private:
    /// Evaluates and hands the resulting scalar to @p use before the temporaries are freed.
    void evaluateInto(const std::string& statement, const std::function<void(sv*)>& use);

    interpreter* perl = nullptr;
};
