#pragma once

#include "forms/value/ShownValue.h"

#include <QtWidgets/QDialog>

namespace KOVAVSFDataGridLib {

class ValuePane;

// A window that shows one value whole. It is not modal.
class ValueDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ValueDialog(QWidget *parent);

    void show(const ShownValue &value);
    // Shows another value in place of the one that is shown; the keyboard stays where it is.
    void replace(const ShownValue &value);
    using QDialog::show;

    // As ValuePane does.
    bool saveTo(const QString &file, QString &failure) const;

private:
    ValuePane *m_pane;
};

} // namespace KOVAVSFDataGridLib
