#include "ui/window/WindowPresenter.h"

#include "ui/support/DroppedPaths.h"
#include "ui/support/UIText.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr QSize kFileDialog(640, 420);
constexpr double kShareOfScreen = 0.9;

std::vector<std::filesystem::path> pathsFrom(const QStringList& names) {
    std::vector<std::filesystem::path> result;
    for (const QString& name : names)
        result.emplace_back(QFile::encodeName(name).toStdString());
    return result;
}

/// "Files (*.jpg *.JPG …)"; letter case is significant in the filters of some dialogs.
QString filterOf(const QString& title, const std::vector<std::string>& extensions) {
    QStringList patterns;
    for (const std::string& extension : extensions) {
        const QString text = QString::fromStdString(extension);
        patterns << "*." + text << "*." + text.toUpper();
    }
    patterns.removeDuplicates();
    return title + " (" + patterns.join(' ') + ");;" + uiText("All files") + " (*)";
}

void openFolderOf(const std::filesystem::path& file) {
    QDesktopServices::openUrl(QUrl(addressesOf({file.parent_path()}).first()));
}

/// The view belongs to whoever lent it: it must not end with the dialog.
void giveBack(KTViewHandle lent) {
    if (auto* const view = static_cast<QWidget*>(lent))
        view->setParent(nullptr);
}

void prepare(QFileDialog& dialog, const KTFilePanel& panel) {
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    if (!panel.directory.empty())
        dialog.setDirectory(QFile::decodeName(panel.directory.c_str()));
    switch (panel.kind) {
    case KTFilePanel::Kind::OpenFiles:
        dialog.setFileMode(QFileDialog::ExistingFiles);
        dialog.setWindowTitle(uiText("Choose files"));
        break;
    case KTFilePanel::Kind::ChooseFolder:
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        dialog.setWindowTitle(uiText("Choose a folder"));
        break;
    case KTFilePanel::Kind::SaveFile:
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setWindowTitle(uiText("Save as"));
        dialog.selectFile(QString::fromStdString(panel.proposedName));
        break;
    }
    if (!panel.title.empty())
        dialog.setWindowTitle(QString::fromStdString(panel.title));
    if (!panel.allowedFileTypes.empty())
        dialog.setNameFilter(filterOf(panel.kind == KTFilePanel::Kind::SaveFile
                                          ? uiText("Files of this kind")
                                          : uiText("Files that can be opened"),
                                      panel.allowedFileTypes));
    if (!panel.buttonText.empty())
        dialog.setLabelText(QFileDialog::Accept, QString::fromStdString(panel.buttonText));
    if (auto* const accessory = static_cast<QWidget*>(panel.accessoryView)) {
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.layout()->addWidget(accessory);
        // As much room for the list of folders as without it, where the screen has that.
        const QSize size =
            dialog.sizeHint().expandedTo(kFileDialog) + QSize(0, accessory->sizeHint().height());
        dialog.resize(size.boundedTo(dialog.screen()->availableSize() * kShareOfScreen));
    }
}

} // namespace

WindowPresenter::WindowPresenter(QWidget* shownOn) : window(shownOn) {}

void WindowPresenter::presentAlert(KTAlert alert) {
    auto* const box = new QMessageBox(QMessageBox::Question, uiText("Waymark"),
                                      QString::fromStdString(alert.message), QMessageBox::NoButton, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->setInformativeText(QString::fromStdString(alert.informativeText));
    std::vector<QAbstractButton*> buttons;
    for (std::size_t i = 0; i < alert.buttons.size(); ++i)
        buttons.push_back(box->addButton(uiTitle(alert.buttons[i]), i == 0 ? QMessageBox::AcceptRole
                                                                    : i == alert.buttons.size() - 1
                                                                        ? QMessageBox::RejectRole
                                                                        : QMessageBox::ActionRole));
    if (!buttons.empty()) {
        box->setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
        box->setEscapeButton(buttons.back());
    }
    QObject::connect(box, &QDialog::finished, box, [box, buttons, completion = std::move(alert.completion)] {
        const auto clicked = std::ranges::find(buttons, box->clickedButton());
        const auto last = buttons.empty() ? std::size_t(0) : buttons.size() - 1;
        if (completion)
            completion(clicked == buttons.end() ? last : std::size_t(clicked - buttons.begin()));
    });
    box->open();
}

void WindowPresenter::presentFilePanel(KTFilePanel panel) {
    auto* const dialog = new QFileDialog(window);
    prepare(*dialog, panel);
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, panel = std::move(panel)](int result) {
        giveBack(panel.accessoryView);
        const auto& completion = panel.completion;
        if (completion)
            completion(result == QDialog::Accepted ? pathsFrom(dialog->selectedFiles())
                                                   : std::vector<std::filesystem::path>());
    });
    dialog->open();
}

void WindowPresenter::presentSettingsSheet(KTSettingsSheet sheet) {
    auto* const dialog = new QDialog(window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QString::fromStdString(sheet.buttonText));
    auto* const layout = new QVBoxLayout(dialog);
    if (auto* const view = static_cast<QWidget*>(sheet.settingsView))
        layout->addWidget(view);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(QString::fromStdString(sheet.buttonText), QDialogButtonBox::AcceptRole);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::finished, dialog, [sheet = std::move(sheet)](int result) {
        giveBack(sheet.settingsView);
        if (sheet.completion)
            sheet.completion(result == QDialog::Accepted);
    });
    dialog->open();
}

void WindowPresenter::revealFiles(const std::vector<std::filesystem::path>& files) {
    if (files.empty())
        return;
    QDBusMessage call =
        QDBusMessage::createMethodCall("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                                       "org.freedesktop.FileManager1", "ShowItems");
    call << addressesOf(files) << QString();
    auto* const answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), window);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, last = files.back()] {
        if (answer->isError())
            openFolderOf(last);
        answer->deleteLater();
    });
}
