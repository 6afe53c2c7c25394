#include "collection/KTPhotoController.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/defaults/KTUserDefaults.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FakePresenter.h"
#include "tests/support/TestPhotos.h"
#include "ui/photos/PhotoPane.h"
#include "ui/photos/PhotoTableView.h"
#include "ui/photos/ThumbnailBrowser.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using Photo = std::shared_ptr<KTPhoto>;

/// The photo pane on a collection of small photos.
class PhotoViewsTest : public testing::Test {
protected:
    PhotoViewsTest() {
        KTUserDefaults::useThrowAwayDomain();
        controller.setPhotoWindow(&presenter);
        controller.setup();
    }
    ~PhotoViewsTest() override {
        pane.reset();
        controller.tearDown();
    }

    Photo add(const std::string& name, const KTValue::Dictionary& values = {}) {
        const Photo photo = KTPhoto::initWithFile(makePhoto(folder, name));
        manager.addNewPhoto(photo);
        for (const auto& [key, value] : values)
            photo->setValueForKey(key, value);
        return photo;
    }
    void show() {
        pane = std::make_unique<PhotoPane>(controller, thumbnails, EmptyPhotosView::Commands{});
        pane->resize(900, 500);
        pane->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(pane.get()));
    }
    PhotoTableView& table() { return pane->table(); }
    PhotoListModel& model() { return pane->model(); }
    std::vector<std::string> shownNames() {
        std::vector<std::string> names;
        for (const Photo& photo : model().photos())
            names.push_back(photo->filename());
        return names;
    }
    std::vector<std::string> selectedNames() {
        std::vector<std::string> names;
        for (const Photo& photo : *manager.selectedPhotos())
            names.push_back(photo->filename());
        return names;
    }
    std::vector<int> selectedRows(const QAbstractItemView& view) {
        std::vector<int> rows;
        for (const QModelIndex& index : view.selectionModel()->selectedRows())
            rows.push_back(index.row());
        std::ranges::sort(rows);
        return rows;
    }
    QString cell(int row, const std::string& key) {
        const auto& keys = model().fieldKeys();
        const auto place = std::ranges::find(keys, key) - keys.begin();
        return model().index(row, PhotoListModel::FirstFieldColumn + int(place)).data().toString();
    }
    void clickHeader(const std::string& key) {
        const auto& keys = model().fieldKeys();
        QHeaderView& header = *table().horizontalHeader();
        const int column =
            PhotoListModel::FirstFieldColumn + int(std::ranges::find(keys, key) - keys.begin());
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + 20, header.height() / 2});
        model().synchronize();
    }

    TemporaryFolder folder;
    FakePresenter presenter;
    KTPhotoManager manager;
    KTPhotoController controller{manager};
    KTThumbnailService thumbnails{ThumbnailFileCache(folder / "thumbnails")};
    std::unique_ptr<PhotoPane> pane;
};

TEST_F(PhotoViewsTest, FollowPhotosThatComeAndGoAndAreEdited) {
    show();
    EXPECT_EQ(model().rowCount(), 0);
    const Photo first = add("a.jpg"), second = add("b.jpg");
    ASSERT_TRUE(runEventLoopUntil([&] { return model().rowCount() == 2; }));

    QSignalSpy changes(&model(), &QAbstractItemModel::dataChanged);
    KTRunOnThreadPool([second] { second->setValueForKey("cityShown", "Zürich"); });
    ASSERT_TRUE(runEventLoopUntil([&] { return !changes.isEmpty(); }));
    EXPECT_EQ(changes.first().at(0).toModelIndex().row(), 1);
    EXPECT_EQ(cell(1, "cityShown"), "Zürich");

    manager.removePhotos({first});
    ASSERT_TRUE(runEventLoopUntil([&] { return model().rowCount() == 1; }));
    EXPECT_EQ(shownNames(), (std::vector<std::string>{"b.jpg"}));
}

TEST_F(PhotoViewsTest, TellTheStateOfAPhotoInWords) {
    const Photo photo = add("a.jpg");
    show();
    auto words = [&] {
        return model().index(0, PhotoListModel::StatusColumn).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(words(), "not geotagged");
    photo->setValueForKey("latitude", *KTDecimal::fromText("47.5"));
    photo->setValueForKey("longitude", *KTDecimal::fromText("7.5"));
    EXPECT_EQ(words(), "unsaved changes, geotagged");
}

TEST_F(PhotoViewsTest, ShareTheSelectionWithTheCollection) {
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg"})
        add(name);
    show();
    manager.setSelectedPhotoIndexes({1, 3});
    EXPECT_EQ(selectedRows(table()), (std::vector<int>{1, 3}));

    const QRect cellPlace = table().visualRect(model().index(2, PhotoListModel::FirstFieldColumn));
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cellPlace.center());
    EXPECT_EQ(selectedNames(), (std::vector<std::string>{"c.jpg"}));
    table().selectAll();
    EXPECT_EQ(selectedNames().size(), 4U);

    PhotoPane::setShownView(PhotoPane::Thumbnails);
    auto* const browser = pane->findChild<ThumbnailBrowser*>();
    ASSERT_TRUE(browser->isVisible());
    browser->setCurrentIndex(browser->model()->index(0, 0));
    EXPECT_EQ(selectedNames(), (std::vector<std::string>{"a.jpg"}));
    EXPECT_EQ(selectedRows(table()), (std::vector<int>{0}));
}

TEST_F(PhotoViewsTest, SortByTheHeaderAndKeepTheFormerOrderWithin) {
    add("a.jpg", {{"cityShown", "Basel"}, {"stateShown", "2"}});
    add("b.jpg", {{"cityShown", "Arth"}, {"stateShown", "1"}});
    add("c.jpg", {{"cityShown", "Basel"}, {"stateShown", "1"}});
    KTUserDefaults::standardUserDefaults().setValue(
        "defaultTableColumns", KTValue::listOfTexts({"filename", "cityShown", "stateShown"}));
    show();
    manager.setSelectedPhotoIndexes({2});
    using Names = std::vector<std::string>;
    const auto waitFor = [this](const Names& names) {
        return runEventLoopUntil([&] { return shownNames() == names; });
    };
    clickHeader("stateShown");
    clickHeader("cityShown"); // before the order of the former is found
    ASSERT_TRUE(waitFor({"b.jpg", "c.jpg", "a.jpg"}));
    clickHeader("cityShown");
    ASSERT_TRUE(waitFor({"c.jpg", "a.jpg", "b.jpg"}));
    ASSERT_TRUE(runEventLoopUntil([&] { return selectedRows(table()) == std::vector<int>{0}; }));
    EXPECT_EQ(selectedNames(), (std::vector<std::string>{"c.jpg"}));
}

TEST_F(PhotoViewsTest, ShowTheColumnsOfTheSetting) {
    add("a.jpg");
    show();
    EXPECT_EQ(model().columnCount(), PhotoListModel::FirstFieldColumn + 7);
    KTUserDefaults::standardUserDefaults().setValue(
        "defaultTableColumns", KTValue::listOfTexts({"keywords", "no such field", "filename"}));
    EXPECT_EQ(model().fieldKeys(), (std::vector<std::string>{"keywords", "filename"}));
    QHeaderView& header = *table().horizontalHeader();
    header.moveSection(header.visualIndex(3), 2);
    ASSERT_TRUE(runEventLoopUntil([&] { return model().fieldKeys().front() == "filename"; }));
    EXPECT_EQ(KTUserDefaults::standardUserDefaults().textsForKey("defaultTableColumns"),
              (std::vector<std::string>{"filename", "keywords"}));
}

TEST_F(PhotoViewsTest, NarrowToTheFilterAndDeselectWhatItHides) {
    add("IMG_1.jpg", {{"keywords", KTValue::listOfTexts({"Rhein", "Brücke"})}});
    add("IMG_2.jpg", {{"people", KTValue::listOfTexts({"Ann"})}, {"cityShown", "Zürich"}});
    const Photo third = add("DSC_3.jpg");
    show();
    manager.setSelectedPhotoIndexes({0, 1, 2});
    auto shownWith = [&](const QString& text) {
        model().setFilterText(text);
        model().synchronize();
        return shownNames();
    };
    using Names = std::vector<std::string>;
    EXPECT_EQ(shownWith("img"), (Names{"IMG_1.jpg", "IMG_2.jpg"}));
    EXPECT_EQ(selectedNames(), (Names{"IMG_1.jpg", "IMG_2.jpg"}));
    EXPECT_EQ(shownWith("BRÜCKE rhein"), (Names{"IMG_1.jpg"}));
    EXPECT_EQ(shownWith("ann zür"), (Names{"IMG_2.jpg"}));
    EXPECT_EQ(shownWith("nothing"), Names());
    manager.setSelectedPhotos({third});
    ASSERT_TRUE(runEventLoopUntil([&] { return selectedNames().empty(); }));
    EXPECT_EQ(shownWith("").size(), 3U);

    third->setValueForKey("latitude", *KTDecimal::fromText("1"));
    third->setValueForKey("longitude", *KTDecimal::fromText("2"));
    model().setFilterKind(PhotoFilter::Kind::WithoutLocation);
    EXPECT_EQ(shownNames(), (Names{"IMG_1.jpg", "IMG_2.jpg"}));
    third->setValueForKey("latitude", KTValue::null());
    ASSERT_TRUE(runEventLoopUntil([&] { return shownNames().size() == 3; }));
}

TEST_F(PhotoViewsTest, RemoveWithTheDeleteKey) {
    add("a.jpg");
    add("b.jpg", {{"cityShown", "Bern"}});
    show();
    manager.setSelectedPhotoIndexes({0});
    QTest::keyClick(&table(), Qt::Key_Delete);
    ASSERT_TRUE(runEventLoopUntil([&] { return model().rowCount() == 1; }));
    manager.setSelectedPhotoIndexes({0});
    QTest::keyClick(&table(), Qt::Key_Delete);
    ASSERT_EQ(presenter.alerts.size(), 1U); // it has unsaved changes
    EXPECT_EQ(manager.numberOfPhotos(), 1U);
}

TEST_F(PhotoViewsTest, DragsCarryFilesAndReorderInside) {
    for (const char* name : {"a b.jpg", "b.jpg", "c.jpg", "d.jpg"})
        add(name);
    show();
    auto* const browser = pane->findChild<ThumbnailBrowser*>();
    const std::unique_ptr<QMimeData> data(
        browser->model()->mimeData({browser->model()->index(0, 0), browser->model()->index(1, 0)}));
    ASSERT_EQ(data->urls().size(), 2);
    EXPECT_EQ(data->urls().first().toLocalFile().toStdString(), (folder / "a b.jpg").string());
    EXPECT_FALSE(
        browser->model()->canDropMimeData(std::make_unique<QMimeData>().get(), Qt::CopyAction, 0, 0, {}));
    ASSERT_TRUE(browser->model()->dropMimeData(data.get(), Qt::CopyAction, 3, 0, {}));
    model().synchronize();
    EXPECT_EQ(shownNames(), (std::vector<std::string>{"c.jpg", "a b.jpg", "b.jpg", "d.jpg"}));
    EXPECT_EQ(selectedNames(), (std::vector<std::string>{"a b.jpg", "b.jpg"}));
}

TEST_F(PhotoViewsTest, AskOnlyForPicturesOfWhatIsInView) {
    std::vector<Photo> photos;
    for (int i = 0; i < 120; ++i)
        photos.push_back(add("p" + std::to_string(100 + i) + ".jpg"));
    show();
    ASSERT_TRUE(runEventLoopUntil([&] {
        return !thumbnails.thumbnail(photos[0]->fileURL(), 60).image.isNull() &&
               !thumbnails.thumbnail(photos[20]->fileURL(), 60).image.isNull();
    }));
    EXPECT_TRUE(thumbnails.thumbnail(photos[110]->fileURL(), 60).image.isNull());
    table().scrollToBottom();
    ASSERT_TRUE(
        runEventLoopUntil([&] { return !thumbnails.thumbnail(photos[119]->fileURL(), 60).image.isNull(); }));
}

} // namespace
