#pragma once

#include "forms/value/ShownValue.h"

#include <QtWidgets/QDialog>

namespace KOVAVSFDataGridLib {

class ValuePane;

// A window that shows one complete value. It is not modal.
class ValueDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ValueDialog(QWidget *parent);

    void show(const ShownValue &value);
    // Shows another value instead of the current one; the keyboard focus does not move.
    void replace(const ShownValue &value);
    using QDialog::show;

    // See ValuePane::saveTo.
    bool saveTo(const QString &file, QString &failure) const;

private:
    ValuePane *m_pane;
};

} // namespace KOVAVSFDataGridLib
