#pragma once
#include "platform/observing/KTObservable.h"

#include <QWidget>
#include <functional>

class CatalogueModel;
class GroupTreeModel;
class KTMetadataEditorViewController;
class KTMetadataGroup;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

/// Where the inspector is customised: above its groups and fields, which are renamed, moved, removed and
/// dragged; below all groups and fields of the catalogue, from which they are added.
class ArrangementView : public QWidget {
    Q_OBJECT
public:
    /// @p controller must outlive the view; @p done ends the mode.
    ArrangementView(KTMetadataEditorViewController& controller, const std::function<void()>& done);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeGroups();
    QWidget* makeCatalogue();
    void addGroup();
    void add();
    void addChosenGroup(const KTMetadataGroup& group);
    void remove();
    void move(bool isUp);
    void enableButtons();
    QPushButton* makeButton(const QString& text, const QString& tip, void (ArrangementView::*command)());

    KTMetadataEditorViewController& editor;
    GroupTreeModel* groups;
    CatalogueModel* catalogue;
    QSortFilterProxyModel* narrowed;
    QTreeView *groupTree, *catalogueTree;
    QPushButton *addButton = nullptr, *removeButton = nullptr;
};
