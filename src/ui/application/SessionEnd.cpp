#include "ui/application/SessionEnd.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

int signalPipe[2] = {-1, -1}; // a signal handler may do no more than write

void noteSignal(int) {
    const int error = errno;
    [[maybe_unused]] const auto ignored = ::write(signalPipe[1], "!", 1);
    errno = error;
}

} // namespace

SessionEnd::SessionEnd(std::function<bool()> mayEnd, std::function<void()> end)
    : mayEndNow(std::move(mayEnd)), endNow(std::move(end)) {
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::commitData,
            Qt::DirectConnection);
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* const notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (::read(signalPipe[0], bytes, sizeof bytes) > 0) {
        }
        endIfMayEnd();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, &noteSignal);
}

SessionEnd::~SessionEnd() {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, SIG_DFL);
}

void SessionEnd::commitData(QSessionManager& manager) {
    if (mayEndNow())
        return;
    if (manager.allowsInteraction()) {
        manager.release();
        manager.cancel();
    }
}

void SessionEnd::endIfMayEnd() {
    if (mayEndNow() || std::exchange(wasAskedBySignal, true)) // who asks twice does not want to be asked
        endNow();
}
