#pragma once

#include "control/parts/lines/ElidedLabel.h"

namespace KOVAVSFDataGridLib {

// One discreet line that tells where the user is and which statement is shown. What has no room is cut; the
// tool tip has the statement whole, and it can be copied (Ctrl+C, or the line's own menu).
class StatementLine final : public ElidedLabel
{
    Q_OBJECT

public:
    explicit StatementLine(QWidget *parent);

    // `place` tells which record is current. An empty statement empties the line.
    using QWidget::show;
    void show(const QString &place, const QString &statement);
    const QString &statement() const { return m_statement; }
    const QString &place() const { return m_place; }

protected:
    // The control has a command of the same shortcut; the line's own comes first where it has the focus.
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void copy();

    QString m_statement;
    QString m_place;
};

} // namespace KOVAVSFDataGridLib
