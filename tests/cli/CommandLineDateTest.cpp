#include "tests/cli/CommandLineWorld.h"

namespace {

using CommandLineDate = CommandLineWorld;

} // namespace

TEST_F(CommandLineDate, DateToolsChangeSaveAndPrint) {
    makePhoto(folder, "a.jpg",
              {{"EXIF:DateTimeOriginal", "2014:05:03 10:00:00"}, {"EXIF:CreateDate", "2014:05:03 10:00:02"}});
    makePhoto(folder, "none.png");
    auto tag = [&](const char* key) { return tagsOf(folder / "a.jpg").valueForKey(key).description(); };
    const Result shift = run({"--json", "shift", "--digitized", "--", "-91785", "."});
    EXPECT_EQ(shift.status, 0) << shift.errors;
    EXPECT_EQ(tag("EXIF:DateTimeOriginal"), "2014:05:02 08:30:15");
    EXPECT_EQ(tag("EXIF:CreateDate"), "2014:05:02 08:30:17");
    const QJsonArray shifted = shift.json()["photos"].toArray();
    ASSERT_EQ(shifted.size(), 2);
    EXPECT_EQ(shifted[0]["dateTimeOriginalComponents"].toString(), "2014-05-02T08:30:15");
    EXPECT_TRUE(shifted[0]["saved"].toBool());
    EXPECT_FALSE(shifted[1]["saved"].toBool()) << "has no date";

    EXPECT_EQ(run({"copy-date", "--from", "digitized", "--to", "original", "a.jpg"}).status, 0);
    EXPECT_EQ(tag("EXIF:DateTimeOriginal"), "2014:05:02 08:30:17");
    EXPECT_EQ(run({"set-date", "2014-05-03 17:41:09", "--precision", "month", "."}).status, 0);
    const Result read = run({"--json", "read", "--only", "properties", "."});
    for (const QJsonValue photo : read.json()["photos"].toArray()) {
        EXPECT_EQ(photo["properties"]["dateTimeOriginalComponents"].toString(), "2014-05");
        EXPECT_TRUE(photo["properties"]["dateTimeOriginal"].isUndefined()) << "no instant is made up";
    }
    for (const QStringList& arguments : {QStringList{"set-date", "yesterday", "."},
                                         {"set-date", "2014", "."},
                                         {"copy-date", "--from", "original", "--to", "original", "."},
                                         {"shift", "soon", "."}})
        EXPECT_EQ(run(arguments).status, 2) << arguments.join(" ").toStdString();
}
