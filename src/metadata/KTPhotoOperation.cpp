#include "metadata/KTPhotoOperation.h"

#include "platform/desktop/KTResources.h"

KTPhotoOperation::ResultType KTPhotoOperation::resultType() const {
    if (!operationDidSucceed)
        return Failure;
    return isWarning ? Warning : Success;
}

std::string KTPhotoOperation::resultDescription() const {
    return failureDescription ? *failureDescription : warningDescription.value_or("");
}

std::filesystem::path KTPhotoOperation::resultImagePath() const {
    switch (resultType()) {
    case Success:
        return KTResourcePath("statusGreen.tiff");
    case Warning:
        return KTResourcePath("statusYellow.tiff");
    default:
        return KTResourcePath("statusRed.tiff");
    }
}
