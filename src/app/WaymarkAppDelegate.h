#pragma once
#include "app/WaymarkAppController.h"

/// Receives what happens to the program as a whole and hands it to the application controller. Main thread.
class WaymarkAppDelegate {
public:
    /// Checks the platform before anything else: on one that is too old the user is told, and everything
    /// below does nothing.
    explicit WaymarkAppDelegate(WaymarkUserInterface& screen);
    ~WaymarkAppDelegate();

    /// Once the event loop is about to run: sets up the model, the controllers and the main window.
    void applicationDidFinishLaunching();
    /// Files from the command line, the desktop or a second start. True when they were taken.
    bool applicationOpenFile(const std::filesystem::path& path);
    void applicationOpenFiles(const WaymarkAppController::Paths& paths);
    WaymarkAppController::TerminateReply applicationShouldTerminate();
    void applicationWillTerminate();

    /// Null on a platform that is too old.
    WaymarkAppController* waymarkAppController() const { return controller.get(); }

    /// The oldest toolkit that the program runs on: 6.4.0.
    static constexpr int kMinimumToolkitVersion = 60400;

private:
    bool checkSystemVersion();
    void setupMainUI();

    WaymarkUserInterface& userInterface;
    std::unique_ptr<WaymarkAppController> controller;
};
