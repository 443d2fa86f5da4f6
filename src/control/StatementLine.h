#pragma once

#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// One discreet line that tells where the user is and which statement is shown. What has no room is cut; the
// tool tip has the statement whole, and it can be copied (Ctrl+C, or the line's own menu).
class StatementLine final : public QLabel
{
    Q_OBJECT

public:
    explicit StatementLine(QWidget *parent);

    // `position` from 1, 0 for none. An empty statement empties the line.
    void tell(qint64 position, qint64 count, const QString &statement);
    const QString &statement() const { return m_statement; }

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void copy();

    QString m_statement;
};

} // namespace KOVAVSFDataGridLib
