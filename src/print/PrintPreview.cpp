#include "print/PrintPreview.h"

#include "ado/Error.h"
#include "forms/Contrast.h"
#include "forms/FileDialog.h"
#include "forms/Messages.h"
#include "forms/widgets/Named.h"
#include "language/GroupedNumber.h"
#include "print/PdfWriter.h"
#include "print/PrintOptions.h"
#include "print/PrintTexts.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewWidget>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Keeps the printer alive while something is written to it.
class PrinterWriter final : public RecordWriter
{
public:
    PrinterWriter(std::shared_ptr<QPrinter> printer, const PageOptions &options)
        : m_printer(std::move(printer)), m_pages(*m_printer, options)
    {
    }

    void begin(const ExportColumns &columns) override { m_pages.begin(columns); }
    void row(const std::vector<ADODB::RawValue> &cells) override { m_pages.row(cells); }
    void end() override { m_pages.end(); }

private:
    std::shared_ptr<QPrinter> m_printer;
    PageWriter m_pages;
};

} // namespace

PrintPreview::PrintPreview(Choices choices, QWidget *parent)
    : QDialog(parent),
      m_choices(std::move(choices)),
      m_printer(std::make_shared<QPrinter>(QPrinter::HighResolution)),
      m_title(named(new QLineEdit(m_choices.title), u"txtTitle"_s)),
      m_records(named(new QComboBox, u"cmbRecords"_s)),
      m_orientation(named(new QComboBox, u"cmbOrientation"_s)),
      m_zoom(named(new QComboBox, u"cmbZoom"_s)),
      m_previous(named(new QToolButton, u"cmdPrevious"_s)),
      m_next(named(new QToolButton, u"cmdNext"_s)),
      m_place(named(new QLabel, u"lblPlace"_s))
{
    makeHintsReadable(*this);
    setObjectName(u"PrintPreview"_s);
    setWindowTitle(PrintTexts::Title);
    m_printer->setPageLayout(PrintOptions().layoutFor(m_choices.columns));
    m_pages = named(new QPrintPreviewWidget(m_printer.get(), this), u"pages"_s);
    if (auto *const view = m_pages->findChild<QAbstractScrollArea *>())
        view->setAccessibleName(PrintTexts::Title); // it receives the keys for paging
    layOut();
    m_print->setFocus();
    connect(m_pages, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter *on) { drawPages(*on); });
    connect(m_pages, &QPrintPreviewWidget::previewChanged, this,
            [this] { showPage(m_pages->currentPage()); });
    resize(760, 560);
}

void PrintPreview::layOut()
{
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(makeChoices());
    rows->addWidget(m_pages, 1);
    rows->addWidget(makeButtons());
}

QWidget *PrintPreview::makeChoices()
{
    m_records->addItem(PrintTexts::AllRecords.arg(grouped(m_choices.records)), false);
    if (m_choices.markedRecords > 0)
        m_records->addItem(PrintTexts::MarkedRecords.arg(grouped(m_choices.markedRecords)), true);
    // A user who marks several records usually wants to print these.
    m_records->setCurrentIndex(m_choices.markedRecords > 1 ? 1 : 0);
    m_orientation->addItem(PrintTexts::Portrait, QPageLayout::Portrait);
    m_orientation->addItem(PrintTexts::Landscape, QPageLayout::Landscape);
    m_orientation->setCurrentIndex(m_orientation->findData(m_printer->pageLayout().orientation()));
    m_zoom->addItem(PrintTexts::WholePage);
    m_zoom->addItem(PrintTexts::PageWidth);
    for (const int percent : {50, 100, 150, 200})
        m_zoom->addItem(QString::number(percent) + u'%', percent);
    connect(m_title, &QLineEdit::editingFinished, this, &PrintPreview::updatePages);
    connect(m_records, &QComboBox::activated, this, &PrintPreview::updatePages);
    connect(m_orientation, &QComboBox::activated, this, [this] {
        m_pages->setOrientation(static_cast<QPageLayout::Orientation>(m_orientation->currentData().toInt()));
    });
    connect(m_zoom, &QComboBox::activated, this, [this](int index) {
        if (index == 0)
            m_pages->fitInView();
        else if (index == 1)
            m_pages->fitToWidth();
        else
            m_pages->setZoomFactor(m_zoom->currentData().toInt() / 100.0);
    });

    auto *choices = new QWidget;
    auto *row = new QHBoxLayout(choices);
    row->setContentsMargins({});
    const auto add = [row](const QString &caption, QWidget *field, int stretch) {
        auto *label = new QLabel(caption);
        label->setBuddy(field);
        row->addWidget(label);
        row->addWidget(field, stretch);
    };
    add(PrintTexts::TitleLabel, m_title, 1);
    add(PrintTexts::RecordsLabel, m_records, 0);
    add(PrintTexts::OrientationLabel, m_orientation, 0);
    add(PrintTexts::ZoomLabel, m_zoom, 0);
    return choices;
}

QWidget *PrintPreview::makeButtons()
{
    m_previous->setText(PrintTexts::PreviousPage);
    m_next->setText(PrintTexts::NextPage);
    connect(m_previous, &QToolButton::clicked, this, [this] { showPage(m_pages->currentPage() - 1); });
    connect(m_next, &QToolButton::clicked, this, [this] { showPage(m_pages->currentPage() + 1); });
    m_print = named(new QPushButton(PrintTexts::Print), u"cmdPrint"_s);
    auto *pdfButton = named(new QPushButton(PrintTexts::SavePdf), u"cmdPdf"_s);
    auto *closeButton = named(new QPushButton(PrintTexts::Close), u"cmdCancel"_s);
    for (QPushButton *button : {m_print, pdfButton, closeButton})
        button->setAutoDefault(false); // Enter ends the editing of the title
    connect(m_print, &QPushButton::clicked, this, &PrintPreview::print);
    connect(pdfButton, &QPushButton::clicked, this, &PrintPreview::savePdf);
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QWidget;
    auto *row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    row->addWidget(m_previous);
    row->addWidget(m_next);
    row->addWidget(m_place, 1);
    row->addWidget(m_print);
    row->addWidget(pdfButton);
    row->addWidget(closeButton);
    return buttons;
}

bool PrintPreview::isMarkedOnly() const
{
    return m_records->currentData().toBool();
}

PageOptions PrintPreview::options() const
{
    PageOptions options;
    options.title = m_title->text();
    options.records = isMarkedOnly() ? m_choices.markedRecords : m_choices.records;
    options.formats = m_choices.formats;
    return options;
}

// An error here occurs again when printing, and is shown then.
void PrintPreview::drawPages(QPrinter &printer)
{
    PageOptions shown = options();
    shown.mostPages = mostPages;
    PageWriter writer(printer, shown);
    try {
        m_choices.write(writer, isMarkedOnly(), [&writer] { return !writer.isFull(); });
        m_pageCount = writer.pageCount();
    } catch (const ADODB::Error &) {
        m_pageCount = 0;
    }
}

void PrintPreview::updatePages()
{
    m_pages->updatePreview();
}

void PrintPreview::showPage(int page)
{
    const int shown = m_pages->pageCount();
    page = std::clamp(page, std::min(1, shown), shown);
    if (page != m_pages->currentPage())
        m_pages->setCurrentPage(page);
    m_previous->setEnabled(page > 1);
    m_next->setEnabled(page < shown);
    m_place->setText(shown < m_pageCount ? PrintTexts::ShownPageOfFirst.arg(
                                               grouped(page), grouped(m_pageCount), grouped(shown))
                                         : PrintTexts::ShownPage.arg(grouped(page), grouped(shown)));
}

void PrintPreview::print()
{
    const QPointer<PrintPreview> alive(this);
    QPrintDialog dialog(m_printer.get(), this);
    if (dialog.exec() != QDialog::Accepted || !alive)
        return;
    m_file.clear();
    accept();
}

void PrintPreview::savePdf()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QPointer<PrintPreview> alive(this);
    QString file = FileDialog::askToSave(this, PrintTexts::Title, folder.filePath(m_choices.file + u".pdf"_s),
                                         PrintTexts::PdfFiles);
    if (!alive || file.isEmpty())
        return;
    if (!file.endsWith(u".pdf"_s, Qt::CaseInsensitive))
        file += u".pdf"_s;
    m_file = file;
    accept();
}

std::unique_ptr<RecordWriter> PrintPreview::newWriter() const
{
    if (m_file.isEmpty())
        return std::make_unique<PrinterWriter>(m_printer, options());
    return std::make_unique<PdfWriter>(m_file, m_printer->pageLayout(), options());
}

} // namespace KOVAVSFDataGridLib
