#pragma once
#include "FolderExportSettings.h"

#include <QCoreApplication>
#include <QWidget>

class KTPhotoExportManager;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

/// The settings below the question for a folder, with the name that the first photo would get.
class FolderSettingsView final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(FolderSettingsView)

public:
    FolderSettingsView(const FolderExportSettings& shown, const KTPhotoExportManager& exportManager);

    FolderExportSettings settings() const;
    QWidget* firstField() const;
    QWidget* lastField() const;

private:
    void showSettings(const FolderExportSettings& shown);
    void showConsequences();

    const KTPhotoExportManager& manager;
    QLineEdit* name;
    QComboBox *subFolders, *type;
    QCheckBox *fits, *excludesLocation;
    QSpinBox *largestWidth, *largestHeight, *quality;
    QLabel* example;
};
