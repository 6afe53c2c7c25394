#pragma once
#include <QObject>
#include <functional>

class QSessionManager;

/// What happens when the user logs out, or the system asks the program to end: where there is something to
/// ask, the end of the session is stopped and the user is asked. A second signal ends the program. Main
/// thread.
class SessionEnd : public QObject {
public:
    /// @p mayEnd tells whether nothing is left to ask, and asks otherwise; the program then ends by itself if
    /// the user wants it. @p end ends it.
    SessionEnd(std::function<bool()> mayEnd, std::function<void()> end);
    ~SessionEnd() override;

private:
    void commitData(QSessionManager& manager);
    void endIfMayEnd();

    const std::function<bool()> mayEndNow;
    const std::function<void()> endNow;
    bool wasAskedBySignal = false;
};
