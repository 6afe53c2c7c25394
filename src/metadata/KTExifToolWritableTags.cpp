#include "metadata/KTExifTool.h"
#include "metadata/KTWritableTags.h"
#include "platform/common/KTText.h"

#include <algorithm>

namespace {

const std::string kGroups[] = {"Composite", "EXIF", "ICC_Profile", "IPTC", "MakerNotes", "Photoshop", "XMP"};

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

bool isNotCopied(const std::string& key) {
    return std::ranges::find(kNotCopied, key) != std::end(kNotCopied);
}

// The conditions of the library's own list; a table's writer is called once because it may set them.
constexpr const char* kWritableAmong = R"perl(
require Image::ExifTool::TagLookup;
$temp = join("\n", grep {
    my ($group, $name) = split(/:/, $_, 2);
    grep {
        my ($info, $table) = ($_, $_->{Table});
        my $writer = $table->{WRITE_PROC};
        &$writer() if $writer && !$table->{WRITABLE} && !defined $info->{Writable};
        !$info->{Hidden}
            && ($info->{Writable}
                || ($table->{WRITABLE} && !defined $info->{Writable} && !$info->{SubDirectory}))
            && grep { lc($_) eq lc($group) } $exifTool->GetGroup($info);
    } Image::ExifTool::TagLookup::FindTagInfo($name);
} split(/\n/, $stringValue));
)perl";

} // namespace

std::unordered_set<std::string> KTWritableTagsAmong(const std::vector<std::string>& keys, KTExifTool& tool) {
    std::vector<std::string> asked;
    for (const std::string& key : keys) {
        const bool isOfGroup = std::ranges::any_of(
            kGroups, [&](const std::string& group) { return key.starts_with(group + ':'); });
        if (isOfGroup && !isNotCopied(key) && key.find_first_of("\n*?") == std::string::npos)
            asked.push_back(key);
    }
    if (asked.empty())
        return {};
    tool.newExifTool();
    tool.setValueForVariable(KTJoin(asked, "\n"), "stringValue");
    const auto writable = KTSplit(tool.evaluate(kWritableAmong).description(), '\n');
    return {writable.begin(), writable.end()};
}

std::vector<std::string> KTExifTool::writableTags() {
    std::lock_guard guard(lock);
    if (writableTagList.empty()) {
        for (const std::string& group : kGroups) {
            KTValue count = evaluate("@tagList = Image::ExifTool::GetWritableTags('" + group + "');");
            for (std::int64_t i = 0, n = count.integer() ? *count.integer() : 0; i < n; ++i) {
                KTValue name =
                    evaluate("$temp = Image::ExifTool::GetTagName($tagList[" + std::to_string(i) + "]);");
                if (name.isSomething())
                    writableTagList.push_back(group + ":" + name.description());
            }
        }
        std::erase_if(writableTagList, isNotCopied);
    }
    return writableTagList;
}
