#include "platform/desktop/KTTypeIdentifiers.h"

#include <gtest/gtest.h>

#include <map>

namespace {

TEST(TypeIdentifiers, ByExtensionInAnyLetterCase) {
    EXPECT_EQ(KTTypeIdentifierForPath("/a/b.JPG"), "public.jpeg");
    EXPECT_EQ(KTTypeIdentifierForPath("/a/b.x.jpe"), "public.jpeg");
    EXPECT_EQ(KTTypeIdentifierForPath("b.Nef"), "com.nikon.raw-image");
    EXPECT_EQ(KTTypeIdentifierForPath("\xff.tif"), "public.tiff");
    for (const char* unknown : {"", "/", "jpg", ".jpg", "b.", "b.jpgx", "b.jp", "b.jpg/", "b.xmp", "b.raw"})
        EXPECT_EQ(KTTypeIdentifierForPath(unknown), std::nullopt) << unknown;
}

TEST(TypeIdentifiers, ExtensionsAreUniqueAndIdentifiersAndMimeTypesMapBothWays) {
    std::map<std::string_view, std::string_view> byExtension, mimeOf, identifierOf;
    for (const auto& [extension, identifier, mime] : KTTypeIdentifiers()) {
        EXPECT_TRUE(byExtension.emplace(extension, identifier).second) << extension;
        EXPECT_EQ(mimeOf.emplace(identifier, mime).first->second, mime);
        if (!mime.empty()) {
            EXPECT_EQ(identifierOf.emplace(mime, identifier).first->second, identifier);
        }
    }
}

} // namespace
