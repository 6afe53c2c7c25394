#include "photo/KTSameValue.h"
#include "tests/corpus/CorpusPhotos.h"
#include "tests/corpus/NewSidecar.h"
#include "tests/corpus/PictureBytes.h"
#include "tests/corpus/TagComparison.h"
#include "tests/photo/PhotoFixture.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

using TagsByFile = std::map<std::string, FileTags>;

/// What the photo itself tells of its save. Lost is a value that was refused, or that reads otherwise when
/// the photo is opened again.
struct SaveReport {
    bool isUnsaved = false, hasFailed = false;
    std::vector<std::string> lost;
};

SaveReport editAndSave(const fs::path& file, Edit edit) {
    const TrackedPhoto photo(KTPhoto::initWithFile(file));
    const auto values = editedValues(edit);
    for (const auto& [key, value] : values)
        photo->setValueForKey(key, value);
    photo->saveWithBackupToFolder(std::nullopt);
    SaveReport report;
    report.isUnsaved = photo->hasUnsavedChanges();
    for (const KTPhotoOperation& operation : photo->photoOperations()) {
        const std::string text = operation.resultDescription();
        const bool isFailure = operation.resultType() == KTPhotoOperation::Failure && !text.empty();
        report.hasFailed = report.hasFailed || isFailure;
        if (text.find("does not hold these values") != text.npos)
            report.lost.push_back(text);
    }
    const auto again = KTPhoto::initWithFile(file);
    for (const auto& [key, value] : values)
        if (!KTIsSameValue(again->valueForKey(key), value))
            report.lost.push_back(key + " reads " + again->valueForKey(key).description());
    return report;
}

/// Everything in a file that shows.
std::string picturesOf(const CorpusPhotos& corpus, const TemporaryFolder& stripped, const std::string& name,
                       const TagsByFile& tags) {
    return contentOf(stripped / name) + pictureBytes(corpus.folder() / name, tags.at(name));
}

/// Where a save of @p photo writes under a sidecar style.
struct Targets {
    Targets(const fs::path& photo, int style, bool hasSidecar) {
        static const std::set<std::string> embedding = {".jpg", ".jpeg", ".tif", ".tiff",
                                                        ".png", ".psd",  ".dng"};
        std::string type = photo.extension();
        std::ranges::transform(type, type.begin(), [](unsigned char c) { return std::tolower(c); });
        const bool neverWritten = type == ".crw";
        sidecar = neverWritten || style == 2 || style == 3 || (style == 1 && !embedding.contains(type)) ||
                  (style == 4 && hasSidecar);
        image = !neverWritten && (style == 3 || !sidecar);
    }
    bool image, sidecar;
};

using Parameters = std::tuple<int, Edit>;

/// A corpus edited and saved under one sidecar style, beside the corpus as it was.
class CorpusRoundTrip : public testing::TestWithParam<Parameters> {
protected:
    void SetUp() override {
        if (CorpusPhotos::source().empty())
            GTEST_SKIP() << "WAYMARK_CORPUS names no folder of photos";
        KTUserDefaults::useThrowAwayDomain();
        KTUserDefaults::standardUserDefaults().setValue("defaultXMPSidecarStyle", style);
        original.emplace();
        edited.emplace();
        for (const fs::path& photo : edited->photos())
            reports[photo.filename()] = editAndSave(photo, edit);
        before = readTags(original->folder());
        after = readTags(edited->folder());
        refused = refusedFiles(original->folder());
        makeSidecars(edited->folder(), newSidecars.path());
        made = readTags(newSidecars.path());
        stripFiles(original->folder(), strippedBefore.path());
        stripFiles(edited->folder(), strippedAfter.path());
    }

    bool isSameFile(const std::string& name) const {
        return contentOf(original->folder() / name) == contentOf(edited->folder() / name);
    }
    Targets targetsOf(const std::string& image) const {
        return {image, style, before.contains(fs::path(image).replace_extension("xmp"))};
    }
    void checkReport(const std::string& image, const std::string& sidecar) const;
    void checkImage(const std::string& name) const;
    void checkSidecar(const std::string& image, const std::string& name) const;
    void report(const std::string& name, std::vector<std::string> lines) const;

    const int style = std::get<int>(GetParam());
    const Edit edit = std::get<Edit>(GetParam());
    std::optional<CorpusPhotos> original, edited;
    std::map<std::string, SaveReport> reports;
    TagsByFile before, after, made;
    std::set<std::string> refused;
    TemporaryFolder newSidecars, strippedBefore, strippedAfter;
};

void CorpusRoundTrip::report(const std::string& name, std::vector<std::string> lines) const {
    removeKnownDeviations(nameInCorpus(name), lines);
    for (const std::string& line : lines)
        ADD_FAILURE() << name << ": " << line;
}

void CorpusRoundTrip::checkImage(const std::string& name) const {
    if (!targetsOf(name).image || refused.contains(name)) {
        EXPECT_TRUE(isSameFile(name)) << name << " was not to be written";
        return;
    }
    report(name, differences(before.at(name), after.at(name), intendedInImage(edit, before.at(name))));
    const std::string picture = picturesOf(*original, strippedBefore, name, before);
    EXPECT_TRUE(!picture.empty() && picture == picturesOf(*edited, strippedAfter, name, after))
        << name << " shows another picture";
}

void CorpusRoundTrip::checkSidecar(const std::string& image, const std::string& name) const {
    const auto was = before.find(name), found = after.find(name);
    if (!targetsOf(image).sidecar || refused.contains(name))
        EXPECT_TRUE(isSameFile(name)) << name << " was not to be written";
    else if (found == after.end())
        ADD_FAILURE() << name << " is missing";
    else if (was != before.end())
        report(name, differences(was->second, found->second, intendedInSidecar(edit, was->second)));
    else
        report(name, differencesOfNewSidecar(before.at(image), made.at(name), found->second,
                                             intendedInSidecar(edit, made.at(name))));
}

void CorpusRoundTrip::checkReport(const std::string& name, const std::string& sidecar) const {
    const SaveReport& saved = reports.at(name);
    const Targets targets = targetsOf(name);
    const bool mustFail =
        (targets.image && refused.contains(name)) || (targets.sidecar && refused.contains(sidecar));
    EXPECT_EQ(saved.hasFailed, mustFail) << name;
    EXPECT_EQ(saved.isUnsaved, mustFail || (targets.image && mustStayUnsaved(nameInCorpus(name), edit)))
        << name;
    if (!saved.isUnsaved)
        report(name, saved.lost);
}

} // namespace

TEST_P(CorpusRoundTrip, ChangesWhatWasEditedAndNothingElse) {
    for (const fs::path& photo : edited->photos()) {
        const std::string name = photo.filename(), sidecar = fs::path(name).replace_extension("xmp");
        checkReport(name, sidecar);
        checkImage(name);
        checkSidecar(name, sidecar);
    }
    std::printf("%zu photos, %zu files that ExifTool cannot write\n", edited->photos().size(),
                refused.size());
}

INSTANTIATE_TEST_SUITE_P(Styles, CorpusRoundTrip,
                         testing::Combine(testing::Range(0, 5),
                                          testing::Values(Edit::NineValues, Edit::RatingAlone)),
                         [](const auto& test) {
                             const bool isRating = std::get<Edit>(test.param) == Edit::RatingAlone;
                             return std::string(isRating ? "Rating" : "NineValues") + "UnderStyle" +
                                    std::to_string(std::get<int>(test.param));
                         });
