#include "control/parts/lines/SummaryLine.h"

#include "control/parts/GridTexts.h"
#include "language/Language.h"

#include <QtCore/QEvent>
#include <QtGui/QClipboard>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextDocument>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <cmath>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString moreLink = u"more"_s;

QString linkTo(const QString &target, const QString &text, const QColor &colour)
{
    return u"<a href=\"%1\" style=\"color:%2;text-decoration:none\"><b>%3</b></a>"_s.arg(
        target, colour.name(), text.toHtmlEscaped());
}

} // namespace

SummaryLine::SummaryLine(QWidget *parent) : QLabel(parent)
{
    setObjectName(u"lblSummary"_s);
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    Language::keepTranslated(*this, [this] { fit(); });
    connect(this, &QLabel::linkActivated, this, &SummaryLine::follow);
    hide();
}

QSize SummaryLine::sizeHint() const
{
    return {widthFor(m_items.size()), QLabel::sizeHint().height()};
}

QSize SummaryLine::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

int SummaryLine::widthFor(qsizetype values) const
{
    QTextDocument document;
    document.setDefaultFont(font());
    document.setDocumentMargin(0);
    document.setHtml(html(std::min(values, m_items.size())));
    constexpr int rounding = 2;
    return static_cast<int>(std::ceil(document.idealWidth())) + rounding;
}

void SummaryLine::show(const QList<Item> &items)
{
    m_items = items;
    QStringList spoken;
    for (const Item &item : items)
        spoken.append(item.caption + u' ' + item.text());
    setAccessibleName(spoken.join(GridTexts::BetweenSummaries));
    fit();
    setVisible(!items.isEmpty());
}

void SummaryLine::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void SummaryLine::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        fit();
}

void SummaryLine::fit()
{
    qsizetype values = m_items.size();
    while (values > 0 && widthFor(values) > width())
        --values;
    setText(html(values));
    QStringList lines;
    for (qsizetype i = values; i < m_items.size(); ++i)
        lines.append(m_items.at(i).caption + u' ' + m_items.at(i).text());
    lines.append(GridTexts::SummaryHint);
    setToolTip(lines.join(u'\n'));
}

QString SummaryLine::html(qsizetype values) const
{
    const QColor colour = palette().color(QPalette::WindowText);
    QStringList shown;
    for (qsizetype i = 0; i < values; ++i)
        shown.append(m_items.at(i).caption.toHtmlEscaped() + u"&nbsp;"_s +
                     linkTo(QString::number(i), m_items.at(i).text(), colour));
    if (values < m_items.size())
        shown.append(linkTo(moreLink, u"…"_s, colour));
    return u"<span style=\"white-space:nowrap\">"_s + shown.join(u"&nbsp;&nbsp;"_s) + u"</span>"_s;
}

void SummaryLine::follow(const QString &link)
{
    if (link == moreLink)
        openMenu();
    else
        copy(m_items.value(link.toInt()).value);
}

void SummaryLine::openMenu()
{
    auto *menu = new QMenu(this);
    menu->setObjectName(u"SummaryMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Item &item : std::as_const(m_items)) {
        QString text = item.caption + u'\t' + item.text();
        const QAction *const action = menu->addAction(text.replace(u'&', "&&"_L1));
        connect(action, &QAction::triggered, this, [this, value = item.value] { copy(value); });
    }
    menu->popup(mapToGlobal(QPoint(0, -menu->sizeHint().height())));
    menu->setActiveAction(menu->actions().value(0));
}

void SummaryLine::copy(const QString &value)
{
    QGuiApplication::clipboard()->setText(value);
    QToolTip::showText(QCursor::pos(), GridTexts::SummaryCopied.arg(value), this);
}

} // namespace KOVAVSFDataGridLib
