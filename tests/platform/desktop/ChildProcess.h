#pragma once
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

/// Runs @p check in a child process that may do no more than an ordinary user; whether it returned true.
/// Folders that it uses must be open to everyone.
inline bool holdsForOrdinaryUser(const std::function<bool()>& check) {
    constexpr uid_t kNobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        const bool isOrdinary = ::geteuid() != 0 || (::setegid(kNobody) == 0 && ::seteuid(kNobody) == 0);
        ::_exit(isOrdinary && check() ? 0 : 1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}
