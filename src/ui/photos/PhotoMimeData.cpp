#include "ui/photos/PhotoMimeData.h"

#include "ui/support/DroppedPaths.h"

PhotoMimeData::PhotoMimeData(Photos dragged) : carried(std::move(dragged)) {
    std::vector<std::filesystem::path> files;
    for (const auto& photo : carried)
        files.push_back(photo->fileURL());
    setData("text/uri-list", addressesOf(files).join("\r\n").toLatin1());
}
