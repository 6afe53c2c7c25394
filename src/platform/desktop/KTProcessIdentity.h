#pragma once
#include <string>

/// Names a process beyond doubt: its host, that host's run since it was started, and the process in it.
struct KTProcessIdentity {
    std::string host;         ///< name and machine identifier
    std::string systemRun;    ///< the kernel's identifier of the run since the computer was started
    std::string processSpace; ///< containers of one computer count their processes apart
    std::string process;      ///< its number
    std::string start;        ///< when it was started, so that a number used again is not taken for it

    static KTProcessIdentity ofThisProcess();
    /// One line a part.
    std::string text() const;
    /// Reads `text` back; parts that are missing are empty.
    static KTProcessIdentity fromText(const std::string& text);

    /// Whether that process has certainly ended. False where it cannot be known from here (another host,
    /// another container, an identity with an empty part).
    bool isGone() const;

    bool operator==(const KTProcessIdentity&) const = default;
};
