#include "metadata/KTPerlInterpreter.h"

#include "metadata/KTPerlVersion.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"

#include <dlfcn.h>
#include <mutex>

// perl's headers redefine much; they come last and stay in this file.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wshadow"
#include <EXTERN.h>
#include <perl.h>
#pragma GCC diagnostic pop

// Statements of perl's macros expand in our functions.
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wcast-align"
#pragma GCC diagnostic ignored "-Wunused-value"

namespace {

using BootRoutine = void (*)(pTHX_ CV*);
BootRoutine bootDynaLoader = nullptr;
constexpr const char* kSourceName = "KTExifTool";
constexpr int kFractionalDigits = 12;

/// The library is linked already; this finds it again for its boot routine, which no header declares.
void findBootRoutine() {
    void* library = dlopen(WAYMARK_PERL_SONAME, RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr) {
        std::printf("[%s] Unable to load library: %s\n", kSourceName, dlerror());
        std::exit(1);
    }
    bootDynaLoader = reinterpret_cast<BootRoutine>(dlsym(library, "boot_DynaLoader"));
    if (bootDynaLoader == nullptr) {
        std::printf("[%s] Unable to get symbol: %s\n", kSourceName, dlerror());
        std::exit(1);
    }
}

void xs_init(pTHX) {
    newXS("DynaLoader::boot_DynaLoader", bootDynaLoader, kSourceName);
}

void initialiseSystemOnce() {
    static const bool done = [] {
        findBootRoutine();
        setenv("PERL_BADLANG", "0", 0); // no warning where the machine lacks the user's locale
        static char name[] = "", evaluate[] = "-e", nothing[] = "0";
        static char* arguments[] = {name, evaluate, nothing, nullptr};
        static char* noEnvironment[] = {nullptr};
        int count = 3;
        char** argumentsPointer = arguments;
        char** environmentPointer = noEnvironment;
        PERL_SYS_INIT3(&count, &argumentsPointer, &environmentPointer);
        // Taking perl's process-wide state down would need every interpreter gone; it goes with the process.
        return true;
    }();
    static_cast<void>(done);
}

KTValue valueOfScalar(pTHX_ SV* scalar);

KTValue valueOfArray(pTHX_ AV* array) {
    KTValue::List list;
    SSize_t last = av_top_index(array);
    list.reserve(static_cast<std::size_t>(last + 1));
    for (SSize_t i = 0; i <= last; ++i) {
        SV** element = av_fetch(array, i, 0);
        KTValue value = element != nullptr ? valueOfScalar(aTHX_ * element) : KTValue();
        if (value.isSomething())
            list.push_back(std::move(value));
    }
    return KTValue(std::move(list));
}

/// The order of the tests decides: a scalar that has been used as a number and as text holds both.
KTValue valueOfScalar(pTHX_ SV* scalar) {
    if (scalar == nullptr)
        return {};
    SvGETMAGIC(scalar);
    if (SvNOK(scalar))
        return KTDecimal::fromDouble(SvNVX(scalar)).rounded(kFractionalDigits);
    if (SvIOK(scalar)) {
        if (SvIsUV(scalar) && SvUVX(scalar) > static_cast<UV>(INT64_MAX))
            return KTDecimal::fromUnsigned(SvUVX(scalar));
        return static_cast<std::int64_t>(SvIVX(scalar));
    }
    if (SvPOK(scalar)) {
        std::string_view bytes(SvPVX_const(scalar), SvCUR(scalar));
        return KTIsUTF8(bytes) ? KTValue(bytes) : KTValue();
    }
    if (SvROK(scalar))
        return valueOfScalar(aTHX_ SvRV(scalar));
    if (SvTYPE(scalar) == SVt_PVAV)
        return valueOfArray(aTHX_ reinterpret_cast<AV*>(scalar));
    return {};
}

} // namespace

KTPerlInterpreter::KTPerlInterpreter() {
    initialiseSystemOnce();
    static std::mutex constructing; // what perl does here touches the process (locale, signals)
    std::lock_guard guard(constructing);
    perl = perl_alloc();
    PERL_SET_CONTEXT(perl);
    perl_construct(perl);
    dTHXa(perl);
    PL_exit_flags |= PERL_EXIT_DESTRUCT_END;
    static char name[] = "", evaluate[] = "-e", nothing[] = "0";
    char* arguments[] = {name, evaluate, nothing, nullptr};
    perl_parse(perl, xs_init, 3, arguments, nullptr);
    perl_run(perl);
}

KTPerlInterpreter::~KTPerlInterpreter() {
    PERL_SET_CONTEXT(perl);
    perl_destruct(perl);
    perl_free(perl);
}

void KTPerlInterpreter::evaluateInto(const std::string& statement, const std::function<void(SV*)>& use) {
    PERL_SET_CONTEXT(perl);
    dTHXa(perl);
    ENTER;
    SAVETMPS;
    SV* code = newSVpvn_flags(statement.data(), statement.size(), SVf_UTF8 | SVs_TEMP);
    eval_sv(code, G_SCALAR);
    dSP;
    SV* result = POPs;
    PUTBACK;
    SV* error = ERRSV;
    if (SvTRUE(error))
        KTLog(KTStringWithFormat("eval error: %@", {SvPV_nolen(error)}));
    use(result);
    FREETMPS;
    LEAVE;
}

KTValue KTPerlInterpreter::evaluate(const std::string& statement) {
    KTValue value;
    evaluateInto(statement, [&](SV* result) {
        dTHXa(perl);
        value = valueOfScalar(aTHX_ result);
    });
    return value;
}

KTValue KTPerlInterpreter::valueForVariable(const std::string& name) {
    PERL_SET_CONTEXT(perl);
    dTHXa(perl);
    return valueOfScalar(aTHX_ get_sv(name.c_str(), 0));
}

void KTPerlInterpreter::setValueForVariable(const KTValue& value, const std::string& name) {
    const std::string* text = value.text();
    if (text == nullptr)
        return;
    PERL_SET_CONTEXT(perl);
    dTHXa(perl);
    SV* scalar = get_sv(name.c_str(), GV_ADD);
    sv_setpvn(scalar, text->data(), text->size());
    if (KTIsUTF8(*text))
        SvUTF8_on(scalar);
    else
        SvUTF8_off(scalar);
    SvSETMAGIC(scalar);
}

void KTPerlInterpreter::evaluateTriples(
    const std::string& statement,
    const std::function<void(std::string_view group, std::string_view name, KTValue value)>& visit) {
    evaluateInto(statement, [&](SV* result) {
        if (!SvROK(result) || SvTYPE(SvRV(result)) != SVt_PVAV)
            return;
        dTHXa(perl);
        AV* array = reinterpret_cast<AV*>(SvRV(result));
        auto at = [&](SSize_t index) {
            SV** element = av_fetch(array, index, 0);
            return element != nullptr ? valueOfScalar(aTHX_ * element) : KTValue();
        };
        for (SSize_t i = 0, last = av_top_index(array); i + 2 <= last; i += 3) {
            KTValue value = at(i + 2);
            if (!value.isSomething())
                continue;
            KTValue group = at(i), name = at(i + 1);
            visit(group.description(), name.description(), std::move(value));
        }
    });
}

std::string KTPerlVersion() {
    return std::to_string(PERL_REVISION) + "." + std::to_string(PERL_VERSION) + "." +
           std::to_string(PERL_SUBVERSION);
}
