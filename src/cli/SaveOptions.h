#pragma once
#include <optional>
#include <string>

namespace CLI {
class App;
}

/// How the commands that write photos write them.
class SaveOptions {
public:
    /// Adds the options to @p parser; this object must outlive it.
    void addTo(CLI::App& parser);
    /// Lets the settings that the options stand for hold for this run.
    void apply() const;

private:
    std::string folder;
    std::optional<int> sidecarStyle;
    bool preservesDate = false;
};
