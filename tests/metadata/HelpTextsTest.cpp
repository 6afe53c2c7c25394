#include "metadata/KTMetadataFieldTable.h"
#include "metadata/KTMetadataHelpTable.h"
#include "metadata/KTMetadataHelpTexts.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace {

std::vector<KTMetadataFieldRow> catalogue() {
    std::vector<KTMetadataFieldRow> rows;
    for (const auto& group : KTMetadataFieldTable())
        rows.insert(rows.end(), group.fields.begin(), group.fields.end());
    return rows;
}

std::vector<KTMetadataHelpRow> helpRows() {
    std::vector<KTMetadataHelpRow> rows;
    for (auto part :
         {KTMetadataHelpRowsOfCapture(), KTMetadataHelpRowsOfPlaces(), KTMetadataHelpRowsOfDescription()})
        rows.insert(rows.end(), part.begin(), part.end());
    return rows;
}

/// "EXIF: Make" for "EXIF:Make", nothing for null.
std::string sourceOfTag(const char* key) {
    std::string source = key ? key : "";
    return source.empty() ? source : source.insert(source.find(':') + 1, " ");
}

/// The source line that follows from the tags of a simple or composite field.
std::string expectedSource(const KTFieldTagKeys& tags) {
    const std::string primary = sourceOfTag(tags.primary), xmp = sourceOfTag(tags.xmp);
    if (primary.empty())
        return xmp.empty() ? sourceOfTag(tags.composite) : xmp;
    return primary.starts_with("IPTC") ? primary + "; " + xmp : primary;
}

TEST(HelpTextsTest, QuotedTextsAreExact) {
    EXPECT_EQ(
        KTMetadataHelpText("cameraMake", "Camera Make"),
        "▘Camera Make\n\nManufacturer of the equipment that generated the image.\n→ Canon\n\nEXIF: Make");
    EXPECT_EQ(KTMetadataHelpText("flash", "Flash"),
              "▘Flash\n\nIndicates the status of flash when the image was shot.\n"
              "→ Flash did not fire, auto mode\n\nEXIF: Flash");
    EXPECT_TRUE(KTMetadataHelpText("gpsSpeed", "Speed").ends_with("\n\nEXIF: GPSSpeed & GPSSpeedRef"));
    EXPECT_TRUE(KTMetadataHelpText("imageDirection", "Direction")
                    .ends_with("\nNote: Only those values given in True North will be visible in this "
                               "application."));
    EXPECT_EQ(KTMetadataHelpText("nonsense", "Nonsense"), "");
    EXPECT_EQ(KTMetadataHelpText("", ""), "");
}

TEST(HelpTextsTest, EveryFieldOfTheCatalogueHasATextOfTheLayout) {
    const std::string tags = R"([A-Z][\w-]+( & [A-Z][\w-]+)*)";
    const std::string block = "(EXIF|IPTC|XMP|File|Composite|MakerNotes|Photoshop): " + tags;
    const std::regex layout("▘[^\\n]+\\n\\n[A-Z][^\\n]+\\.(\\n→ [^ \\n][^\\n]*)+(\\n\\n" + block + "(; " +
                            block + ")*)?(\\n\\nNote: [^\\n]+\\.)?");
    const auto fields = catalogue();
    ASSERT_EQ(fields.size(), 89u);
    for (const auto& field : fields) {
        const std::string text = KTMetadataHelpText(field.key, field.name);
        EXPECT_TRUE(std::regex_match(text, layout)) << field.key << ":\n" << text;
        EXPECT_TRUE(text.starts_with("▘" + std::string(field.name) + "\n")) << field.key;
        EXPECT_EQ(text.find("  "), text.npos) << field.key;
    }
}

TEST(HelpTextsTest, RowsFollowTheCatalogueAndItsTags) {
    const auto fields = catalogue();
    const auto help = helpRows();
    ASSERT_EQ(help.size(), fields.size());
    std::set<std::string_view> descriptions;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(help[i].key, fields[i].key);
        EXPECT_TRUE(descriptions.insert(help[i].description).second) << help[i].key;
        if (const std::string source = expectedSource(fields[i].tagKeys); !source.empty()) {
            EXPECT_EQ(help[i].source, source) << help[i].key;
        }
    }
    for (const auto& row : help)
        EXPECT_EQ(row.source.empty(),
                  row.key == "filename" || row.key == "fileSize" || row.key == "creationDate")
            << row.key;
}

} // namespace
