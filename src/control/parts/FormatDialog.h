#pragma once

#include "ado/values/DisplayFormat.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QLabel;
class QRadioButton;
class QSpinBox;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// Asks how to show the texts of a column. Formats are those of ADODB::DisplayFormat.
class FormatDialog final : public QDialog
{
    Q_OBJECT

public:
    FormatDialog(const QString &column, bool isBoolean, const QString &format, const QString &sample,
                 QWidget *parent);

    QString format() const;

private:
    void addTruths(QVBoxLayout &rows, ADODB::DisplayFormat::Truth given);
    void addNumbers(QVBoxLayout &rows, const ADODB::DisplayFormat &given);
    void showSample();

    const QString m_text;
    QCheckBox *m_thousands = nullptr;
    QSpinBox *m_decimals = nullptr;
    QRadioButton *m_yesNo = nullptr; // this and the next only for a Boolean
    QRadioButton *m_box = nullptr;
    QLabel *m_sample;
};

} // namespace KOVAVSFDataGridLib
