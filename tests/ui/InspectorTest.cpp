#include "platform/desktop/KTMediaObject.h"
#include "tests/ui/InspectorFixture.h"
#include "ui/inspector/FieldLabel.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/ListFieldView.h"
#include "ui/inspector/RatingStars.h"
#include "ui/inspector/TagTextEdit.h"

#include <QCalendarWidget>
#include <QCompleter>
#include <QMimeData>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>

using InspectorTest = InspectorFixture;

TEST_F(InspectorTest, TypesACaptionAndAKeywordOntoFiveHundredPhotos) {
    const auto photos = copies(500, {{"IPTC:Keywords", KTValue::listOfTexts({"river"})}});
    photos[7]->setValueForKey("title", "one of them");
    selectAll();
    show({"caption", "keywords", "title", "rating"});
    auto& caption = field<TagTextEdit>("Description, Tags");
    caption.setFocus();
    QTest::keyClicks(&caption, "At the ford");
    leave(caption);
    EXPECT_EQ(countOf(photos, "caption", "At the ford"), 500u);
    EXPECT_EQ(undo->undoActionName(), "Edit Description");

    auto& keywords = field<ListFieldView>("Keywords, Tags");
    ASSERT_TRUE(keywords.hasFocus());
    QTest::keyClicks(&keywords, "f"); // begins in the row for adding
    auto* const cell = keywords.findChild<TagLineEdit*>();
    ASSERT_NE(cell, nullptr);
    QTest::keyClicks(cell, "ord");
    QTest::keyClick(cell, Qt::Key_Return);
    settle();
    const auto lists = countOf(photos, "keywords", KTValue::listOfTexts({"river", "ford"}));
    EXPECT_EQ(lists, 500u);
    ASSERT_NE(keywords.findChild<TagLineEdit*>(), nullptr) << "the next one can be typed at once";
    QTest::keyClick(keywords.findChild<TagLineEdit*>(), Qt::Key_Escape);
    settle();

    auto& stars = field<RatingStars>("Rating, Tags");
    stars.setFocus();
    QTest::keyClick(&stars, Qt::Key_4);
    settle();
    EXPECT_EQ(countOf(photos, "rating", 4), 500u);
    EXPECT_EQ(stars.value(), 4);

    EXPECT_EQ(field("Title, Tags").placeholderText(), "Multiple values");
    EXPECT_EQ(field("Title, Tags").text(), "");
    undo->undo();
    undo->undo();
    undo->undo();
    EXPECT_EQ(countOf(photos, "caption", {}), 500u) << "three edits, three steps";
    EXPECT_EQ(countOf(photos, "title", "one of them"), 1u) << "what nobody touched is as it was";
    settle();
    EXPECT_EQ(caption.toPlainText(), "");
    EXPECT_EQ(stars.value(), 0);
}

TEST_F(InspectorTest, GivesWhatIsTypedToThePhotosOfItsBeginning) {
    const auto first = add("a.jpg"), second = add("b.jpg", {{"XMP:Label", "blue"}});
    selectAndSettle({first});
    show({"title", "label", "keywords"});
    auto& title = field("Title, Tags");
    title.setFocus();
    QTest::keyClicks(&title, "Ford");
    selectAndSettle({second}); // by another view; the keyboard stays
    EXPECT_EQ(textOf(*first, "title"), "Ford");
    EXPECT_EQ(title.text(), "");
    EXPECT_EQ(field("Label, Tags").text(), "blue");
    QTest::keyClicks(&title, "Bridge");
    QTest::keyClick(&title, Qt::Key_Return);
    EXPECT_EQ(textOf(*first, "title") + textOf(*second, "title"), "FordBridge");

    auto& keywords = field<ListFieldView>("Keywords, Tags");
    keywords.setFocus();
    QTest::keyClicks(&keywords, "x");
    QTest::keyClicks(keywords.findChild<TagLineEdit*>(), "y");
    selectAndSettle({first});
    EXPECT_EQ(textOf(*second, "keywords"), "xy");
    EXPECT_EQ(textOf(*first, "keywords"), "");
    for (const TagLineEdit* const cell : keywords.findChildren<TagLineEdit*>())
        EXPECT_FALSE(cell->isVisible());
}

TEST_F(InspectorTest, UndoesTypingInTheFieldAndTheEditAfterIt) {
    const auto photo = add("a.jpg");
    selectAndSettle({photo});
    show({"title", "caption", "label"});
    auto& title = field("Title, Tags");
    title.setFocus();
    QTest::keyClicks(&title, "Ford");
    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(title.text(), "");
    EXPECT_FALSE(undo->canUndo()) << "nothing was left behind";
    QTest::keyClicks(&title, "Bridge");
    QTest::keyClick(&title, Qt::Key_Return);
    settle();
    EXPECT_EQ(textOf(*photo, "title"), "Bridge");
    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier); // nothing to be taken back here
    settle();
    EXPECT_EQ(textOf(*photo, "title"), "");
    EXPECT_EQ(title.text(), "");

    auto& caption = field<TagTextEdit>("Description, Tags");
    caption.setFocus();
    QTest::keyClicks(&caption, "Long");
    leave(caption);
    QTest::keyClick(&field("Label, Tags"), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(caption.toPlainText(), "");

    title.setFocus();
    QTest::keyClicks(&title, "given up");
    QTest::keyClick(&title, Qt::Key_Escape);
    leave(title);
    EXPECT_EQ(textOf(*photo, "title"), "");
}

TEST_F(InspectorTest, SaysInPlaceWhatIsNoPositionAndTakesAnyNotation) {
    const auto photo = add("a.jpg");
    selectAndSettle({photo});
    show({"latitude", "dateTimeOriginalComponents"});
    auto& latitude = field("Latitude, Tags");
    auto problem = [&] { return problemIn(*pane, "no latitude") != nullptr; };
    latitude.setFocus();
    QTest::keyClicks(&latitude, "north");
    EXPECT_TRUE(problem());
    QTest::keyClick(&latitude, Qt::Key_Return);
    EXPECT_TRUE(problem()) << "it can still be put right";
    latitude.selectAll();
    QTest::keyClicks(&latitude, "geo:46.05,14.5");
    EXPECT_FALSE(problem());
    leave(latitude);
    EXPECT_EQ(textOf(*photo, "latitude") + " " + textOf(*photo, "longitude"), "46.05 14.5");
    EXPECT_EQ(field("Longitude, Tags").text(), "14.5");

    auto& date = field("Original Date, Tags");
    date.setFocus();
    QTest::keyClicks(&date, "2014-05-03 17:41:09");
    leave(date);
    EXPECT_EQ(date.text(), "2014-05-03");
    EXPECT_EQ(photo->valueForKey("dateTimeOriginalComponents").components()->minute, 41);
}

TEST_F(InspectorTest, KeepsWhatIsNoValueInViewWithItsError) {
    const auto photo = add("a.jpg");
    selectAndSettle({photo});
    show({"caption", "headline", "keywords", "title", "label", "event", "latitude", "cityCreated"});
    window.resize(340, 300);
    auto& latitude = field("Latitude, Tags");
    auto* const page = pane->findChild<QScrollArea*>();
    latitude.setFocus();
    settle();
    const int lower = latitude.mapTo(page->widget(), QPoint(0, latitude.height())).y();
    page->verticalScrollBar()->setValue(lower - page->viewport()->height()); // at the very edge
    QTest::keyClicks(&latitude, "north");
    settle();
    const QLabel* const problem = problemIn(*pane, "no latitude");
    ASSERT_NE(problem, nullptr);
    EXPECT_EQ(problem->visibleRegion().boundingRect(), problem->rect());

    leave(latitude);
    leave(*QApplication::focusWidget());
    EXPECT_EQ(latitude.text(), "north");
    EXPECT_TRUE(problem->isVisible());
    EXPECT_FALSE(photo->hasUnsavedChanges());
    latitude.setFocus();
    QTest::keyClick(&latitude, Qt::Key_Escape);
    settle();
    EXPECT_EQ(latitude.text(), "");
    EXPECT_FALSE(problem->isVisible());
}

TEST_F(InspectorTest, PicksDatesAndOfferedValuesByMouse) {
    store.cacheValue("Bled", "City");
    store.cacheValue("Piran", "City");
    const auto photo = add("a.jpg", {{"EXIF:DateTimeOriginal", "2014:05:03 17:41:09"}});
    selectAndSettle({photo});
    show({"cityCreated", "dateTimeOriginalComponents"});
    press(field("City, Tags"));
    QAbstractItemView* const offers = pane->findChild<QCompleter*>()->popup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(offers));
    click(*offers, offers->model()->index(1, 0));
    settle();
    EXPECT_EQ(textOf(*photo, "cityCreated") + "|" + field("City, Tags").text().toStdString(), "Piran|Piran");

    press(field("Original Date, Tags"));
    const QPointer calendar = pane->findChild<QCalendarWidget*>();
    ASSERT_TRUE(calendar && QTest::qWaitForWindowExposed(calendar.get()));
    EXPECT_EQ(calendar->selectedDate(), QDate(2014, 5, 3));
    auto& days = *calendar->findChild<QAbstractItemView*>();
    QModelIndex day;
    for (int row = 2; row < days.model()->rowCount() && !day.isValid();
         ++row)                                                              // the first week may be April's
        for (int column = 1; column < days.model()->columnCount(); ++column) // 0 counts weeks
            if (days.model()->index(row, column).data().toInt() == 20)
                day = days.model()->index(row, column);
    click(days, day);
    settle();
    EXPECT_FALSE(calendar && calendar->isVisible());
    EXPECT_EQ(photo->valueForKey("dateTimeOriginalComponents").components()->xmpString(),
              "2014:05:20 17:41:09");
    QTest::keyClick(&field("Original Date, Tags"), Qt::Key_Down);
    const QPointer again = pane->findChild<QCalendarWidget*>();
    ASSERT_TRUE(again && QTest::qWaitForWindowExposed(again.get()));
    QTest::keyClick(again->focusProxy() ? again->focusProxy() : again.get(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(again && again->isVisible());
    ASSERT_TRUE(undo->undo() && undo->undo());
    EXPECT_FALSE(undo->canUndo()) << "two edits";
}

TEST_F(InspectorTest, TellsWhatGoesToThePhotoLibrary) {
    auto item = std::make_shared<KTMediaObject>();
    item->mediaSourceIdentifier = "com.apple.iPhoto";
    item->URL = makePhoto(folder, "a.jpg");
    selectAndSettle({add("b.jpg")});
    show({"title", "label", "keywords", "latitude"});
    auto signs = [&] {
        std::string fields;
        for (const FieldRow* const row : pane->findChildren<FieldRow*>())
            for (const QLabel* const sign : row->findChildren<QLabel*>())
                if (sign->isVisible() && sign->accessibleName() == "Photo library")
                    fields += row->item().representedObject()->key() + " ";
        return fields;
    };
    EXPECT_EQ(signs(), "");
    const auto taken = KTPhoto::initWithFile(item->URL, {}, item);
    manager.addNewPhoto(taken);
    settle();
    EXPECT_EQ(signs(), "title keywords latitude ");
    manager.removePhotos({taken});
    settle();
    EXPECT_EQ(signs(), "");
}

TEST_F(InspectorTest, RenamesMovesAndDeletesRowsOfAList) {
    const auto photo = add("a.jpg", {{"IPTC:Keywords", KTValue::listOfTexts({"a", "b", "c"})}});
    selectAndSettle({photo});
    show({"keywords", "title"});
    auto& list = field<ListFieldView>("Keywords, Tags");
    list.setFocus();
    list.setCurrentIndex(list.model()->index(0, 0));
    QTest::keyClick(&list, Qt::Key_F2);
    auto* const cell = list.findChild<TagLineEdit*>();
    ASSERT_NE(cell, nullptr);
    cell->selectAll();
    QTest::keyClicks(cell, "x");
    QTest::keyClick(cell, Qt::Key_Return);
    settle();
    EXPECT_EQ(textOf(*photo, "keywords"), "x b c");
    list.setCurrentIndex(list.model()->index(0, 0));
    QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(textOf(*photo, "keywords"), "b x c");
    QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(textOf(*photo, "keywords"), "x b c");

    const std::unique_ptr<QMimeData> dragged(list.model()->mimeData({list.model()->index(2, 0)}));
    EXPECT_EQ(list.model()->mimeData({list.model()->index(3, 0)}), nullptr) << "the row for adding";
    EXPECT_TRUE(list.model()->dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_EQ(textOf(*photo, "keywords"), "c x b");
    settle();
    list.setCurrentIndex(list.model()->index(1, 0));
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(textOf(*photo, "keywords"), "c b");

    QTest::keyClicks(&list, "n");
    leave(*list.findChild<TagLineEdit*>());
    EXPECT_EQ(textOf(*photo, "keywords"), "c b n");
    EXPECT_TRUE(field("Title, Tags").hasFocus()) << "Tab goes on down the page";
}

TEST_F(InspectorTest, CompletesWhatWasTypedBefore) {
    store.cacheValue("Landsberg am Lech", "City");
    const auto photo = add("a.jpg");
    selectAndSettle({photo});
    show({"cityCreated", "countryCodeCreated"});
    auto& city = field("City, Tags");
    city.setFocus();
    QTest::keyClicks(&city, "land");
    EXPECT_EQ(city.text(), "landsberg am Lech") << "as typed, and the rest";
    QTest::keyClick(&city, Qt::Key_Backspace);
    QTest::keyClicks(&city, "e");
    leave(city);
    EXPECT_EQ(textOf(*photo, "cityCreated"), "lande");
    auto& country = field("Country Code, Tags");
    country.setFocus();
    QTest::keyClicks(&country, "switz");
    leave(country);
    EXPECT_EQ(textOf(*photo, "countryCodeCreated"), "CH");
}

TEST_F(InspectorTest, MarksUnsavedFieldsAndRevertsThem) {
    const auto photo = add("a.jpg", {{"XMP:Label", "blue"}});
    selectAndSettle({photo});
    show({"label", "filename"});
    auto* const row = pane->findChild<FieldRow*>();
    auto isMarked = [&] { return !row->findChild<FieldLabel*>()->accessibleDescription().isEmpty(); };
    EXPECT_FALSE(isMarked());
    photo->setValueForKey("label", "red");
    settle();
    EXPECT_TRUE(isMarked());
    EXPECT_TRUE(pane->findChildren<FieldLabel*>().back()->accessibleDescription().isEmpty());
    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(5, 5), row->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(row, &request);
    auto* const menu = row->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    for (QAction* const action : menu->actions())
        if (action->text() == "Revert to Saved")
            action->trigger();
    menu->close();
    settle();
    EXPECT_EQ(textOf(*photo, "label"), "blue");
    EXPECT_FALSE(isMarked());
}
