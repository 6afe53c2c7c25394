#pragma once
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A question with buttons. Texts are in the user's language. A value type, as the others here.
struct KTAlert {
    std::string message = {};
    std::string informativeText = {};
    std::vector<std::string> buttons = {}; ///< the default one first
    /// Called once, on the main thread, with the index of the button; the last one when the alert is closed
    /// otherwise.
    std::function<void(std::size_t button)> completion = {};
};

/// A view of a plug-in or a window's part, opaque below the windows.
using KTViewHandle = void*;

/// A question for files or folders.
struct KTFilePanel {
    enum class Kind { OpenFiles, ChooseFolder, SaveFile } kind = Kind::OpenFiles;
    std::vector<std::string> allowedFileTypes = {}; ///< name extensions; empty for all
    std::filesystem::path directory = {};           ///< where it opens
    std::string proposedName = {};                  ///< of a file to be saved
    std::string buttonText = {};                    ///< empty for the usual one
    std::string title = {};                         ///< empty for the usual one
    KTViewHandle accessoryView = nullptr;
    /// Called once, on the main thread, with the chosen paths; with none when cancelled. Open panels choose
    /// files and folders, as many as wanted, the others one.
    std::function<void(const std::vector<std::filesystem::path>& paths)> completion = {};
};

/// Settings of something that is about to happen, with a button to go on and one to cancel.
struct KTSettingsSheet {
    KTViewHandle settingsView = nullptr;
    std::string buttonText = {};
    /// Called once, on the main thread.
    std::function<void(bool isConfirmed)> completion = {};
};

/// Whoever has a screen, or answers in its stead: a window, a test, the command line. Controllers ask it on
/// the main thread and go on in the completion; no call waits for an answer.
class KTPresenter {
public:
    virtual ~KTPresenter() = default;

    virtual void presentAlert(KTAlert alert) = 0;
    virtual void presentFilePanel(KTFilePanel panel) = 0;
    virtual void presentSettingsSheet(KTSettingsSheet sheet) = 0;
    /// Shows @p files, selected, in the user's file manager.
    virtual void revealFiles(const std::vector<std::filesystem::path>& files) = 0;
};
