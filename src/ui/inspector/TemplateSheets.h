#pragma once
#include "platform/observing/KTObservable.h"

#include <QObject>
#include <QPointer>

class KTMetadataCustomizationViewController;
class QDialog;
class QWidget;

/// The two sheets of the templates: one names a new template, the other removes old ones. Each is on the
/// screen as long as the controller says so.
class TemplateSheets : public QObject {
    Q_OBJECT
public:
    /// @p customization must outlive the object. The sheets hang on the window of @p owner.
    TemplateSheets(KTMetadataCustomizationViewController& customization, QWidget& owner);

private:
    void update();
    QDialog* makeNewTemplateSheet();
    QDialog* makeTemplatesSheet();

    KTMetadataCustomizationViewController& controller;
    QWidget& pane;
    QPointer<QDialog> newTemplateSheet, templatesSheet;
    KTObservable::Observation observation;
};
