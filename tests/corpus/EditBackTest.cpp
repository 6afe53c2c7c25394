#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTSameValue.h"
#include "tests/corpus/CorpusPhotos.h"
#include "tests/corpus/IntendedTags.h"
#include "tests/photo/PhotoFixture.h"

namespace {

class CorpusEditBack : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        if (CorpusPhotos::source().empty())
            GTEST_SKIP() << "WAYMARK_CORPUS names no folder of photos";
        KTUserDefaults::useThrowAwayDomain();
        KTUserDefaults::standardUserDefaults().setValue("defaultXMPSidecarStyle", GetParam());
    }
};

/// Whether a file that a save writes holds something else for @p key than the photo shows. Then the value
/// shown is an edit for that file once it is typed: an image and its sidecar may differ, or only one of them
/// hold a value.
bool isEditForOneFile(const KTPhoto& photo, const std::string& key, const KTValue& shown) {
    const auto& field = *KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
    auto differs = [&](KTMetadataSource::Kind kind) {
        return !KTIsSameValue(photo.source(kind).valueForField(field), shown);
    };
    if (!photo.hasXMPSidecar())
        return false;
    return (photo.writingToImageFile() && differs(KTMetadataSource::Image)) ||
           (photo.writingToXMPSidecar() && differs(KTMetadataSource::Sidecar));
}

} // namespace

TEST_P(CorpusEditBack, ValuesSetBackLeaveNothingToSave) {
    const CorpusPhotos corpus;
    for (const auto& file : corpus.photos()) {
        const TrackedPhoto photo(KTPhoto::initWithFile(file));
        EXPECT_FALSE(photo->hasUnsavedChanges()) << file << " as it was opened";
        std::map<std::string, KTValue> before;
        bool isEdit = false;
        for (const auto& [key, value] : editedValues(Edit::NineValues)) {
            before[key] = photo->valueForKey(key);
            isEdit = isEdit || isEditForOneFile(*photo, key, before[key]);
            photo->setValueForKey(key, value);
        }
        EXPECT_TRUE(photo->hasUnsavedChanges()) << file << " edited";
        for (const auto& [key, value] : before)
            photo->setValueForKey(key, value);
        EXPECT_EQ(photo->hasUnsavedChanges(), isEdit) << file << " set back";
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, CorpusEditBack, testing::Range(0, 5));
