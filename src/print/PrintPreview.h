#pragma once

#include "print/PageWriter.h"

#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QDialog>

#include <functional>
#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPrintPreviewWidget;
class QPushButton;
class QToolButton;

namespace KOVAVSFDataGridLib {

// Shows the first pages, and asks what to print and whether to a printer or to a PDF file. Does not print.
class PrintPreview final : public QDialog
{
    Q_OBJECT

public:
    static constexpr int mostPages = 20; // the number of pages shown

    struct Choices
    {
        QString title;
        QString file; // the suggested name of a PDF file, without folder and ending
        qint64 records = 0;
        qint64 markedRecords = 0;
        ExportColumns columns;
        std::vector<ADODB::DisplayFormat> formats; // one per column
        // Passes records to the writer until `shouldContinue` returns false. Throws ADODB::Error.
        std::function<void(RecordWriter &, bool isMarkedOnly, const std::function<bool()> &shouldContinue)>
            write;
    };

    explicit PrintPreview(Choices choices, QWidget *parent = nullptr);

    // For an accepted dialog: a writer for the chosen destination. begin() may wait for a printer.
    std::unique_ptr<RecordWriter> newWriter() const;
    bool isMarkedOnly() const;

private:
    void layOut();
    QWidget *makeChoices();
    QWidget *makeButtons();
    PageOptions options() const;
    void drawPages(QPrinter &printer);
    void updatePages();
    void showPage(int page);
    void print();
    void savePdf();

    const Choices m_choices;
    std::shared_ptr<QPrinter> m_printer;
    QPrintPreviewWidget *m_pages;
    QLineEdit *m_title;
    QComboBox *m_records;
    QComboBox *m_orientation;
    QComboBox *m_zoom;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_place;
    QPushButton *m_print;
    qint64 m_pageCount = 0;
    QString m_file; // of the PDF file; empty for a printer
};

} // namespace KOVAVSFDataGridLib
