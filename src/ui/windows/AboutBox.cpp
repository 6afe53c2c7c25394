#include "ui/windows/AboutBox.h"

#include "metadata/KTExifTool.h"
#include "metadata/KTPerlVersion.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/desktop/KTAboutText.h"
#include "platform/desktop/KTEngineVersions.h"
#include "ui/support/UIText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QVBoxLayout>

namespace {

/// "Qt 6.4.2 · SQLite 3.40.1 · …"
QString textOf(const std::vector<std::pair<std::string, std::string>>& engines) {
    QStringList texts;
    for (const auto& [name, version] : engines)
        texts << QString::fromStdString(name + ' ' + version);
    return texts.join(QStringLiteral(" · "));
}

/// Asking for it may load the interpreter, so it comes a little later than the others.
void addExifTool(QLabel& label) {
    KTRunOnThreadPool([guard = QPointer(&label)] {
        const KTValue known = KTExifTool::sharedExifTool().libraryVersion();
        const std::string version = known.isSomething() ? known.description() : std::string();
        KTPerformOnMainThread([guard, version] {
            if (guard && !version.empty())
                guard->setText(guard->text() + QStringLiteral(" · ") +
                               textOf({{"Image::ExifTool", version}}));
        });
    });
}

} // namespace

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(uiText("About Waymark"));
    resize(560, 460);
    auto* const title = new QLabel(uiText("Waymark %1").arg(WAYMARK_VERSION));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    title->setFont(large);
    auto engines = KTEngineVersions();
    engines.emplace_back("Perl", KTPerlVersion());
    auto* const versions = new QLabel(textOf(engines));
    versions->setWordWrap(true);
    versions->setForegroundRole(QPalette::PlaceholderText);
    versions->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addExifTool(*versions);
    auto* const text = new QPlainTextEdit(QString::fromStdString(KTAboutText("Waymark")));
    text->setAccessibleName(uiText("Licences and sources of data"));
    text->setReadOnly(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(title), static_cast<QWidget*>(versions),
                            static_cast<QWidget*>(text), static_cast<QWidget*>(buttons)})
        layout->addWidget(widget);
}
