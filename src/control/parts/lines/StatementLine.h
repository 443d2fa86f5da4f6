#pragma once

#include "control/parts/lines/ElidedLabel.h"

namespace KOVAVSFDataGridLib {

// One unobtrusive line that shows the position and the current statement. If it does not fit it is elided;
// the tool tip shows the whole statement, which can also be copied (Ctrl+C, or the line's own menu).
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
    // The control has a command with the same shortcut; if the line has the focus, its own takes precedence.
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void copy();

    QString m_statement;
    QString m_place;
};

} // namespace KOVAVSFDataGridLib
