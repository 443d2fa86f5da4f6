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

    // `places` tells which record is current, each time in fewer words: the first one for which there is room
    // is shown, so that its end isn't cut. An empty statement empties the line.
    using QWidget::show;
    void show(const QStringList &places, const QString &statement);
    const QString &statement() const { return m_statement; }
    QString place() const { return m_places.value(0); }
    // Of the place in the most words, and in the fewest.
    int widthOfPlace() const;
    int smallestWidth() const;
    QString shownText() const override;

protected:
    // The control has a command with the same shortcut; if the line has the focus, its own takes precedence.
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void copy();

    QString m_statement;
    QStringList m_places;
};

} // namespace KOVAVSFDataGridLib
