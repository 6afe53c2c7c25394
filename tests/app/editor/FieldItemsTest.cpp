#include "tests/app/editor/EditorFixture.h"

#include "app/editor/KTCopyrightStatus.h"
#include "app/editor/KTMetadataFieldComboBoxArrayViewItem.h"
#include "app/editor/KTRating.h"
#include "platform/common/KTUnitConverter.h"

namespace {

class FieldItems : public EditorFixture {
protected:
    using State = KTSelectedValue::State;
    using Kind = KTMetadataFieldItemKind;

    void SetUp() override {
        EditorFixture::SetUp();
        set("defaultAssumedTimeZoneOffset", 7200);
    }
};

} // namespace

TEST_F(FieldItems, EveryFieldOfTheCatalogueGetsItsEditor) {
    std::map<Kind, std::string> keys;
    std::string none;
    for (const auto& field : catalogue.metadataFields()) {
        const auto choice = KTMetadataFieldItemFor(*field);
        (choice ? keys[choice->kind] : none) += field->key() + " ";
    }
    EXPECT_EQ(none, "longitude longitudeShown ");
    EXPECT_EQ(keys[Kind::LonLat], "latitude latitudeShown ");
    EXPECT_EQ(keys[Kind::TextField], "title ");
    EXPECT_EQ(keys[Kind::Rating], "rating ");
    EXPECT_EQ(keys[Kind::Marked], "marked ");
    EXPECT_EQ(keys[Kind::ResizeableTextView], "headline caption ");
    EXPECT_EQ(keys[Kind::CountryCode], "countryCodeCreated countryCodeShown ");
    EXPECT_EQ(keys[Kind::DateTime], "dateTimeDigitizedComponents metadataDate modifyDate creationDate "
                                    "gpsDateTime dateTimeOriginalComponents ");
    EXPECT_EQ(keys[Kind::MultipleValue], "sceneCodes subjectCodes supplementalCategories keywords people ");
    EXPECT_NE(keys[Kind::ComboBox].find("creator "), std::string::npos);
    EXPECT_NE(keys[Kind::Static].find("altitude "), std::string::npos);
    EXPECT_TRUE(KTMetadataFieldItemFor(*catalogue.metadataFieldForKey("latitudeShown"))->isLocationShown);
    EXPECT_TRUE(
        KTMetadataFieldItemFor(*catalogue.metadataFieldForKey("dateTimeOriginalComponents"))->usesComponents);
    EXPECT_FALSE(KTMetadataFieldItemFor(*catalogue.metadataFieldForKey("creationDate"))->usesComponents);
    set("AltitudeFieldIsEditableDefault", true);
    EXPECT_EQ(KTMetadataFieldItemFor(*catalogue.metadataFieldForKey("altitude"))->kind, Kind::TextField);
}

TEST_F(FieldItems, AbsentEqualAndMixedValuesAreToldApart) {
    const auto a = add("a.jpg", {{"XMP:Title", "Lake"}, {"XMP:Label", "Red"}}),
               b = add("b.jpg", {{"XMP:Title", "Lake"}});
    const auto title = item("title"), label = item("label"), credit = item("credit");
    EXPECT_EQ(title->selectedValue().state, State::NoSelection);
    EXPECT_FALSE(title->isEditable());
    selectAll();
    EXPECT_EQ(title->selectedValue().state, State::Equal);
    EXPECT_EQ(title->text(), "Lake");
    EXPECT_EQ(label->selectedValue().state, State::Mixed) << "one photo lacks it";
    EXPECT_EQ(label->text(), "");
    EXPECT_EQ(label->placeholder(), "Multiple values");
    EXPECT_EQ(credit->selectedValue().state, State::Absent);
    EXPECT_EQ(credit->placeholder(), "");
    b->setValueForKey("label", "Red");
    turn();
    EXPECT_EQ(label->selectedValue().state, State::Equal) << "follows edits from elsewhere";
    int announced = 0;
    const auto observation = label->observe(
        [&](const KTChange& change) { announced += change.key == "value" && !change.isPrior ? 1 : 0; });
    select({a});
    EXPECT_EQ(announced, 1);
    for (int i = 0; i < 3; ++i)
        a->setValueForKey("label", i);
    turn();
    EXPECT_EQ(announced, 2) << "once a turn";
}

TEST_F(FieldItems, ATypedTextReachesEveryPhotoAsOneStep) {
    const auto a = add("a.jpg", {{"XMP:Title", "Lake"}}), b = add("b.jpg");
    selectAll();
    const auto title = item("title");
    title->setText("W");
    EXPECT_EQ(textOf(*b, "title"), "W") << "shown while it is typed";
    title->setText("Walk");
    EXPECT_FALSE(undo->canUndo()) << "typing is not a step";
    title->endEditing();
    EXPECT_EQ(textOf(*a, "title") + textOf(*b, "title"), "WalkWalk");
    EXPECT_EQ(undo->undoActionName(), "Edit Title");
    EXPECT_TRUE(title->hasUnsavedEdit());
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(textOf(*a, "title") + textOf(*b, "title"), "Lake");
    EXPECT_FALSE(undo->canUndo());
    turn();
    EXPECT_FALSE(title->hasUnsavedEdit());
    ASSERT_TRUE(undo->redo());
    EXPECT_EQ(textOf(*b, "title"), "Walk");
}

TEST_F(FieldItems, WhatNobodyTypedIntoIsNotWritten) {
    const auto a = add("a.jpg", {{"XMP:Title", "Lake"}}), b = add("b.jpg");
    selectAll();
    const auto title = item("title");
    title->endEditing();
    title->setText("");
    title->setText("x");
    title->setText(""); // back to nothing in a field whose photos differ
    title->endEditing();
    title->setText("typed");
    title->cancelEditing();
    EXPECT_EQ(title->text(), "");
    EXPECT_EQ(textOf(*a, "title"), "Lake");
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    EXPECT_FALSE(undo->canUndo());
    select({a});
    title->setText("Lakes");
    title->setText("Lake");
    title->endEditing();
    EXPECT_FALSE(undo->canUndo());
    title->setText("");
    title->endEditing();
    EXPECT_EQ(a->valueForKey("title"), KTValue()) << "but an emptied text clears";
    title->clearValue();
    EXPECT_TRUE(b->valueForKey("title").isAbsent());
}

TEST_F(FieldItems, APendingEditBelongsToThePhotosOnWhichItBegan) {
    const auto a = add("a.jpg"), b = add("b.jpg"), c = add("c.jpg");
    select({a, b});
    const auto title = item("title"), caption = item("caption");
    title->setText("Mine");
    select({c});
    EXPECT_EQ(title->text(), "") << "the next selection shows its own";
    turn();
    EXPECT_EQ(textOf(*a, "title") + textOf(*b, "title"), "MineMine");
    EXPECT_TRUE(c->valueForKey("title").isAbsent());
    ASSERT_TRUE(undo->undo());
    EXPECT_TRUE(a->valueForKey("title").isAbsent());

    title->setText("Title");
    caption->setText("Caption");
    EXPECT_EQ(undo->undoActionName(), "Edit Title") << "another field's first letter ends it";
    manager.removePhotos({c});
    turn();
    EXPECT_FALSE(c->valueForKey("caption").isSomething()) << "a photo that is gone is left alone";
}

TEST_F(FieldItems, RevertsToWhatTheFilesHold) {
    const auto a = add("a.jpg", {{"XMP:Title", "Lake"}, {"EXIF:DateTimeOriginal", "2014:05:03 10:00:00"}}),
               b = add("b.jpg");
    selectAll();
    const auto title = item("title"), date = item("dateTimeOriginalComponents"),
               created = item("creationDate");
    title->setText("Other");
    title->endEditing();
    a->setDateTimeOriginalShift(3600);
    b->setValueForKey("creationDate", KTInstantFromMilliseconds(0));
    turn();
    EXPECT_TRUE(title->hasUnsavedEdit() && date->hasUnsavedEdit() && created->hasUnsavedEdit());
    EXPECT_FALSE(item("caption")->hasUnsavedEdit());
    for (const auto* each : {&title, &date, &created})
        (*each)->revertToSaved();
    EXPECT_EQ(textOf(*a, "title"), "Lake");
    EXPECT_EQ(a->readingOf(KTPhotoDateFamily::Original).shift, 0);
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    ASSERT_TRUE(undo->undo());
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(a->readingOf(KTPhotoDateFamily::Original).shift, 3600);
}

TEST_F(FieldItems, DatesAreTypedInHalvesOrWhole) {
    const auto a = add("a.jpg", {{"EXIF:DateTimeOriginal", "2014:05:03 10:00:00"}}),
               b = add("b.jpg", {{"EXIF:DateTimeOriginal", "2015:06:04 11:30:00"}}), c = add("c.jpg");
    using enum KTMetadataFieldArrayViewItem::Half;
    const auto date = item("dateTimeOriginalComponents");
    auto reading = [](const auto& photo) {
        const auto components = photo->readingOf(KTPhotoDateFamily::Original).components;
        return components ? components->xmpString().value_or("") : "none";
    };
    select({a});
    EXPECT_EQ(date->text(First) + "|" + date->text(Second), "2014-05-03|10:00:00");
    date->setText("10:00:61", Second);
    EXPECT_NE(date->problem(), "");
    date->setText("09:58:00", Second);
    date->endEditing();
    EXPECT_EQ(reading(a), "2014:05:03 09:58:00");
    EXPECT_EQ(undo->undoActionName(), "Edit Original Date");
    selectAll();
    EXPECT_EQ(date->placeholder(Second), "Multiple values");
    date->setText("2013-01-02");
    date->endEditing();
    EXPECT_EQ(reading(a), "2013:01:02 09:58:00") << "each keeps its own time";
    EXPECT_EQ(reading(b), "2013:01:02 11:30:00");
    EXPECT_EQ(reading(c), "2013:01:02");
    date->setText("2014-05-03T17:41:09+05:00");
    date->endEditing();
    EXPECT_EQ(reading(b), "2014:05:03 14:41:09") << "the camera's clock at that instant";
    date->setText("nonsense");
    EXPECT_EQ(date->text(), "nonsense");
    date->endEditing();
    EXPECT_EQ(reading(a), "2014:05:03 14:41:09") << "nothing is written";
    date->setText("2014-05", First);
    date->setText("", Second);
    date->endEditing();
    EXPECT_EQ(reading(c), "2014:05");

    for (const char* typed :
         {"09:04:12", "2014-05-03x", "14-05-03", "2014-05-03 10:00:00 noon", "2014-02-30"}) {
        date->setText(typed);
        EXPECT_NE(date->problem(), "") << typed;
    }
    date->cancelEditing();

    select({a});
    const auto created = item("creationDate");
    created->setText("2013-01-01");
    created->setText("", Second);
    EXPECT_NE(created->problem(), "") << "an instant needs a time";
    created->cancelEditing();
}

TEST_F(FieldItems, WhatIsNoValueStaysToBePutRight) {
    const auto a = add("a.jpg"), b = add("b.jpg");
    using enum KTMetadataFieldArrayViewItem::Half;
    const auto date = item("dateTimeOriginalComponents"), title = item("title"), place = item("latitude");
    auto isKept = [&] { return date->text(Second) == "17:4x" && !date->problem().empty(); };
    select({a});
    date->setText("17:4x", Second);
    date->endEditing();
    EXPECT_TRUE(isKept() && !date->isEditing());
    title->setText("Ford"); // another field is typed, and commands are given
    editor.commitEditing();
    undo->undo();
    turn();
    EXPECT_TRUE(isKept());
    EXPECT_FALSE(a->hasUnsavedChanges());
    date->setText("2014-05-03", First);
    EXPECT_NE(date->problem(), "") << "the other half is as it was typed";
    date->endEditing();
    date->setText("17:41:09", Second);
    date->endEditing();
    EXPECT_EQ(date->problem() + date->text(First) + date->text(Second), "2014-05-0317:41:09");
    EXPECT_EQ(a->valueForKey("dateTimeOriginalComponents").components()->second, 9);
    ASSERT_TRUE(undo->undo());
    EXPECT_FALSE(undo->canUndo()) << "one edit, one step";

    auto type = [&] {
        turn();
        place->setText("north");
        place->endEditing();
        EXPECT_EQ(place->text(), "north");
    };
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"given up", [&] { place->cancelEditing(); }},
        {"other photos", [&] { select({b}); }},
        {"other value", [&] { b->setValueForKey("latitude", *KTDecimal::fromText("46")); }},
        {"another one set", [&] { place->clearValue(); }},
        {"reverted", [&] { place->revertToSaved(); }}};
    for (const auto& [what, end] : ends) {
        type();
        end();
        turn();
        EXPECT_EQ(place->problem(), "") << what;
        EXPECT_NE(place->text(), "north") << what;
    }
    title->setText("Bridge");
    place->revertToSaved();
    EXPECT_EQ(textOf(*b, "title"), "Bridge") << "of another field";
}

TEST_F(FieldItems, PositionsAreTypedInHalvesOrPasted) {
    const auto a = add("a.jpg"), b = add("b.jpg");
    using enum KTMetadataFieldArrayViewItem::Half;
    selectAll();
    const auto place = item("latitude");
    place->setText("46° 3′ 3.89″ N, 14° 30′ 18.47″ E", Second);
    place->endEditing();
    EXPECT_NEAR(b->decimalForKey("latitude")->toDouble(), 46.051081, 1e-6);
    EXPECT_NEAR(b->decimalForKey("longitude")->toDouble(), 14.505131, 1e-6);
    EXPECT_TRUE(a->isGeotagged());
    place->setText("47,5");
    place->endEditing();
    EXPECT_EQ(a->decimalForKey("latitude"), KTDecimal::fromText("47.5"));
    EXPECT_NEAR(a->decimalForKey("longitude")->toDouble(), 14.505131, 1e-6);
    place->setText("somewhere");
    EXPECT_NE(place->problem(), "");
    place->endEditing();
    EXPECT_EQ(a->decimalForKey("latitude"), KTDecimal::fromText("47.5"));
    place->clearValue();
    EXPECT_FALSE(a->isGeotagged() || b->isGeotagged());
    for (int step = 0; step < 3; ++step)
        ASSERT_TRUE(undo->undo());
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    EXPECT_FALSE(undo->canUndo());
}

TEST_F(FieldItems, HeightsRatingsAndStatuses) {
    set("AltitudeFieldIsEditableDefault", true);
    const auto a = add("a.jpg");
    selectAll();
    const auto altitude = item("altitude"), rating = item("rating"), marked = item("marked");
    const std::pair<const char*, const char*> heights[] = {
        {"434,5", "434.5"}, {"1000 ft", "304.8"}, {"-12.5m", "-12.5"}, {"high", ""}};
    for (const auto& [typed, metres] : heights) {
        altitude->setText(typed);
        EXPECT_EQ(altitude->problem().empty(), *metres != '\0') << typed;
        altitude->endEditing();
        if (*metres != '\0') {
            EXPECT_EQ(a->decimalForKey("altitude"), KTDecimal::fromText(metres)) << typed;
        }
    }
    altitude->cancelEditing();
    EXPECT_EQ(altitude->text(), "-12.5 m");
    KTUnitConverter::sharedUnitConverter().setDistanceUnits(KTUnitConverter::Units::Imperial);
    EXPECT_EQ(altitude->text(), "-41.01 ft");
    altitude->setText("100");
    altitude->endEditing();
    EXPECT_EQ(a->decimalForKey("altitude"), KTDecimal::fromText("30.48"));
    KTUnitConverter::sharedUnitConverter().setDistanceUnits(KTUnitConverter::Units::Metric);

    rating->setValue(KTRatingOfStars(*KTStarsForKey('4')));
    EXPECT_EQ(KTStarsOfRating(rating->selectedValue()), 4);
    EXPECT_EQ(KTStarsAfterClick(4, 4), 0);
    EXPECT_EQ(KTStarsAfterClick(2, 4), 2);
    EXPECT_FALSE(KTStarsForKey('6'));
    rating->setValue(KTRatingOfStars(0));
    EXPECT_TRUE(a->valueForKey("rating").isAbsent());
    a->setValueForKey("rating", -1);
    EXPECT_EQ(KTStarsOfRating(rating->selectedValue()), 0);

    EXPECT_EQ(KTCopyrightStatusIndex(marked->selectedValue()), 0u);
    marked->setValue(KTCopyrightStatuses()[2].value);
    EXPECT_EQ(textOf(*a, "marked"), "Public Domain");
    EXPECT_EQ(KTCopyrightStatusIndex(marked->selectedValue()), 2u);
    marked->setValue(KTCopyrightStatuses()[0].value);
    EXPECT_FALSE(marked->hasUnsavedEdit());
}

TEST_F(FieldItems, CountriesByLettersOrName) {
    const auto a = add("a.jpg");
    selectAll();
    const auto country = item<KTMetadataFieldCountryCodeArrayViewItem>("countryCodeCreated");
    const std::pair<const char*, const char*> typed[] = {
        {"de", "DE"}, {"deu", "DEU"}, {"cote d’ivoire", "CI"}, {"Slovenia", "SI"}, {"Atlantis", nullptr}};
    for (const auto& [text, code] : typed) {
        country->setText(text);
        EXPECT_EQ(country->problem().empty(), code != nullptr) << text;
        country->endEditing();
        if (code != nullptr) {
            EXPECT_EQ(textOf(*a, "countryCodeCreated"), code);
        }
    }
    EXPECT_EQ(country->countryName(), "");
    country->cancelEditing();
    EXPECT_EQ(country->countryName(), "Slovenia");
    EXPECT_EQ(country->firstValueMatchingPrefix("slov"), "slovakia") << "the typed letters stay";
    EXPECT_GT(country->comboBoxArray().size(), 240u);
}

TEST_F(FieldItems, TypedTextsAreOfferedAgain) {
    add("a.jpg");
    selectAll();
    const auto event = item<KTMetadataFieldComboBoxArrayViewItem>("event");
    for (const char* text : {"paris", "Paris", "Oslo", "Paris", "  "}) {
        event->setText(text);
        event->endEditing();
    }
    EXPECT_EQ(event->comboBoxArray(), (std::vector<std::string>{"Oslo", "Paris"}));
    EXPECT_EQ(store.cacheArrayForKey("Event"), (std::vector<std::string>{"Paris", "Oslo"}));
    EXPECT_EQ(event->firstValueMatchingPrefix("PA"), "PAris");
    store.cacheValue("Oslo", "Event"); // by another field of that name
    EXPECT_EQ(item<KTMetadataFieldComboBoxArrayViewItem>("event")->comboBoxArray(), event->comboBoxArray());
}

TEST_F(FieldItems, DoesSoonWhatIsEndedByAnAnnouncement) {
    const auto photo = add("a.jpg"), other = add("b.jpg");
    select({photo});
    const auto title = item("title");
    title->setText("Ford");
    auto observation = other->observe([&](const KTChange&) { editor.commitEditing(); });
    other->setValueForKey("label", "red");
    EXPECT_FALSE(title->isEditing());
    turn();
    EXPECT_EQ(textOf(*photo, "title"), "Ford");
    EXPECT_EQ(undo->undoActionName(), "Edit Title");
}
