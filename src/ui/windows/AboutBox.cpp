#include "ui/windows/AboutBox.h"

#include "platform/desktop/KTAboutText.h"
#include "ui/support/UIText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(uiText("About Waymark"));
    resize(560, 460);
    auto* const title = new QLabel(uiText("Waymark %1").arg(WAYMARK_VERSION));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    title->setFont(large);
    auto* const versions = new QLabel(uiText("Qt %1").arg(qVersion()));
    versions->setForegroundRole(QPalette::PlaceholderText);
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
