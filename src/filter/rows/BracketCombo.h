#pragma once

#include <QtWidgets/QComboBox>

namespace KOVAVSFDataGridLib {

// The brackets before or after a condition. The common
// ones are offered; others are added when needed.
class BracketCombo final : public QComboBox
{
    Q_OBJECT

public:
    enum class Side { Before, After };

    BracketCombo(Side side, const QString &name, QWidget *parent);

    // `negated`: see FilterSql::Term.
    void put(int brackets, int negated = 0);
    int brackets() const { return currentData().toPoint().x(); }
    int negated() const { return currentData().toPoint().y(); }

private:
    QString textOf(int brackets, int negated) const;

    const Side m_side;
};

} // namespace KOVAVSFDataGridLib
