#include "filter/kept/KeptLine.h"

#include "filter/FilterTexts.h"

#include <QtCore/QEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

KeptLine::KeptLine(const QString &condition, const QString &words, QWidget *parent)
    : CheckBox(parent), m_condition(condition), m_words(words)
{
    constexpr qsizetype mostInTip = 1000; // characters
    setChecked(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(FilterTexts::KeepCondition.arg(words));
    setAccessibleDescription(FilterTexts::KeepConditionTip);
    QString tip = words.left(mostInTip) + u'\n' + condition.left(mostInTip);
    tip += u'\n' + FilterTexts::KeepConditionTip();
    tip.replace("  "_L1, u" \u00a0"_s); // as they are
    setToolTip(Qt::convertFromPlainText(tip, Qt::WhiteSpaceNormal));
    write();
}

void KeptLine::showSql(bool isSql)
{
    m_isSql = isSql;
    write();
}

QSize KeptLine::minimumSizeHint() const
{
    return {fontMetrics().height() * 4, CheckBox::minimumSizeHint().height()};
}

void KeptLine::resizeEvent(QResizeEvent *event)
{
    CheckBox::resizeEvent(event);
    write();
}

void KeptLine::changeEvent(QEvent *event)
{
    CheckBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        write();
}

void KeptLine::write()
{
    const int room = width() - style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) -
                     style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
    QString whole = FilterTexts::KeepCondition.arg(m_isSql ? m_condition : m_words);
    std::ranges::replace_if(
        whole, [](QChar c) { return c == u'\n' || c == u'\r' || c == u'\t'; }, u' ');
    QString text = fontMetrics().elidedText(whole, Qt::ElideRight, room);
    setText(text.replace(u'&', QLatin1String("&&"))); // no mnemonic
}

} // namespace KOVAVSFDataGridLib
