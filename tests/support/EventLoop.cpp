#include "tests/support/EventLoop.h"

#include <QCoreApplication>
#include <QTimer>
#include <chrono>

bool runEventLoopUntil(const std::function<bool()>& isDone) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    QTimer waking; // what is waited for may need no event
    waking.start(5);
    while (!isDone()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}
