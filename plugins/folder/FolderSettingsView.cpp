#include "FolderSettingsView.h"

#include "FolderNames.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

constexpr int kUsualSide = 2048, kLargestSide = 32000; // pixels

QSpinBox* spinBox(int least, int most, const QString& name, const QString& suffix) {
    auto* const box = new QSpinBox;
    box->setRange(least, most);
    box->setSuffix(suffix);
    box->setAccessibleName(name);
    box->setToolTip(name);
    return box;
}

} // namespace

FolderSettingsView::FolderSettingsView(const FolderExportSettings& shown,
                                       const KTPhotoExportManager& exportManager)
    : manager(exportManager), name(new QLineEdit), subFolders(new QComboBox), type(new QComboBox),
      fits(new QCheckBox(tr("Fit into"))),
      excludesLocation(new QCheckBox(tr("Leave out where the photos were taken"))),
      largestWidth(spinBox(1, kLargestSide, tr("Largest width"), {})),
      largestHeight(spinBox(1, kLargestSide, tr("Largest height"), {})),
      quality(spinBox(1, 100, tr("Quality of JPEG pictures"), " %")), example(new QLabel) {
    setAccessibleName(tr("Export settings"));
    name->setToolTip(tr("{name}, {number}, {date}, {time} and {title} stand for those of each photo"));
    for (const QString& title :
         {tr("None"), tr("By year"), tr("By year and month"), tr("By year, month and day")})
        subFolders->addItem(title);
    subFolders->setToolTip(tr("Folders by the date on the camera's clock"));
    type->addItem(tr("As they are"), "");
    type->addItem("JPEG", "public.jpeg");
    type->addItem("PNG", "public.png");
    type->addItem("TIFF", "public.tiff");
    type->setToolTip(tr("Other files than JPEG keep their picture without loss"));
    fits->setToolTip(tr("Makes the pictures as large as fits into this size"));
    excludesLocation->setToolTip(tr("Removes positions and place names from the copies"));
    auto* const size = new QHBoxLayout;
    size->addWidget(fits);
    size->addWidget(largestWidth);
    size->addWidget(new QLabel("×"));
    size->addWidget(largestHeight);
    size->addWidget(new QLabel(tr("pixels")));
    size->addStretch();

    auto* const form = new QFormLayout(this);
    form->addRow(tr("&Name:"), name);
    form->addRow(QString(), example);
    form->addRow(tr("&Folders:"), subFolders);
    form->addRow(tr("Size:"), size);
    form->addRow(tr("&Type:"), type);
    form->addRow(tr("&Quality:"), quality);
    form->addRow(QString(), excludesLocation);
    showSettings(shown);
    connect(name, &QLineEdit::textChanged, this, [this] { showConsequences(); });
    connect(subFolders, &QComboBox::currentIndexChanged, this, [this] { showConsequences(); });
    connect(type, &QComboBox::currentIndexChanged, this, [this] { showConsequences(); });
    connect(fits, &QCheckBox::toggled, this, [this] { showConsequences(); });
    showConsequences();
}

QWidget* FolderSettingsView::firstField() const {
    return name;
}

QWidget* FolderSettingsView::lastField() const {
    return excludesLocation;
}

void FolderSettingsView::showSettings(const FolderExportSettings& shown) {
    name->setText(QString::fromStdString(shown.namePattern));
    subFolders->setCurrentIndex(shown.subFolders);
    fits->setChecked(shown.largestSize.has_value());
    largestWidth->setValue(shown.largestSize ? int(shown.largestSize->width) : kUsualSide);
    largestHeight->setValue(shown.largestSize ? int(shown.largestSize->height) : kUsualSide);
    type->setCurrentIndex(std::max(0, type->findData(QString::fromStdString(shown.imageType))));
    quality->setValue(qRound(shown.imageQuality * 100));
    excludesLocation->setChecked(shown.excludesLocation);
}

FolderExportSettings FolderSettingsView::settings() const {
    FolderExportSettings result;
    if (const QString pattern = name->text().trimmed(); !pattern.isEmpty())
        result.namePattern = pattern.toStdString();
    result.subFolders = FolderExportSettings::SubFolders(subFolders->currentIndex());
    if (fits->isChecked())
        result.largestSize = KTImageSize{double(largestWidth->value()), double(largestHeight->value())};
    result.imageType = type->currentData().toString().toStdString();
    result.imageQuality = quality->value() / 100.0;
    result.excludesLocation = excludesLocation->isChecked();
    return result;
}

void FolderSettingsView::showConsequences() {
    largestWidth->setEnabled(fits->isChecked());
    largestHeight->setEnabled(fits->isChecked());
    quality->setEnabled(fits->isChecked() || type->currentIndex() == 1);
    const auto destinations = FolderNames(manager, settings(), {}).destinations(false);
    example->setText(destinations.empty()
                         ? QString()
                         : tr("for example %1").arg(QString::fromStdString(destinations.front())));
}
