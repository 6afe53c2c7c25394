#include "app/editor/KTCopiedTags.h"
#include "tests/ui/InspectorFixture.h"
#include "ui/inspector/ArrangementView.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/GroupTreeModel.h"
#include "ui/inspector/PasteTagsSheet.h"
#include "ui/inspector/RatingStars.h"

#include <QMimeData>
#include <QPushButton>
#include <QTreeView>
#include <set>

using InspectorArrangementTest = InspectorFixture;

TEST_F(InspectorArrangementTest, IsCustomizedByNameAndDrag) {
    selectAndSettle({add("a.jpg")});
    show();
    editor.setInCustomizationMode(true);
    auto* const arrangement = pane->findChild<ArrangementView*>();
    ASSERT_TRUE(arrangement != nullptr && arrangement->isVisible());
    auto& tree = field<QTreeView>("Groups and Fields");
    auto& model = dynamic_cast<GroupTreeModel&>(*tree.model());
    const QModelIndex tags = model.index(1, 0), geotags = model.index(2, 0);
    model.setData(tags, "Words", Qt::EditRole);
    model.setData(model.index(3, 0, tags), "Author", Qt::EditRole);

    std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(4, 0, tags)})); // the event
    EXPECT_TRUE(model.dropMimeData(dragged.get(), Qt::MoveAction, 1, 0, geotags));
    tree.setCurrentIndex(model.index(0, 0, model.index(0, 0)));
    QTest::keyClick(&tree, Qt::Key_Delete); // the file name
    auto& all = field<QTreeView>("All Fields");
    field<QLineEdit>("Search fields").setText("rating");
    const QModelIndex rating = all.model()->index(0, 0, all.model()->index(0, 0));
    ASSERT_EQ(rating.data().toString(), "Rating");
    tree.setCurrentIndex(model.index(1, 0));
    all.setCurrentIndex(rating);
    QTest::keyClick(&all, Qt::Key_Return);
    EXPECT_EQ(rating.data().toString(), "Rating (shown)");
    const QModelIndex organization = rating.parent();
    const std::unique_ptr<QMimeData> draggedGroup(all.model()->mimeData({organization}));
    EXPECT_TRUE(model.dropMimeData(draggedGroup.get(), Qt::CopyAction, 0, 0, {}));
    EXPECT_EQ(model.index(0, 0).data(), organization.data());
    tree.setCurrentIndex(model.index(0, 0));
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_EQ(model.index(0, 0).data().toString(), "Name & Date");
    tree.setCurrentIndex(model.index(0, 0, model.index(2, 0)));
    all.setCurrentIndex(organization);
    for (QPushButton* const button : arrangement->findChildren<QPushButton*>())
        if (button->text() == "Add Whole Group")
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(model.index(3, 0).data(), organization.data());
    tree.setCurrentIndex(model.index(3, 0));
    QTest::keyClick(&tree, Qt::Key_Delete);

    editor.setInCustomizationMode(false);
    ASSERT_TRUE(runEventLoopUntil([&] { return pane->isFilled(); }));
    settle();
    EXPECT_EQ(pane->findChildren<RatingStars*>().size(), 1);
    EXPECT_TRUE(field("Author, Words").isEnabled());
    EXPECT_TRUE(field("Event, Geotags").isVisible());
    EXPECT_THROW(field("File Name, Name & Date"), std::runtime_error);
    const KTMetadataEditorViewController kept(manager, catalogue, store);
    EXPECT_EQ(kept.groups()[1]->name() + kept.groups()[1]->fields()[3]->name(), "WordsAuthor");
}

TEST_F(InspectorArrangementTest, SavesAndChoosesTemplates) {
    selectAndSettle({add("a.jpg")});
    show({"title"});
    auto choose = [&](const QString& text) {
        settle();
        for (QAction* const action : field<QToolButton>("Templates").menu()->actions())
            if (action->text() == text)
                return action->trigger();
        FAIL() << text.toStdString();
    };
    choose("Save current…");
    auto* const sheet = window.findChild<QDialog*>();
    ASSERT_NE(sheet, nullptr);
    auto& name = field<QLineEdit>("Template name");
    EXPECT_EQ(name.text(), "Untitled template");
    name.setText("Trip");
    sheet->accept();
    EXPECT_TRUE(std::filesystem::exists(folder / "templates" / "Trip.plist"));
    choose("Default");
    ASSERT_TRUE(runEventLoopUntil([&] { return pane->isFilled(); }));
    EXPECT_NO_THROW(field("City, Geotags"));
    choose("Trip");
    ASSERT_TRUE(runEventLoopUntil([&] { return pane->isFilled(); }));
    settle();
    EXPECT_EQ(pane->findChildren<FieldRow*>().size(), 1);
    EXPECT_NO_THROW(field("Title, Tags"));
}

TEST_F(InspectorArrangementTest, PastesTheChosenTagsAsOneStep) {
    const auto from = add("a.jpg", {{"XMP:Label", "blue"}, {"XMP:Title", "Ford"}});
    const auto photos = photosNamed({"b.jpg", "c.jpg"});
    int pastes = 0;
    auto* const sheet = new PasteTagsSheet(
        KTCopiedTags::fromPhoto(*from), 2,
        [&](const KTCopiedTags& chosen) {
            ++pastes;
            chosen.pasteOnto(manager, std::make_shared<KTPhotoManager::Photos>(photos));
        },
        &window);
    sheet->open();
    auto* const list = sheet->findChild<QTreeView*>();
    for (int row = 0; row < list->model()->rowCount(); ++row)
        if (list->model()->index(row, 0).data().toString() == "Title")
            list->model()->setData(list->model()->index(row, 0), Qt::Unchecked, Qt::CheckStateRole);
    sheet->accept();
    EXPECT_EQ(pastes, 1);
    EXPECT_EQ(textOf(*photos[0], "label") + textOf(*photos[1], "label"), "blueblue");
    EXPECT_EQ(textOf(*photos[0], "title"), "");
    undo->undo();
    EXPECT_EQ(textOf(*photos[1], "label"), "");
    EXPECT_FALSE(undo->canUndo());
}

TEST_F(InspectorArrangementTest, NamesEveryControlOnceAndTellsTheEmptySelection) {
    show();
    auto shownTexts = [&] {
        QStringList texts;
        for (const QLabel* const label : pane->findChildren<QLabel*>())
            if (label->isVisible())
                texts << label->text();
        return texts;
    };
    EXPECT_TRUE(shownTexts().contains("No Photos Selected"));
    const auto photo = add("a.jpg");
    selectAndSettle({photo});
    EXPECT_TRUE(shownTexts().contains("1 photo"));
    std::set<QString> names;
    for (const QWidget* const widget : pane->findChildren<QWidget*>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible())
            continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
        EXPECT_TRUE(names.insert(widget->accessibleName()).second) << widget->accessibleName().toStdString();
        EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->accessibleName().toStdString();
    }
    EXPECT_GT(names.size(), 15u);
}
