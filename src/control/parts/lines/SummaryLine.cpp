#include "control/parts/lines/SummaryLine.h"

#include "control/parts/GridTexts.h"
#include "language/Language.h"

#include <QtGui/QClipboard>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

SummaryLine::SummaryLine(QWidget *parent) : QLabel(parent)
{
    setObjectName(u"lblSummary"_s);
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    Language::keepTranslated(*this, [this] { setToolTip(GridTexts::SummaryHint); });
    connect(this, &QLabel::linkActivated, this, &SummaryLine::copy);
    hide();
}

QSize SummaryLine::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void SummaryLine::show(const QList<Item> &items)
{
    m_values.clear();
    QStringList shown;
    QStringList plain;
    const QString colour = palette().color(QPalette::WindowText).name();
    for (const Item &item : items) {
        shown.append(u"%1&nbsp;<a href=\"%2\" style=\"color:%3;text-decoration:none\"><b>%4</b></a>"_s.arg(
            item.caption.toHtmlEscaped(), QString::number(m_values.size()), colour,
            item.value.toHtmlEscaped()));
        plain.append(item.caption + u' ' + item.value);
        m_values.append(item.value);
    }
    setText(shown.join(u"&nbsp;&nbsp;"_s));
    setAccessibleName(plain.join(GridTexts::BetweenSummaries));
    setVisible(!items.isEmpty());
}

void SummaryLine::copy(const QString &link)
{
    const QString value = m_values.value(link.toInt());
    QGuiApplication::clipboard()->setText(value);
    QToolTip::showText(QCursor::pos(), GridTexts::SummaryCopied.arg(value), this);
}

} // namespace KOVAVSFDataGridLib
