#include "metadata/KTExifTool.h"

#include <algorithm>

namespace {

constexpr const char* kGroups[] = {"Composite",  "EXIF",      "ICC_Profile", "IPTC",
                                   "MakerNotes", "Photoshop", "XMP"};

// Tags that describe a file's own structure: copied into another file they would be wrong there.
constexpr std::string_view kNotCopied[] = {"EXIF:ComponentsConfiguration",
                                           "EXIF:ThumbnailOffset",
                                           "File:FileModifyDate",
                                           "EXIF:Compression",
                                           "EXIF:YCbCrPositioning",
                                           "EXIF:CompressedBitsPerPixel",
                                           "File:FileName",
                                           "EXIF:InteropIndex",
                                           "File:Directory",
                                           "EXIF:RelatedImageWidth",
                                           "Photoshop:IPTCDigest",
                                           "EXIF:ThumbnailLength",
                                           "XMP:XMPToolkit",
                                           "EXIF:RelatedImageHeight",
                                           "EXIF:InteropVersion",
                                           "IPTC:CodedCharacterSet"};

} // namespace

std::vector<std::string> KTExifTool::writableTags() {
    std::lock_guard guard(lock);
    if (writableTagList.empty()) {
        for (const char* group : kGroups) {
            KTValue count =
                evaluate("@tagList = Image::ExifTool::GetWritableTags('" + std::string(group) + "');");
            for (std::int64_t i = 0, n = count.integer() ? *count.integer() : 0; i < n; ++i) {
                KTValue name =
                    evaluate("$temp = Image::ExifTool::GetTagName($tagList[" + std::to_string(i) + "]);");
                if (name.isSomething())
                    writableTagList.push_back(std::string(group) + ":" + name.description());
            }
        }
        std::erase_if(writableTagList, [](const std::string& key) {
            return std::ranges::find(kNotCopied, key) != std::end(kNotCopied);
        });
    }
    return writableTagList;
}
