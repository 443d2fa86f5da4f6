#include "window/HelpWindow.h"

#include "HostTexts.h"

#include <QtCore/QFile>
#include <QtGui/QTextDocument>
#include <QtGui/QTextTable>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Qt draws a frame around each cell; a line below each row is enough.
void makeTablesCalm(QTextDocument &document, const QPalette &palette)
{
    constexpr qreal padding = 4;
    QTextTableCellFormat underlined;
    underlined.setBottomBorder(1);
    underlined.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    underlined.setBottomBorderBrush(palette.color(QPalette::Mid));
    underlined.setPadding(padding);
    for (QTextFrame *const frame : document.rootFrame()->childFrames()) {
        auto *const table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorder(0);
        format.setBorderCollapse(true);
        format.setCellSpacing(0);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        table->setFormat(format);
        for (int row = 0; row < table->rows(); ++row) {
            for (int column = 0; column < table->columns(); ++column) {
                QTextTableCell cell = table->cellAt(row, column);
                QTextCharFormat cellFormat = cell.format();
                cellFormat.merge(underlined);
                cell.setFormat(cellFormat);
            }
        }
    }
}

} // namespace

void showShortcuts(QWidget *parent)
{
    auto *window = new QDialog(parent);
    window->setObjectName(u"shortcuts"_s);
    window->setWindowTitle(HostTexts::Shortcuts());
    window->setAttribute(Qt::WA_DeleteOnClose);
    auto *text = new QTextBrowser;
    text->setAccessibleName(HostTexts::Shortcuts());
    const QString language = HostTexts::Language() == u"en" ? QString() : u".zh-CN"_s;
    text->setMarkdown(textOf(u":/kovagrid-shortcuts%1.md"_s.arg(language)) + u'\n' +
                      textOf(u":/shortcuts%1.md"_s.arg(language)));
    makeTablesCalm(*text->document(), text->palette());
    auto *rows = new QVBoxLayout(window);
    rows->addWidget(text);
    window->resize(620, 520);
    window->show();
}
