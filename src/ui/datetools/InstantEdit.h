#pragma once
#include "platform/common/KTTimeZone.h"

#include <QDateTimeEdit>

/// A field for an instant as the clocks of a time zone show it, to the second: typed in ISO order or picked
/// from a calendar.
class InstantEdit : public QDateTimeEdit {
    Q_OBJECT
public:
    explicit InstantEdit(QWidget* parent = nullptr);

    /// Shows a dash, which cannot be edited, for nothing.
    void setInstant(std::optional<KTInstant> instant, const KTTimeZone& clockZone);

    QSize sizeHint() const override;

signals:
    void instantEdited(KTInstant instant);

private:
    KTTimeZone zone;
};
