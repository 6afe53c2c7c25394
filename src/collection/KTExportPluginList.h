#pragma once
#include <string>
#include <vector>

/// What the photo controller asks of the export plug-ins, which belong to a higher floor. Main thread.
class KTExportPluginList {
public:
    virtual ~KTExportPluginList() = default;
    /// One name a plug-in, in their order.
    virtual std::vector<std::string> pluginNames() const = 0;
    virtual void shouldBeginExportProcessWithPluginAtIndex(std::size_t index) = 0;
};
