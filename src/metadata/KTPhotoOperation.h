#pragma once
#include "platform/common/KTValue.h"

#include <filesystem>

/// The record of one read or write step on one file. A value type.
struct KTPhotoOperation {
    enum ResultType { Success = 1, Warning = 2, Failure = 4 };

    std::filesystem::path url; ///< the file concerned
    std::string operationDescription;
    KTInstant operationTime = KTInstantNow(); ///< when the record was made
    bool operationDidSucceed = false;
    unsigned failureReason = 0; ///< 1 on failures of writing and saving, else 0
    std::optional<std::string> failureDescription;
    KTValue::Dictionary keyValues;
    bool isWarning = false;
    std::optional<std::string> warningDescription;

    std::string path() const { return url.string(); }
    std::string filename() const { return url.filename().string(); }
    ResultType resultType() const;
    /// The failure text if present, else the warning text, else empty.
    std::string resultDescription() const;
    /// The image resource that shows the result: "statusGreen.tiff", "statusYellow.tiff" or "statusRed.tiff".
    std::filesystem::path resultImagePath() const;
};
