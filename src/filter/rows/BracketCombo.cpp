#include "filter/rows/BracketCombo.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterSql.h"

#include <QtCore/QPoint>

namespace KOVAVSFDataGridLib {

BracketCombo::BracketCombo(Side side, const QString &name, QWidget *parent) : QComboBox(parent), m_side(side)
{
    constexpr int usual = 3;
    setAccessibleName(name);
    setToolTip(name);
    for (int brackets = 0; brackets <= usual; ++brackets)
        put(brackets);
    if (side == Side::Before)
        put(1, 1);
    setCurrentIndex(0);
}

void BracketCombo::put(int brackets, int negated)
{
    const QPoint entry(brackets, negated);
    int index = findData(entry);
    if (index < 0) {
        index = count();
        addItem(textOf(brackets, negated), entry);
    }
    setCurrentIndex(index);
}

QString BracketCombo::textOf(int brackets, int negated) const
{
    if (m_side == Side::After)
        return QString(brackets, u')');
    const FilterSql::Term term{{}, brackets, 0, false, negated};
    QString text;
    for (int bracket = 0; bracket < brackets; ++bracket)
        text += term.isNegated(bracket) ? FilterTexts::Not() + u'(' : QString(u'(');
    return text;
}

} // namespace KOVAVSFDataGridLib
