#include "tests/app/editor/EditorFixture.h"

#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"

namespace {

class ListItem : public EditorFixture {
protected:
    using Item = KTMetadataFieldMultipleValueArrayViewItem;

    void SetUp() override {
        EditorFixture::SetUp();
        first = add("a.jpg", {{"XMP:Subject", KTValue::listOfTexts({"a", "b", "c"})}});
        second = add("b.jpg", {{"XMP:Subject", KTValue::listOfTexts({"c", "a"})}});
        third = add("c.jpg");
        select({first, second});
        keywords = item<Item>("keywords");
    }
    std::string lists() const { return textOf(*first, "keywords") + "|" + textOf(*second, "keywords"); }

    std::shared_ptr<KTPhoto> first, second, third;
    std::unique_ptr<Item> keywords;
};

using List = std::vector<std::string>;

} // namespace

TEST_F(ListItem, EditsTheListsOfAllPhotosTogether) {
    EXPECT_EQ(keywords->values(), (List{"a", "c"}));
    EXPECT_EQ(keywords->placeholderOfRow(2), "Add a Keyword…");
    EXPECT_EQ(keywords->placeholderOfRow(1), "");
    keywords->setValue("d", 2);
    EXPECT_EQ(lists(), "a b c d|c a d");
    turn();
    EXPECT_EQ(keywords->selectedRows(), (std::vector<std::size_t>{3})) << "the row for adding";
    keywords->setValue("x", 0);
    EXPECT_EQ(lists(), "x b c d|c x d");
    keywords->setValue("x", 1);
    EXPECT_EQ(lists(), "x b c d|c x d") << "shown already";
    keywords->setValue("", 2);
    EXPECT_EQ(lists(), "x b c|c x");
    keywords->moveValuesAtIndexes({1}, 0);
    EXPECT_EQ(lists(), "c b x|c x");
    EXPECT_FALSE(keywords->canDragRows({1, 2})) << "not the row for adding";
    keywords->setSelectedRows({0});
    keywords->deleteSelected();
    EXPECT_EQ(lists(), "b x|x");
    EXPECT_EQ(undo->undoActionName(), "Edit Keywords");
    for (int step = 0; step < 5; ++step)
        ASSERT_TRUE(undo->undo()) << "each change is a step of its own, also quick ones";
    EXPECT_EQ(lists(), "a b c|c a");
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    EXPECT_FALSE(undo->canUndo());
    EXPECT_EQ(keywords->comboBoxArray(), (List{"d", "x"}));
    EXPECT_EQ(keywords->movedValueRowsType(), "MOVED_keywords_ROWS_TYPE");
}

TEST_F(ListItem, APendingRowBelongsToThePhotosOnWhichItBegan) {
    keywords->setSelectedRows({0});
    keywords->editSelected();
    EXPECT_EQ(keywords->editedRow(), 0u);
    keywords->setEditedText("z");
    select({third});
    EXPECT_FALSE(keywords->editedRow());
    turn();
    EXPECT_EQ(lists(), "z b c|c z");
    EXPECT_EQ(textOf(*third, "keywords"), "");
    keywords->beginEditingRow(0);
    keywords->setEditedText("new");
    keywords->cancelEditing();
    keywords->beginEditingRow(0);
    keywords->endEditing();
    EXPECT_EQ(textOf(*third, "keywords"), "") << "given up, and never typed";
    keywords->beginEditingRow(0);
    keywords->setEditedText("  kept ");
    keywords.reset();
    EXPECT_EQ(textOf(*third, "keywords"), "kept") << "an editor that goes loses nothing";
}

TEST_F(ListItem, NothingIsSharedAndNothingIsSelected) {
    selectAll();
    EXPECT_EQ(keywords->values(), List{});
    editor.setInCustomizationMode(true);
    keywords->setInCustomizationMode(true);
    EXPECT_EQ(keywords->placeholderOfRow(0), "");
    keywords->setValue("d", 0);
    keywords->setInCustomizationMode(false);
    select({});
    EXPECT_EQ(keywords->placeholderOfRow(0), "");
    keywords->setValue("d", 0);
    EXPECT_FALSE(undo->canUndo());
}
