#pragma once

#include <QtWidgets/QDialog>

class QCheckBox;
class QLabel;
class QSpinBox;

namespace KOVAVSFDataGridLib {

// Asks how the texts of a column are shown. Formats are what ADODB::DisplayFormat writes.
class FormatDialog final : public QDialog
{
    Q_OBJECT

public:
    FormatDialog(const QString &column, bool isBoolean, const QString &format, const QString &sample,
                 QWidget *parent);

    QString format() const;

private:
    void showSample();

    const QString m_text;
    QCheckBox *m_thousands = nullptr;
    QSpinBox *m_decimals = nullptr;
    QCheckBox *m_yesNo = nullptr;
    QLabel *m_sample;
};

} // namespace KOVAVSFDataGridLib
