#pragma once

#include "forms/widgets/TickBoxes.h"

namespace KOVAVSFDataGridLib {

// A tick for one condition, which is shown in words or as SQL, in one line.
class KeptLine final : public CheckBox
{
    Q_OBJECT

public:
    KeptLine(const QString &condition, const QString &words, QWidget *parent);

    const QString &condition() const { return m_condition; }
    const QString &words() const { return m_words; }
    void showSql(bool isSql);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void write();

    QString m_condition;
    QString m_words;
    bool m_isSql = false;
};

} // namespace KOVAVSFDataGridLib
