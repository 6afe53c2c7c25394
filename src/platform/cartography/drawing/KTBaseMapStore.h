#pragma once
#include "platform/cartography/drawing/KTBaseMapData.h"

#include <mutex>
#include <optional>

/// The base map's data, read when it is first asked for. Any thread.
class KTBaseMapStore {
public:
    /// The program's own data file.
    static const std::shared_ptr<KTBaseMapStore>& sharedStore();
    explicit KTBaseMapStore(std::filesystem::path dataFile) : file(std::move(dataFile)) {}

    /// Reads the file at the first call, some 60 ms long. Null, after a line in the log, when it cannot be
    /// read or is damaged.
    const KTBaseMapData* data();
    /// Why there are no data, in the user's language; nothing when there are, or nobody has asked.
    std::optional<std::string> failure() const;

private:
    const std::filesystem::path file;
    std::once_flag hasRead;
    std::unique_ptr<const KTBaseMapData> content;
    mutable std::mutex mutex;
    std::optional<std::string> problem;
};
