#pragma once
#include "app/editor/KTMetadataCustomizationViewController.h"
#include "tests/app/editor/EditorFixture.h"
#include "ui/inspector/InspectorPane.h"
#include "ui/inspector/TagLineEdit.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>

/// The inspector in a window whose menu undoes, over a collection of small photos.
class InspectorFixture : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        KTUserDefaults::standardUserDefaults().setValue("defaultAssumedTimeZoneOffset", 0);
        editor.resetToDefaultGroups(); // it was made with the settings of the test before
    }

    void show(std::initializer_list<const char*> keys) {
        auto shown = KTMetadataGroup::initWithName("Tags");
        for (const char* key : keys)
            shown->addField(catalogue.metadataFieldForKey(key)->copy());
        editor.setGroups({shown});
        show();
    }
    void show() {
        pane = new InspectorPane(editor, customization,
                                 [this](bool isOn) { editor.setInCustomizationMode(isOn); });
        window.setCentralWidget(pane);
        QAction* const undoAction = window.menuBar()->addMenu("Edit")->addAction("Undo");
        undoAction->setShortcut(QKeySequence::Undo);
        QObject::connect(undoAction, &QAction::triggered, pane, [this] {
            editor.commitEditing();
            undo->undo();
        });
        window.resize(340, 700);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(runEventLoopUntil([&] { return pane->isFilled(); }));
        settle();
    }
    void settle() {
        for (int i = 0; i < 3; ++i)
            turn();
        QCoreApplication::processEvents();
    }
    void selectAndSettle(const KTPhotoManager::Photos& photos) {
        select(photos);
        settle();
    }
    template<class Widget = TagLineEdit>
    Widget& field(const char* name) {
        std::string names;
        for (Widget* const widget : window.findChildren<Widget*>()) {
            if (widget->accessibleName() == name)
                return *widget;
            names += widget->accessibleName().toStdString() + "; ";
        }
        throw std::runtime_error(std::string("no field ") + name + " among " + names);
    }
    KTPhotoManager::Photos copies(std::size_t count, const KTTagDictionary& tags = {}) {
        const auto model = KTPhoto::initWithFile(makePhoto(folder, "model.jpg", tags));
        for (std::size_t i = 0; i < count; ++i)
            manager.insertObject(model->copyWithZone(), i);
        return *manager.photos();
    }
    static std::size_t countOf(const KTPhotoManager::Photos& photos, const char* key, const KTValue& value) {
        return std::size_t(std::ranges::count_if(
            photos, [&](const auto& photo) { return photo->valueForKey(key) == value; }));
    }
    void leave(QWidget& widget) {
        QTest::keyClick(&widget, Qt::Key_Tab);
        settle();
    }

    /// The button at the end of a line.
    static void press(const TagLineEdit& line) {
        auto* const button = line.findChild<QToolButton*>();
        ASSERT_TRUE(button != nullptr && button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
    }
    static void click(QAbstractItemView& view, const QModelIndex& index) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }
    static QLabel* problemIn(const QWidget& row, const char* text) {
        for (QLabel* const label : row.findChildren<QLabel*>())
            if (label->isVisible() && label->text().contains(text))
                return label;
        return nullptr;
    }

    KTMetadataCustomizationViewController customization{editor, KTUserTemplates(folder / "templates")};
    QMainWindow window;
    InspectorPane* pane = nullptr;
};
