#include "forms/ExportDialog.h"

#include "forms/Contrast.h"
#include "forms/FileDialog.h"
#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/widgets/Named.h"
#include "forms/widgets/TextWidth.h"
#include "forms/widgets/TickBoxes.h"
#include "language/GroupedNumber.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString captionOf(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Csv:
        return FormTexts::FormatCsv;
    case ExportFormat::Xlsx:
        return FormTexts::FormatXlsx;
    case ExportFormat::JsonLines:
        return FormTexts::FormatJsonLines;
    case ExportFormat::Html:
        return FormTexts::FormatHtml;
    }
    Q_UNREACHABLE();
}

QGroupBox *groupOf(const QString &title, QRadioButton *first, QRadioButton *second)
{
    auto *group = new QGroupBox(title);
    auto *rows = new QVBoxLayout(group);
    rows->addWidget(first);
    rows->addWidget(second);
    return group;
}

} // namespace

ExportDialog::ExportDialog(const Choices &choices, QWidget *parent)
    : QDialog(parent),
      m_file(named(new QLineEdit, u"txtFile"_s)),
      m_format(named(new QComboBox, u"cmbFormat"_s)),
      m_encoding(named(new QComboBox, u"cmbEncoding"_s)),
      m_allRecords(named(new RadioButton(FormTexts::ExportAllRecords.arg(grouped(choices.records))),
                         u"optAllRecords"_s)),
      m_markedRecords(
          named(new RadioButton(FormTexts::ExportMarkedRecords.arg(grouped(choices.markedRecords))),
                u"optMarkedRecords"_s)),
      m_shownColumns(named(new RadioButton(FormTexts::ExportShownColumns.arg(choices.shownColumns)),
                           u"optShownColumns"_s)),
      m_allColumns(
          named(new RadioButton(FormTexts::ExportAllColumns.arg(choices.allColumns)), u"optAllColumns"_s)),
      m_headings(named(new CheckBox(FormTexts::ExportHeadings), u"chkHeadings"_s)),
      m_guard(named(new CheckBox(FormTexts::ExportGuard), u"chkGuard"_s))
{
    makeHintsReadable(*this);
    setObjectName(u"ExportDialog"_s);
    setWindowTitle(FormTexts::ExportTitle);
    addFormats();
    addEncodings();
    m_file->setMinimumWidth(widthOfDigits(*this, 50));
    m_headings->setChecked(true);
    m_guard->setChecked(true);
    m_guard->setToolTip(FormTexts::ExportGuardHint);
    m_markedRecords->setEnabled(choices.markedRecords > 0);
    // A user who marks several records usually wants to export these.
    (choices.markedRecords > 1 ? m_markedRecords : m_allRecords)->setChecked(true);
    m_shownColumns->setChecked(true);
    layOut(choices);
    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportDialog::followFormat);
    enableParts();
    m_file->setFocus();
}

void ExportDialog::addFormats()
{
    for (const ExportFormat format : availableFormats())
        m_format->addItem(captionOf(format), static_cast<int>(format));
}

void ExportDialog::addEncodings()
{
    const auto add = [this](const QString &caption, TextEncoding encoding) {
        if (Encoder::isAvailable(encoding))
            m_encoding->addItem(caption, static_cast<int>(encoding));
    };
    add(FormTexts::EncodingUtf8WithMark, TextEncoding::Utf8WithMark);
    add(FormTexts::EncodingUtf8, TextEncoding::Utf8);
    add(FormTexts::EncodingGb18030, TextEncoding::Gb18030);
}

void ExportDialog::layOut(const Choices &choices)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    m_file->setText(QDir::toNativeSeparators(folder.filePath(choices.name + fileEnding(format()))));
    auto *browseButton = named(new QPushButton(FormTexts::Browse), u"cmdBrowse"_s);
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &ExportDialog::browse);
    auto *buttons = new QDialogButtonBox;
    auto *ok = named(buttons->addButton(FormTexts::ExportButton, QDialogButtonBox::AcceptRole), u"cmdOK"_s);
    auto *cancel = named(buttons->addButton(FormTexts::Cancel, QDialogButtonBox::RejectRole), u"cmdCancel"_s);
    cancel->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browseButton);
    auto *groups = new QHBoxLayout;
    groups->addWidget(groupOf(FormTexts::ExportRecordsGroup, m_allRecords, m_markedRecords));
    groups->addWidget(groupOf(FormTexts::ExportColumnsGroup, m_shownColumns, m_allColumns));
    auto *rows = new QFormLayout(this);
    rows->addRow(FormTexts::ExportFileLabel, fileRow);
    qobject_cast<QLabel *>(rows->labelForField(fileRow))->setBuddy(m_file);
    rows->addRow(FormTexts::ExportFormatLabel, m_format);
    rows->addRow(FormTexts::ExportEncodingLabel, m_encoding);
    rows->addRow(groups);
    rows->addRow(m_headings);
    rows->addRow(m_guard);
    rows->addRow(buttons);
    ok->setDefault(true); // possible only now that the dialog owns it
}

ExportFormat ExportDialog::format() const
{
    return static_cast<ExportFormat>(m_format->currentData().toInt());
}

// Changes the file's ending to that of the format.
void ExportDialog::followFormat()
{
    QString file = m_file->text();
    if (const std::optional<ExportFormat> before = formatOfFile(file))
        file.truncate(file.lastIndexOf(u'.'));
    if (!file.isEmpty())
        m_file->setText(file + fileEnding(format()));
    enableParts();
}

void ExportDialog::enableParts()
{
    m_encoding->setEnabled(format() == ExportFormat::Csv);
    m_guard->setEnabled(format() == ExportFormat::Csv);
    m_headings->setEnabled(format() != ExportFormat::JsonLines);
}

void ExportDialog::browse()
{
    QStringList filters;
    for (const ExportFormat one : availableFormats())
        filters.append(captionOf(one) + u" (*"_s + fileEnding(one) + u')');
    QString filter = filters.at(m_format->currentIndex());
    const QPointer<ExportDialog> alive(this);
    const QString chosen =
        FileDialog::askToSave(this, FormTexts::ExportTitle, file(), filters.join(";;"_L1), &filter);
    if (!alive || chosen.isEmpty())
        return;
    const std::optional<ExportFormat> byEnding = formatOfFile(chosen);
    m_file->setText(QDir::toNativeSeparators(chosen));
    m_format->setCurrentIndex(byEnding ? m_format->findData(static_cast<int>(*byEnding))
                                       : static_cast<int>(filters.indexOf(filter)));
    if (byEnding)
        m_agreed = file(); // the dialog has asked
}

QString ExportDialog::file() const
{
    QString typed = QDir::fromNativeSeparators(m_file->text().trimmed());
    if (typed.isEmpty() || formatOfFile(typed) == format())
        return typed;
    return typed + fileEnding(format());
}

ExportOptions ExportDialog::options() const
{
    return {format(), static_cast<TextEncoding>(m_encoding->currentData().toInt()), m_headings->isChecked(),
            m_guard->isChecked()};
}

bool ExportDialog::isMarkedOnly() const
{
    return m_markedRecords->isChecked();
}

bool ExportDialog::hasAllColumns() const
{
    return m_allColumns->isChecked();
}

void ExportDialog::accept()
{
    if (m_file->text().trimmed().isEmpty()) {
        const QPointer<ExportDialog> alive(this);
        Messages::show(this, FormTexts::ExportNoFile);
        if (alive)
            m_file->setFocus();
        return;
    }
    const QPointer<ExportDialog> alive(this);
    const QFileInfo info(file());
    if (info.exists() && file() != m_agreed &&
        !Messages::ask(this, FormTexts::ExportReplace.arg(info.fileName()), FormTexts::ExportTitle,
                       QMessageBox::Question, QMessageBox::No))
        return;
    if (alive)
        QDialog::accept();
}

} // namespace KOVAVSFDataGridLib
