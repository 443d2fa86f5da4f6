#pragma once

#include "ado/values/DisplayFormat.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QLabel;
class QRadioButton;
class QSpinBox;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// Asks how the texts of a column are shown. Formats are what ADODB::DisplayFormat writes; `decimals` are
// those with which the sample is shown at least while no others are chosen.
class FormatDialog final : public QDialog
{
    Q_OBJECT

public:
    FormatDialog(const QString &column, bool isBoolean, const QString &format, const QString &sample,
                 int decimals, QWidget *parent);

    QString format() const;

private:
    void addTruths(QVBoxLayout &rows, ADODB::DisplayFormat::Truth given);
    void addNumbers(QVBoxLayout &rows, const ADODB::DisplayFormat &given);
    void showSample();

    const QString m_text;
    const int m_leastDecimals;
    QCheckBox *m_thousands = nullptr;
    QSpinBox *m_decimals = nullptr;
    QRadioButton *m_yesNo = nullptr; // this and the next only for a Boolean
    QRadioButton *m_box = nullptr;
    QLabel *m_sample;
};

} // namespace KOVAVSFDataGridLib
