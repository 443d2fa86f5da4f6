#pragma once

#include "export/ExportFormat.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

namespace KOVAVSFDataGridLib {

// Asks what to export and to which file. Does not write anything.
class ExportDialog final : public QDialog
{
    Q_OBJECT

public:
    struct Choices
    {
        QString name; // of the file, without folder and ending
        qint64 records = 0;
        qint64 markedRecords = 0;
        int shownColumns = 0;
        int allColumns = 0;
    };

    explicit ExportDialog(const Choices &choices, QWidget *parent = nullptr);

    // The user's choices, if the dialog was accepted. The file has the format's ending.
    QString file() const;
    ExportOptions options() const;
    bool isMarkedOnly() const;
    bool hasAllColumns() const;

    void accept() override;

private:
    void addFormats();
    void addEncodings();
    void layOut(const Choices &choices);
    void browse();
    void followFormat();
    void enableParts();
    ExportFormat format() const;

    QLineEdit *m_file;
    QComboBox *m_format;
    QComboBox *m_encoding;
    QRadioButton *m_allRecords;
    QRadioButton *m_markedRecords;
    QRadioButton *m_shownColumns;
    QRadioButton *m_allColumns;
    QCheckBox *m_headings;
    QCheckBox *m_guard;
    QString m_agreed; // the file that the user agreed to replace
};

} // namespace KOVAVSFDataGridLib
