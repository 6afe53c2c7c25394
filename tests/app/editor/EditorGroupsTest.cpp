#include "tests/app/editor/EditorFixture.h"

#include "app/editor/KTCopiedTags.h"
#include "app/editor/KTMetadataCustomizationViewController.h"
#include "platform/desktop/KTPropertyList.h"
#include "tests/support/FakePresenter.h"

#include <sys/stat.h>

namespace {

class EditorGroups : public EditorFixture {
protected:
    static std::string layout(const KTMetadataEditorViewController& shown) {
        std::string text;
        for (const auto& each : shown.groups()) {
            text += each->name() + ":";
            for (const auto& field : each->fields())
                text += " " + field->key();
            text += "\n";
        }
        return text;
    }
    std::string storedLayout() {
        KTMetadataEditorViewController again(manager, catalogue, store);
        return layout(again);
    }
    std::string menuTitles() {
        std::string titles;
        for (const KTMenuItem& entry : customization.buildTemplatesMenu()) {
            titles += (entry.isSeparator() ? "-" : entry.title) + " ";
            EXPECT_TRUE(entry.isEnabled);
        }
        return titles;
    }
    void saveTemplateNamed(const char* name) {
        customization.saveNewTemplateAction();
        EXPECT_EQ(customization.templateName(), "Untitled template");
        customization.setTemplateName(name);
        customization.metadataUserNewTemplateSaveAction();
    }

    const std::filesystem::path templates = folder / "data" / "MetadataTemplates";
    KTMetadataCustomizationViewController customization{editor, KTUserTemplates(templates)};
    const std::string defaults =
        "Name & Date: filename dateTimeOriginalComponents\n"
        "Common Tags: caption people keywords creator event\n"
        "Geotags: latitude altitude cityCreated stateCreated countryCreated locationCreated\n";
};

} // namespace

TEST_F(EditorGroups, TheUserArrangesGroupsAndTheyAreKept) {
    EXPECT_EQ(layout(editor), defaults);
    const auto dates = editor.groups()[0], tags = editor.groups()[1];
    const std::string drag = editor.dragDataOfField(*tags->fields()[1]);
    EXPECT_TRUE(editor.dropField(drag, *dates, 1));
    EXPECT_TRUE(editor.dropField(editor.dragDataOfField(*tags->fields()[0]), *tags, 3)) << "within its group";
    EXPECT_TRUE(editor.dropField(editor.dragDataOfCatalogueField("rating"), *tags, 99));
    EXPECT_FALSE(editor.dropField(editor.dragDataOfCatalogueField("longitude"), *tags, 0)) << "has no editor";
    for (const char* nonsense : {"", "editor:", "editor:9:9", "editor:x:y", "file:///tmp"})
        EXPECT_FALSE(editor.dropField(nonsense, *tags, 0)) << nonsense;
    editor.renameField(*tags->fields()[0], "Words");
    editor.renameGroup(*tags, "Mine");
    editor.renameGroup(*tags, "  ");
    editor.removeGroup(editor.groups()[2]);
    editor.moveGroup(1, 0);
    editor.removeField(*dates->fields()[0]);
    const std::string arranged = "Mine: keywords creator caption event rating\n"
                                 "Name & Date: people dateTimeOriginalComponents\n";
    EXPECT_EQ(layout(editor), arranged);
    EXPECT_EQ(storedLayout(), arranged);
    EXPECT_EQ(KTMetadataEditorViewController(manager, catalogue, store).groups()[0]->fields()[0]->name(),
              "Words");
    EXPECT_EQ(catalogue.metadataFieldForKey("keywords")->name(), "Keywords");
    EXPECT_TRUE(editor.showsField("rating"));
    editor.addGroup();
    EXPECT_EQ(editor.groups().back()->name(), "Untitled");
    const auto& ofCatalogue = *catalogue.metadataGroups().front();
    const auto added = editor.addCatalogueGroup(ofCatalogue, 0);
    EXPECT_EQ(editor.groups().front(), added);
    EXPECT_EQ(added->name(), ofCatalogue.name());
    editor.renameField(*added->fields()[0], "Other");
    EXPECT_NE(ofCatalogue.fields()[0]->name(), "Other");
    EXPECT_TRUE(storedLayout().starts_with(ofCatalogue.name() + ": "));
    editor.resetToDefaultGroups();
    EXPECT_EQ(storedLayout(), defaults);
    set("defaultEditorGroups", KTValue::List{KTValue("damaged")});
    EXPECT_EQ(storedLayout(), defaults);
}

TEST_F(EditorGroups, TemplatesAreSavedChosenAndRemoved) {
    customization.setupTemplates();
    EXPECT_EQ(menuTitles(), "Templates Save current… Remove… - Default ");
    for (const char* name : {"Trip", "Trip", "Trip", "", "a/b"})
        saveTemplateNamed(name);
    for (const char* file :
         {"Trip.plist", "Trip-1.plist", "Trip-2.plist", "Untitled template.plist", "a-b.plist"})
        EXPECT_TRUE(std::filesystem::exists(templates / file)) << file;
    EXPECT_EQ(menuTitles(),
              "Templates Save current… Remove… - Default Trip Trip Trip Untitled template a/b ");
    customization.saveNewTemplateAction();
    customization.metadataUserNewTemplateCancelAction();
    EXPECT_FALSE(customization.isNewTemplateSheetShown());

    editor.setGroups({});
    customization.buildTemplatesMenu()[5].action();
    EXPECT_EQ(layout(editor), defaults);
    editor.removeField(*editor.groups()[0]->fields()[0]);
    customization.buildTemplatesMenu()[5].action();
    EXPECT_EQ(layout(editor), defaults) << "the template stayed as it was";

    customization.removeTemplateAction();
    customization.removeRemovableUserTemplateAtIndex(1);
    customization.removeRemovableUserTemplateAtIndex(1);
    EXPECT_TRUE(std::filesystem::exists(templates / "Trip-1.plist")) << "not before the sheet is done";
    customization.metadataUserTemplatesDoneAction();
    EXPECT_FALSE(std::filesystem::exists(templates / "Trip-1.plist"));
    EXPECT_EQ(menuTitles(), "Templates Save current… Remove… - Default Trip Untitled template a/b ");
    customization.setupTemplates();
    EXPECT_EQ(menuTitles(), "Templates Save current… Remove… - Default Trip Untitled template a/b ")
        << "by file";
}

TEST_F(EditorGroups, DamagedTemplatesCostNothing) {
    std::filesystem::create_directories(templates);
    auto write = [&](const char* name, const KTValue& content) {
        EXPECT_FALSE(KTWritePropertyList(content, templates / name));
    };
    const KTValue::List fields{KTValue::Dictionary{{"FieldKey", "noSuchField"}}, "text",
                               KTValue::Dictionary{{"FieldKey", "keywords"}, {"FieldName", "Tags"}},
                               KTValue::Dictionary{{"FieldKey", "event"}, {"FieldName", 7}}};
    write("odd.plist",
          KTValue::Dictionary{{"Groups", KTValue::List{1, KTValue::Dictionary{{"Fields", fields}}}}});
    write("list.plist", KTValue::List{"a"});
    write("notes.PLIST", KTValue::Dictionary{{"TemplateName", "never listed"}});
    folder.file("data/MetadataTemplates/text.plist", "no property list");
    folder.file("data/MetadataTemplates/empty.plist", "");
    std::string deep = "<plist>";
    for (int i = 0; i < 100000; ++i)
        deep += "<array>";
    folder.file("data/MetadataTemplates/deep.plist", deep);
    customization.setupTemplates();
    ASSERT_EQ(customization.userTemplates().size(), 1u);
    const KTUserTemplate& odd = customization.userTemplates()[0];
    EXPECT_EQ(odd.templateName, "Untitled template");
    ASSERT_EQ(odd.groups.size(), 1u);
    EXPECT_EQ(odd.groups[0]->name(), "Untitled");
    ASSERT_EQ(odd.groups[0]->fields().size(), 2u);
    EXPECT_EQ(odd.groups[0]->fields()[0]->name(), "Tags");
    EXPECT_EQ(odd.groups[0]->fields()[1]->name(), "Event");
}

TEST_F(EditorGroups, AStoreThatCannotBeUsedCostsNoEdit) {
    folder.file("data/MetadataTemplates", "a file where the folder should be");
    FakePresenter window;
    customization.setPresenter(&window);
    customization.setupTemplates();
    saveTemplateNamed("Trip");
    EXPECT_TRUE(customization.userTemplates().empty());
    EXPECT_EQ(window.alerts.size(), 1u);

    KTComboBoxStoreController broken(folder.file("broken.sql", std::string(4096, 'x')));
    broken.setPresenter(&window);
    KTMetadataEditorViewController brokenEditor(manager, catalogue, broken);
    const auto photo = add("a.jpg");
    selectAll();
    const auto event =
        brokenEditor.arrayViewItemForObject(group, catalogue.metadataFieldForKey("event")->copy());
    event->setText("Party");
    event->endEditing();
    EXPECT_EQ(textOf(*photo, "event"), "Party");
    EXPECT_TRUE(broken.cacheArrayForKey("Event").empty());
    EXPECT_EQ(window.alerts.size(), 2u) << "told once";
}

TEST_F(EditorGroups, TagsAreCopiedFromOnePhotoToOthers) {
    const auto source = add("a.jpg", {{"XMP:Title", "Lake"},
                                      {"XMP:Subject", KTValue::listOfTexts({"x", "y"})},
                                      {"EXIF:DateTimeOriginal", "2014:05:03 10:00:00"}});
    source->setValueForKey("latitude", *KTDecimal::fromText("46.5"));
    source->setValueForKey("longitude", *KTDecimal::fromText("14.5"));
    undo->removeAllActionsWithTargets({source.get()});
    const auto b = add("b.jpg", {{"XMP:Title", "Other"}, {"XMP:Label", "Red"}}), c = add("c.jpg");
    b->setDateTimeOriginalTimeZone(KTTimeZone::fixed(-3600));
    KTCopiedTags tags = KTCopiedTags::fromPhoto(*source);
    std::map<std::string, std::size_t> rows;
    for (std::size_t row = 0; row < tags.rows().size(); ++row)
        rows[tags.rows()[row].field->key()] = row;
    EXPECT_EQ(rows.size(), 4u) << "a position is one row";
    EXPECT_TRUE(tags.rows()[rows["title"]].isChosen);
    EXPECT_FALSE(tags.rows()[rows["latitude"]].isChosen);
    tags.setChosen(rows["latitude"], true);
    tags.setChosen(rows["keywords"], false);
    tags.pasteOnto(manager, std::make_shared<const KTPhotoManager::Photos>(KTPhotoManager::Photos{b, c}));
    EXPECT_EQ(textOf(*b, "title") + textOf(*c, "title"), "LakeLake");
    EXPECT_TRUE(b->isGeotagged() && c->isGeotagged());
    EXPECT_EQ(textOf(*b, "label") + textOf(*b, "keywords"), "Red");
    EXPECT_FALSE(c->dateTimeOriginal());
    EXPECT_EQ(undo->undoActionName(), "Paste Tags");
    ASSERT_TRUE(undo->undo());
    EXPECT_EQ(textOf(*b, "title"), "Other");
    EXPECT_FALSE(undo->canUndo());
    for (std::size_t row = 0; row < tags.rows().size(); ++row)
        tags.setChosen(row, false);
    EXPECT_FALSE(tags.hasChosenRows());
}
